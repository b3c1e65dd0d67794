#pragma once

#include <nlohmann/json.hpp>
#include <string>

/// The driver that answers requests of the conformance protocol (PROTOCOL.md) by calling the library.
namespace conformance {

using json = nlohmann::json;

/// The UTF-16 units of a JSON string.
std::u16string read_text(const json& value);
json write_text(const std::u16string& text);

/// The member `name` of a request, or `otherwise` when it is absent.
template <typename Value>
Value member_or(const json& object, const char* name, Value otherwise) {
  auto found = object.find(name);
  return found == object.end() ? otherwise : found->get<Value>();
}

/// The text member `name` of a request; empty when it is absent.
std::u16string text_member(const json& object, const char* name);

/// The member `name` of a request; an empty object when it is absent.
json object_member(const json& object, const char* name);

}  // namespace conformance
