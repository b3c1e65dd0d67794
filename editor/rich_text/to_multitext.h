#pragma once

#include "editor/rich_text/rich_text.h"
#include "mtext/multitext.h"

namespace rich {

/// The parts of a text that came from elsewhere. What it does not tell is as in `base`; sizes are ratios of
/// the base's height, 1 for the size that most characters have. Raised and lowered characters become stacks.
/// A list item opens with its label and a tab.
mtext::multitext to_multitext(const text& source, const mtext::format::string& base);

}  // namespace rich
