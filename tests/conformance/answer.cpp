#include "tests/conformance/answer.h"

#include <stdexcept>
#include <typeinfo>

#include "mtext/ensure.h"
#include "tests/conformance/operations.h"

namespace conformance {

namespace {

template <typename Error>
bool is(const std::exception& error) {
  return dynamic_cast<const Error*>(&error) != nullptr;
}

const char* error_type(const std::exception& error) {
  if (is<std::invalid_argument>(error)) return "invalid_argument";
  if (is<std::out_of_range>(error)) return "out_of_range";
  if (is<std::bad_cast>(error)) return "bad_cast";
  if (is<mtext::ensure_error>(error)) return "ensure_error";
  if (is<std::runtime_error>(error)) return "runtime_error";
  return "other";
}

json unknown_operation(const std::string& name) {
  return {{"type", "other"}, {"what", "operation not available: " + name}};
}

}  // namespace

json describe_error(const std::exception& error) {
  return {{"type", error_type(error)}, {"what", error.what()}};
}

json answer(const json& request) {
  json result = {{"id", request.at("id")}};
  auto name = request.at("op").get<std::string>();
  auto found = operations().find(name);
  if (found == operations().end()) {
    result["error"] = unknown_operation(name);
    return result;
  }
  try {
    result["out"] = found->second(object_member(request, "in"));
  } catch (const std::exception& error) {
    result["error"] = describe_error(error);
  }
  return result;
}

}  // namespace conformance
