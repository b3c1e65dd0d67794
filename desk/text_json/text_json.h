#pragma once

#include <nlohmann/json.hpp>
#include <optional>
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

/// Reads the member `name` of an object into `target`, and leaves `target` alone when it is absent.
template <typename Value>
void read(const json& object, const char* name, std::optional<Value>& target) {
  auto found = object.find(name);
  if (found != object.end()) target = found->get<Value>();
}

/// Writes the member `name` of an object when there is a value.
template <typename Value>
void write(json& object, const char* name, const std::optional<Value>& value) {
  if (value) object[name] = *value;
}

/// The text member `name` of an object; empty when it is absent.
std::u16string text_member(const json& object, const char* name);

/// The member `name` of an object; an empty object when it is absent.
json object_member(const json& object, const char* name);

}  // namespace text_json
