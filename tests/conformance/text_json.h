#pragma once

#include "desk/text_json/text_json.h"

/// The driver that answers requests of the conformance protocol (PROTOCOL.md) by calling the library.
namespace conformance {

using namespace text_json;

}  // namespace conformance
