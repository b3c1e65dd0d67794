#pragma once

#include "mtext/geom_multitext.h"

namespace fuzz {

/// Whether reading `text` and writing it again gives what it was written as. Not all texts are so stable, on
/// purpose: stacks grow by rounding, a `%` of the text and control characters are not protected, and numbers
/// are kept in five digits of which the reader takes no sign before "0." and no plus in an exponent.
/// `base` is the format that it is written against.
bool is_stable(const mtext::geom_multitext& text, const mtext::format::string& base);

}  // namespace fuzz
