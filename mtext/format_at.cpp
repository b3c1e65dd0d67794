#include "mtext/format_at.h"

#include <algorithm>

#include "mtext/format_range.h"
#include "mtext/mark_sweep.h"
#include "mtext/marks.h"

namespace mtext::format {
namespace {

/// The format that typing at `at` goes on with: that of the character to the left, across the label of a
/// list.
const string& format_before(const geom_multitext& text, const string& base, std::size_t at) {
  if (at == 0) return base;
  const marks::numbering* label = marks::find_numbering(text.marks, at - 1);
  const std::size_t position = label ? label->begin : at;
  return position == 0 ? base : text.parts[position - 1].part().format;
}

/// What the characters of a range that belong to no label have in common.
struct range_format {
  string first;           ///< of the first of them
  string_partial common;  ///< of all of them
};

range_format format_of_range(const geom_multitext& text, const string& base, const marks::mark& at) {
  range_format result{base, to_partial(base)};
  bool visited = false;
  marks::mark_sweep<marks::numbering> labels(text.marks);
  for (std::size_t i = at.begin; i < at.end; ++i) {
    if (labels.at(i)) continue;
    const string& format = text.parts[i].part().format;
    if (visited) {
      result.common = intersection(result.common, to_partial(format));
    } else {
      result = {format, to_partial(format)};
      visited = true;
    }
  }
  return result;
}

}  // namespace

string_partial current_format(const geom_multitext& text, const string& base, const marks::mark& at) {
  text.verify_mark(at);
  if (at.empty()) return to_partial(format_before(text, base, at.begin));
  return format_of_range(text, base, at).common;
}

paragraph_partial current_paragraph_format(const geom_multitext& text, const marks::mark& at) {
  text.verify_mark(at);
  const auto first = text.parts.begin() + at.begin;
  return intersection(paragraph_at(text, at.begin), first, text.parts.begin() + std::max(at.begin, at.end));
}

string insertion_format(const geom_multitext& text, const string& base, const marks::mark& at) {
  text.verify_mark(at);
  if (at.empty()) return format_before(text, base, at.begin);
  const range_format range = format_of_range(text, base, at);
  return applied_to(range.first, range.common);
}

string insertion_format(const geom_multitext& text, const string& base, std::size_t at) {
  text.verify_elem(at);
  return format_before(text, base, at);
}

}  // namespace mtext::format
