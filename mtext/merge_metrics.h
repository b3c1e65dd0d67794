#pragma once

#include "mtext/string_size_finder.h"

namespace mtext {

/// A part joins a line without its width: the taller one's `head`, `above`, `below` and `gap` win, all four
/// together.
void merge_height(string_metrics& line, const string_metrics& part);

/// A part joins a line with its width.
void merge_with_advance(string_metrics& line, const string_metrics& part);

/// Lets the line run on by a width without ink.
void add_blank(string_metrics& line, double advance);

}  // namespace mtext
