#include <algorithm>

#include "mtext/label_text.h"
#include "mtext/numbering.h"
#include "mtext/to_geom.h"

namespace mtext {
namespace {

/// The format of a label that ends at `end`: that of the start of the item's text, never underlined.
format::string label_format(const geom_multitext& text, std::size_t end) {
  format::string format = text.parts[std::min(end, text.parts.size() - 1)].part().format;
  format.flags &= ~(format::flag_underline | format::flag_overline);
  return format;
}

geom_multitext measured_label(const geom_multitext& text, const marks::numbering& mark,
                              const string_size_finder& finder, const marks::letters_dictionary& dictionary) {
  const format::string format = label_format(text, mark.end);
  return to_geom(label_text(mark.indices, format, dictionary), format.height, finder);
}

using labels = std::vector<marks::numbering*>;

/// The labels that are written, in their order.
labels written_labels(geom_multitext& text) {
  labels found;
  for (marks::mark& each : text.marks) {
    auto* label = dynamic_cast<marks::numbering*>(&each);
    if (label && !label->empty()) found.push_back(label);
  }
  return found;
}

/// Whether every label lies in the text and behind the one before.
bool in_text_order(const labels& all, std::size_t size) {
  std::size_t position = 0;
  for (const marks::numbering* each : all) {
    if (each->begin < position || each->end < each->begin || each->end > size) return false;
    position = each->end;
  }
  return true;
}

/// Writes labels that stand in the order of the text, all in one go.
void update_in_text_order(geom_multitext& text, const labels& all, const string_size_finder& finder,
                          const marks::letters_dictionary& dictionary) {
  std::vector<marks::replaced_range> ranges;
  geom_parts written;
  for (const marks::numbering* each : all) {
    geom_multitext label = measured_label(text, *each, finder, dictionary);
    ranges.push_back({each->begin, each->end - each->begin, label.parts.size()});
    written.transfer(written.end(), label.parts);
  }
  text.replace(ranges, written);
  std::size_t moved = 0;  // wraps around where the text became shorter, and back
  for (std::size_t i = 0; i < all.size(); ++i) {
    all[i]->begin = ranges[i].first + moved;
    all[i]->end = all[i]->begin + ranges[i].new_count;
    moved += ranges[i].new_count - ranges[i].count;
  }
}

}  // namespace

void update_numbering(geom_multitext& text, marks::numbering& mark, const string_size_finder& finder,
                      const marks::letters_dictionary& dictionary) {
  if (mark.empty()) return;
  text.verify_mark(mark);
  // Made before anything is erased: a label that cannot be written leaves the old one.
  geom_multitext label = measured_label(text, mark, finder, dictionary);
  text.erase(mark, /*drop_empty=*/false);
  const std::size_t start = mark.begin;
  text.insert(start, std::move(label));
  mark.begin = start;  // the insertion moved the mark behind the label
}

void update_every_numbering(geom_multitext& text, const string_size_finder& finder,
                            const marks::letters_dictionary& dictionary) {
  const labels all = written_labels(text);
  if (in_text_order(all, text.parts.size())) return update_in_text_order(text, all, finder, dictionary);
  for (marks::numbering* each : all) update_numbering(text, *each, finder, dictionary);
}

}  // namespace mtext
