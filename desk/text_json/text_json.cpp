#include "desk/text_json/text_json.h"

#include "od/base/unicode.h"

namespace text_json {

std::u16string read_text(const json& value) { return odToUtf16(value.get_ref<const std::string&>()); }

json write_text(const std::u16string& text) { return odToUtf8(text); }

std::u16string text_member(const json& object, const char* name) {
  auto found = object.find(name);
  return found == object.end() ? std::u16string() : read_text(*found);
}

json object_member(const json& object, const char* name) {
  auto found = object.find(name);
  return found == object.end() ? json::object() : *found;
}

}  // namespace text_json
