#include "editor/list_labels.h"

#include <algorithm>

#include "editor/selection_scope.h"

#include "mtext/label_text.h"
#include "mtext/marks.h"
#include "mtext/numbering.h"
#include "mtext/numbering_prefix.h"
#include "mtext/serialize.h"
#include "mtext/to_geom.h"

namespace editing {

using mtext::marks::numbering;

namespace {

constexpr double kHang = 3.0;  ///< depth of a list's first level in text heights

bool clean_label(mtext::geom_multitext& text, numbering& label, const mtext::string_size_finder& finder) {
  std::vector<mtext::format::string> before;
  for (std::size_t at = label.begin; at < label.end; ++at) before.push_back(text.parts[at].part().format);
  mtext::clean_numbering_format(text, label);
  bool changed = false;
  for (std::size_t i = 0; i < before.size(); ++i) {
    mtext::geom_part& part = text.parts[label.begin + i];
    if (part.part().format == before[i]) continue;
    part.update(finder);
    changed = true;
  }
  return changed;
}

}  // namespace

numbering* label_at(mtext::geom_multitext& text, std::size_t start) {
  return mtext::marks::find_numbering(text.marks, start);
}

bool has_labels(const mtext::geom_multitext& text) {
  return std::any_of(text.marks.begin(), text.marks.end(),
                     [](const auto& mark) { return dynamic_cast<const numbering*>(&mark) != nullptr; });
}

numbering* label_before(mtext::geom_multitext& text, std::size_t position) {
  if (position == 0) return nullptr;
  numbering* label = mtext::marks::find_numbering(text.marks, position - 1);
  return label && label->end == position ? label : nullptr;
}

std::optional<std::vector<mtext::marks::index>> levels_of(const mtext::geom_multitext& text,
                                                          std::size_t start, std::size_t stop,
                                                          const mtext::marks::letters_dictionary& letters) {
  std::u16string characters;
  for (std::size_t at = start; at < stop; ++at) {
    if (text.parts[at].type() != mtext::part_string) return std::nullopt;
    mtext::serialize_raw(characters, text.parts[at].part(), /*tilde_spaces=*/false);
  }
  return mtext::read_label(characters, letters);
}

bool opens_with_new_label(mtext::geom_multitext& text, std::size_t start,
                          const mtext::marks::letters_dictionary& letters) {
  std::size_t stop = start;
  while (stop < text.parts.size() && text.parts[stop].type() == mtext::part_string) ++stop;
  const bool has_tab = stop < text.parts.size() && text.parts[stop].type() == mtext::part_tab;
  return has_tab && !label_at(text, start) && levels_of(text, start, stop, letters);
}

mtext::geom_multitext label_to_insert(const std::vector<mtext::marks::index>& levels,
                                      const mtext::format::string& format, double text_height,
                                      const mtext::string_size_finder& finder,
                                      const mtext::marks::letters_dictionary& letters) {
  auto label = mtext::to_geom(mtext::label_text(levels, format, letters), text_height, finder);
  label.marks.push_back(new numbering(0, label.parts.size(), levels));
  return label;
}

void hang_label(mtext::format::paragraph& paragraph) {
  paragraph.indent = -kHang;
  paragraph.left = kHang;
  paragraph.tabs = {{kHang, 0, u' '}};
}

label_end_scope::label_end_scope(mtext::geom_multitext& text) {
  for (auto* range : selection_marks(text)) {
    const numbering* label = range->empty() ? nullptr : label_before(text, range->end);
    if (label) m_bonds.push_back({range, label});
  }
}

label_end_scope::~label_end_scope() {
  for (const bond& each : m_bonds) each.range->end = each.label->end;
}

bool clean_labels(mtext::geom_multitext& text, const mtext::string_size_finder& finder) {
  bool changed = false;
  for (auto& mark : text.marks)
    if (auto* label = dynamic_cast<numbering*>(&mark)) changed |= clean_label(text, *label, finder);
  return changed;
}

}  // namespace editing
