#include "fuzz/layout_laws.h"

#include <algorithm>
#include <bit>
#include <typeinfo>

#include "fuzz/require.h"
#include "mtext/dispose.h"
#include "mtext/surrogate_pair.h"
#include "tests/mtext/stub_finder.h"

namespace fuzz {
namespace {

using namespace mtext;

/// Equal to the last bit; what is no number equals itself.
bool same(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (a != a && b != b);
}

bool same_part(const geom_part& a, const geom_part& b) {
  return a.type() == b.type() && same(a.x, b.x) && same(a.y, b.y) && same(a.size.advance, b.size.advance);
}

bool same_line(const geom_line& a, const geom_line& b) {
  return a.first == b.first && a.last == b.last && same(a.x, b.x) && same(a.y, b.y) &&
         same(a.size.advance, b.size.advance) && same(a.size.head, b.size.head) &&
         same(a.size.above, b.size.above) && same(a.size.below, b.size.below) && same(a.size.gap, b.size.gap);
}

bool same_column(const geom_column& a, const geom_column& b) {
  return a.first == b.first && a.last == b.last && same(a.x, b.x) && same(a.y, b.y) &&
         same(a.width, b.width) && same(a.height, b.height);
}

bool same_mark(const marks::mark& a, const marks::mark& b) {
  return typeid(a) == typeid(b) && a.begin == b.begin && a.end == b.end;
}

/// The ranges follow each other from the first part to the last; `least` is the least size of all but the
/// last.
template <class Range>
bool covers(const std::vector<Range>& ranges, std::size_t size, std::size_t least) {
  std::size_t at = 0;
  for (const Range& each : ranges) {
    if (each.first != at || each.last < each.first) return false;
    if (&each != &ranges.back() && each.last - each.first < least) return false;
    at = each.last;
  }
  return at == size;
}

void measure(geom_multitext& text) {
  for (geom_part& each : text.parts) each.update(stub_finder());
  for (std::size_t at = 0; at <= text.parts.size(); ++at) measure_pair(text.parts, at, stub_finder());
}

geom_multitext measured_anew(const geom_multitext& text) {
  geom_multitext fresh(text);
  for (geom_part& each : fresh.parts) {
    each.size = string_metrics();
    each.x = each.y = 0;
  }
  measure(fresh);
  return fresh;
}

/// Halves of characters are measured together: who parts or joins them measures them again, and here that is
/// nobody.
bool has_halves(const geom_multitext& text) {
  return std::any_of(text.parts.begin(), text.parts.end(), [](const geom_part& each) {
    if (each.type() != part_string) return false;
    const char16_t unit = static_cast<const mtext::string&>(each.part()).text[0];
    return is_high_half(unit) || is_low_half(unit);
  });
}

}  // namespace

void require_marks_in_range(const geom_multitext& text) {
  for (const marks::mark& each : text.marks) {
    require(each.begin <= each.end, "a mark begins before it ends");
    require(each.end <= text.parts.size(), "a mark lies in the text");
  }
}

void require_layout(geom_multitext& text) {
  if (has_halves(text)) measure(text);
  dispose(text);
  require(covers(text.lines, text.parts.size(), 1), "lines cover the parts without gap or overlap");
  require(covers(text.columns, text.parts.size(), 0), "columns cover the parts without gap or overlap");
  geom_multitext fresh = measured_anew(text);
  dispose(fresh);
  require(same_layout(fresh, text), "a layout equals one from scratch");
  dispose(fresh);
  require(same_layout(fresh, text), "a second layout changes nothing");
}

void require_hit(const geom_multitext& text, double x, double y) {
  const text_hit hit = text.position_at(x, y);
  require(hit.at <= text.parts.size(), "a hit is a position of the text");
  require(hit.column <= text.columns.size(), "a hit lies in a column or behind them");
  require(hit.line == text_hit::no_line || hit.line < text.lines.size(), "a hit lies in a line or in none");
}

bool same_layout(const geom_multitext& a, const geom_multitext& b) {
  return std::equal(a.parts.begin(), a.parts.end(), b.parts.begin(), b.parts.end(), same_part) &&
         std::equal(a.lines.begin(), a.lines.end(), b.lines.begin(), b.lines.end(), same_line) &&
         std::equal(a.columns.begin(), a.columns.end(), b.columns.begin(), b.columns.end(), same_column);
}

bool same_marks(const geom_multitext& a, const geom_multitext& b) {
  return std::equal(a.marks.begin(), a.marks.end(), b.marks.begin(), b.marks.end(), same_mark);
}

}  // namespace fuzz
