#pragma once

#include "mtext/letters_dictionary.h"
#include "tests/conformance/text_json.h"

namespace conformance {

/// The alphabets of a request; the built-in one where it names none.
mtext::marks::letters_dictionary read_dictionary(const json& in);

}  // namespace conformance
