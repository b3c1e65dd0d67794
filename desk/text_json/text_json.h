#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// Texts, formats and layouts as JSON, in the forms that tests/conformance/PROTOCOL.md tells.
namespace text_json {

using json = nlohmann::json;

/// The UTF-16 units of a JSON string.
std::u16string read_text(const json& value);
json write_text(const std::u16string& text);

/// The member `name` of an object, or `otherwise` when it is absent.
template <typename Value>
Value member_or(const json& object, const char* name, Value otherwise) {
  auto found = object.find(name);
  return found == object.end() ? otherwise : found->get<Value>();
}

/// The text member `name` of an object; empty when it is absent.
std::u16string text_member(const json& object, const char* name);

/// The member `name` of an object; an empty object when it is absent.
json object_member(const json& object, const char* name);

}  // namespace text_json
