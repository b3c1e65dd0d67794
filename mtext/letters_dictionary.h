#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "od/base/export.h"

namespace mtext::marks {

/// The letters of one language, as lists count with them.
struct alphabet {
  std::u16string key;   ///< three-letter abbreviation of the language in lower case, such as "eng"
  std::u16string name;  ///< for the user
  /// The letters in order. Every unit is a letter, and their number is the base in which a list counts.
  std::u16string lower;
  std::u16string upper;  ///< the same in upper case; need not be as many

  friend bool operator==(const alphabet&, const alphabet&) = default;
};

/// The alphabets that lettered lists may use. The place of an alphabet is the `alphabet` of an `index`; of
/// two that share a letter, the first claims it.
struct SCRIBE_EXPORT letters_dictionary : std::vector<alphabet> {
  using vector::vector;

  /// Reads an object of objects in UTF-8, one for each alphabet in the order of the document:
  /// `{ "eng": { "name": "English", "lower": "abc", "upper": "ABC" } }`.
  /// Throws `boost::property_tree::ptree_bad_path` when a member is missing, and
  /// `boost::property_tree::json_parser::json_parser_error` when it is no JSON or nests deeper than 100.
  static letters_dictionary from_json(std::string_view text);
};

/// English alone: what there is without any settings.
SCRIBE_EXPORT const letters_dictionary& default_letters();

}  // namespace mtext::marks
