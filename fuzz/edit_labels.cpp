#include <algorithm>

#include "fuzz/edit_steps.h"
#include "fuzz/layout_laws.h"
#include "fuzz/require.h"
#include "mtext/numbering.h"
#include "tests/mtext/stub_finder.h"

namespace fuzz {
namespace {

using namespace mtext;

std::vector<marks::numbering*> labels_of(geom_multitext& text) {
  std::vector<marks::numbering*> found;
  for (marks::mark& each : text.marks) {
    if (auto* label = dynamic_cast<marks::numbering*>(&each)) found.push_back(label);
  }
  return found;
}

/// One of the labels, or null in a text without any.
marks::numbering* label_in(geom_multitext& text, byte_source& input) {
  const std::vector<marks::numbering*> labels = labels_of(text);
  return labels.empty() ? nullptr : labels[input.up_to(labels.size() - 1)];
}

void mark_all(geom_multitext& text, byte_source&) {
  mark_numberings(text, marks::default_letters());
  for (const marks::numbering* each : labels_of(text)) {
    require(!each->indices.empty(), "a label has a level");
    require(each->end > each->begin, "a label covers something");
    require(text.parts[each->end - 1].type() == part_tab, "a label ends with a tab");
    require(each->begin == 0 || text.parts[each->begin - 1].type() == part_new_paragraph,
            "a label begins its paragraph");
  }
}

/// Counts all labels, and writes them all at once or one after the other, with the same result.
void renumber(geom_multitext& text, byte_source& input) {
  mark_all(text, input);
  marks::update_numberings(text.marks, marks::default_letters());
  if (text.parts.size() > longest_text) return;
  geom_multitext expected(text);
  for (marks::numbering* each : labels_of(expected))
    update_numbering(expected, *each, stub_finder(), marks::default_letters());
  update_every_numbering(text, stub_finder(), marks::default_letters());
  require(same_marks(text, expected), "labels written at once stand where single ones stand");
  require_layout(text);
  require_layout(expected);
  require(same_layout(text, expected), "labels written at once are those written one after the other");
}

void count(geom_multitext& text, byte_source&) {
  marks::update_numberings(text.marks, marks::default_letters());
  for (const marks::numbering* each : labels_of(text)) {
    require(std::all_of(each->indices.begin(), each->indices.end(),
                        [](const auto& level) { return level.value > 0; }),
            "a counted label counts from 1");
  }
}

void write_one(geom_multitext& text, byte_source& input) {
  if (marks::numbering* label = label_in(text, input))
    update_numbering(text, *label, stub_finder(), marks::default_letters());
}

void indent(geom_multitext& text, byte_source& input) {
  marks::numbering* label = label_in(text, input);
  if (!label || label->indices.size() > 20) return;
  format::paragraph& paragraph = paragraph_at(text, label->begin);
  indent_numbering(text, *label, paragraph, stub_finder(), input.flag(), marks::default_letters());
}

void clear(geom_multitext& text, byte_source& input) {
  marks::numbering* label = label_in(text, input);
  if (!label) return;
  format::paragraph& paragraph = paragraph_at(text, label->begin);
  clear_numbering(text, *label, paragraph);
  require(label->empty(), "a cleared label is empty");
}

void clean(geom_multitext& text, byte_source& input) {
  if (marks::numbering* label = label_in(text, input)) clean_numbering_format(text, *label);
  for (geom_part& each : text.parts) each.update(stub_finder());
}

}  // namespace

void edit_labels(geom_multitext& text, byte_source& input) {
  using step = void (*)(geom_multitext&, byte_source&);
  static constexpr step steps[] = {mark_all, renumber, count, write_one, indent, clear, clean};
  input.one_of(steps)(text, input);
}

}  // namespace fuzz
