#pragma once

#include "fuzz/byte_source.h"
#include "mtext/convert_info.h"
#include "mtext/fields_map.h"

/// What the text targets make of the first bytes of an input. The rest of it is a format-code string in
/// UTF-8.
namespace fuzz {

/// The format of text without codes: one byte.
mtext::format::string base_format(byte_source& input);

/// The frame of a layout: seven bytes.
mtext::convert_info frame(byte_source& input);

/// Field objects for "%<room>%", with a value, and "%<none>%", with an empty one.
mtext::fields_map bound_fields();

}  // namespace fuzz
