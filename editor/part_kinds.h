#pragma once

#include "mtext/geom_multitext.h"

/// The three families of parts that caret movement tells apart.
namespace editing {

/// A line end or a paragraph end.
inline bool is_break(const mtext::geom_part& part) { return part.type() == 3 || part.type() == 5; }

/// A letter or a stack: what a word is made of.
inline bool is_wordlike(const mtext::geom_part& part) { return part.type() == 0 || part.type() == 4; }

/// A breakable space or a tab.
inline bool is_blank(const mtext::geom_part& part) { return part.type() == 1 || part.type() == 2; }

/// The paragraph end alone.
inline bool is_paragraph_end(const mtext::geom_part& part) { return part.type() == 5; }

}  // namespace editing
