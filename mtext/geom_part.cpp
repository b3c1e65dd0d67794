#include "mtext/geom_part.h"

#include <algorithm>

namespace mtext {
namespace {

/// Width of a line end or paragraph end, in line heights: what a selection shows of it.
constexpr double terminator_width = 0.2;

/// Height of the digits of a stack, in heights of the text around it.
constexpr double stack_digit_height = 0.7;

/// The kind of a stack whose halves stand side by side.
constexpr std::uint32_t diagonal_stack = 2;

string_metrics terminator_size(const format::string& format, const string_size_finder& finder) {
  string_metrics size = finder.measure(format, u"");
  size.advance = line_height(size) * terminator_width;
  return size;
}

}  // namespace

void geom_word::update(const string_size_finder& finder) { size = finder.measure(format, text); }

void geom_spaces::update(const string_size_finder& finder) { size = finder.measure(format, u" "); }

void geom_tab::update(const string_size_finder& finder) { size = finder.measure(format, u""); }

void geom_new_line::update(const string_size_finder& finder) { size = terminator_size(format, finder); }

void geom_new_paragraph::update(const string_size_finder& finder) { size = terminator_size(format, finder); }

void geom_stack::update(const string_size_finder& finder) {
  mtext::format::string digits = format;
  digits.height *= stack_digit_height;
  top_size = finder.measure(digits, numerator);
  bottom_size = finder.measure(digits, denominator);

  size = string_metrics();
  size.advance = kind == diagonal_stack ? top_size.advance + bottom_size.advance
                                        : std::max(top_size.advance, bottom_size.advance);
  size.head = 2 * top_size.head;
  size.above = 2 * top_size.above;
  size.below = 2 * top_size.below;
  size.gap = 2 * top_size.gap;
  size.ink_top = size.above;
}

}  // namespace mtext
