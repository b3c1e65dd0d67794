#pragma once

#include <exception>

#include "tests/conformance/text_json.h"

namespace conformance {

/// The answer to one request: its id with what the operation gave or threw.
json answer(const json& request);

/// The error of an answer for what an operation threw.
json describe_error(const std::exception& error);

}  // namespace conformance
