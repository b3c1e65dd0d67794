#pragma once

#include "mtext/geom_multitext.h"

namespace mtext {

/// Where `dispose` stands in a text, line by line.
struct line_cursor {
  format::paragraph paragraph;      ///< of the next line, its tabs sorted and cleaned
  format::tab_list given_tabs;      ///< the tabs of that paragraph as the text has them
  std::size_t paragraph_begin = 0;  ///< first part of that paragraph
  std::size_t next = 0;             ///< first part of the next line
};

/// Breaks the next line off, gives its parts their `x`, and their `y` relative to the line's top. Moves
/// `cursor` behind it, and returns its metrics: height and ink of the whole line, widths of its last segment.
/// There must be parts left.
string_metrics layout_line(geom_multitext& text, line_cursor& cursor);

/// Makes `paragraph` that of the next line. Its tabs are cleaned anew only if they are others than those of
/// the paragraph before: a long list and many paragraphs take no longer than both.
void take_paragraph(line_cursor& cursor, const format::paragraph& paragraph);

/// Lets `cursor` enter the paragraph that the end of paragraph before it opens.
void enter_paragraph(const geom_multitext& text, line_cursor& cursor);

}  // namespace mtext
