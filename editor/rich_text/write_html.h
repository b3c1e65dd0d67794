#pragma once

#include "mtext/multitext.h"

namespace rich {

/// A text as HTML, for other programs: paragraphs, line breaks, bold, italic, underline, true colours, and
/// sizes as ratios of `height`, in which the formats of the parts count theirs. Stacks are raised and lowered
/// characters.
std::u16string write_html(const mtext::multitext& text, double height);

}  // namespace rich
