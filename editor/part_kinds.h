#pragma once

#include "mtext/geom_multitext.h"

/// The families of parts that caret movement tells apart.
namespace editing {

/// A line end or a paragraph end.
inline bool is_break(const mtext::geom_part& part) {
  return part.type() == mtext::part_new_line || part.type() == mtext::part_new_paragraph;
}

/// A letter or a stack: what a word is made of.
inline bool is_wordlike(const mtext::geom_part& part) {
  return part.type() == mtext::part_string || part.type() == mtext::part_stack;
}

/// A breakable space or a tab.
inline bool is_blank(const mtext::geom_part& part) {
  return part.type() == mtext::part_spaces || part.type() == mtext::part_tab;
}

/// The paragraph end alone.
inline bool is_paragraph_end(const mtext::geom_part& part) {
  return part.type() == mtext::part_new_paragraph;
}

}  // namespace editing
