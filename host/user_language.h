#pragma once

#include <string>
#include <string_view>

namespace host {

/// The three-letter abbreviation (ISO 639-2, for use in terminology) of the language of a locale name such as
/// "de_DE.UTF-8", in lower case: "deu". Empty for a name without a language, as "C" and "POSIX" are.
std::u16string language_of_locale(std::string_view locale_name);

/// That of the user's messages: LC_ALL, LC_MESSAGES or LANG, the first that is set to something. Empty if
/// none of them names a language.
std::u16string user_language();

}  // namespace host
