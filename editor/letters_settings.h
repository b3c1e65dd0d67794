#pragma once

#include <string_view>

#include "mtext/letters_dictionary.h"

class IParam;

/// The alphabets of a session, from the settings and the language of the user. The text library knows
/// neither, the host knows no alphabets: this is where both meet.
namespace editing {

/// The alphabets that a node of the settings holds: one for each child, by the name of the child, with the
/// values "upper", "lower" and "name". What is missing is empty; a null node holds none.
mtext::marks::letters_dictionary from_iparam(const IParam* node);

/// Lets the translation of the English letters take the place of those of `language`, a three-letter
/// abbreviation: the alphabet with that key gets what `Supp_Translate` makes of the letters of the first one.
/// Nothing happens for an empty language, for one that has no alphabet, and when the translation leaves
/// either case as it is. `letters` must not be empty.
void translate_letters(mtext::marks::letters_dictionary& letters, std::u16string_view language);

/// The dictionary that a session starts with: the alphabets of the node "NamedListAlphabet" below `settings`,
/// which may be null, or the default ones if it has none; translated for `language`.
mtext::marks::letters_dictionary session_letters(const IParam* settings, std::u16string_view language);

/// The same for the running application and the user's language.
mtext::marks::letters_dictionary session_letters();

}  // namespace editing
