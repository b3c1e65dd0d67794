#include "tests/conformance/dictionary_json.h"

namespace conformance {

mtext::marks::letters_dictionary read_dictionary(const json& in) {
  const auto found = in.find("dictionary");
  if (found == in.end()) return mtext::marks::default_letters();
  mtext::marks::letters_dictionary dictionary;
  for (const json& each : *found) {
    dictionary.push_back({text_member(each, "key"), text_member(each, "name"), text_member(each, "lower"),
                          text_member(each, "upper")});
  }
  return dictionary;
}

}  // namespace conformance
