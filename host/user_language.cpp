#include "host/user_language.h"

#include <unicode/uloc.h>

#include <cstdlib>

#include "od/base/unicode.h"

namespace host {

std::u16string language_of_locale(std::string_view locale_name) {
  return odLowerAscii(odToUtf16(uloc_getISO3Language(std::string(locale_name).c_str())));
}

std::u16string user_language() {
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(variable);
    if (value && *value) return language_of_locale(value);
  }
  return {};
}

}  // namespace host
