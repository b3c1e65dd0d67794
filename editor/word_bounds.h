#pragma once

#include <cstddef>
#include <vector>

#include "mtext/geom_multitext.h"

/// Where words begin and end for the caret keys. Positions are indices into the parts, as everywhere.
namespace editing {

/// The place that Ctrl+Left goes to from `position`: in front of the word to the left, over the blanks
/// between. A break to the left is a stop of its own.
std::size_t word_start(const mtext::geom_multitext& text, std::size_t position);

/// The place that Ctrl+Right goes to from `position`: behind the word to the right and the blanks after it.
std::size_t word_end(const mtext::geom_multitext& text, std::size_t position);

/// First position of the paragraph that `position` lies in.
std::size_t paragraph_start(const mtext::geom_multitext& text, std::size_t position);

/// First positions of the paragraphs that `range` touches, the last paragraph first: an edit at one leaves
/// those still to come where they are.
std::vector<std::size_t> paragraph_starts(const mtext::geom_multitext& text, const mtext::marks::mark& range);

}  // namespace editing
