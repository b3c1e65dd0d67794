#include "ui/toolbar/selection_facts.h"

#include <algorithm>
#include <map>

#include "editor/editable.h"
#include "editor/part_kinds.h"
#include "editor/word_bounds.h"

namespace toolbar {
namespace {

using editing::stack_half;
using mtext::marks::numbering;

bool is_stack(const mtext::geom_part& part) { return part.type() == mtext::part_stack; }

/// Whether a part is one of the signs at which a stack is made.
bool separates(const mtext::geom_part& part) {
  if (part.type() != mtext::part_string) return false;
  const std::u16string& letters = static_cast<const mtext::geom_word&>(part).text;
  return letters.find_first_of(u"/^#") != letters.npos;
}

/// The stacks in one selection that is not empty.
stack_facts stacks_in(const mtext::geom_parts& parts, const mtext::marks::mark& range) {
  const auto begin = parts.begin() + static_cast<std::ptrdiff_t>(range.begin);
  const auto end = parts.begin() + static_cast<std::ptrdiff_t>(range.end);
  const auto stacks = std::count_if(begin, end, is_stack);
  const auto letters = std::count_if(begin, end, editing::is_wordlike);
  const auto breaks = std::count_if(begin, end, [](const mtext::geom_part& part) {
    return editing::is_break(part) || part.type() == mtext::part_tab;
  });
  const bool single = end - begin == 1;
  return {.can_toggle = stacks > 0 || std::any_of(begin, end, separates),
          .all_stacked = stacks == end - begin,
          .one_run = single ? letters == 1 : stacks == 0 && breaks == 0,
          .half = single ? editing::half_of(*begin) : stack_half::none};
}

std::map<std::size_t, const numbering*> labels_by_start(const mtext::geom_multitext& text) {
  std::map<std::size_t, const numbering*> labels;
  for (const auto& mark : text.marks)
    if (const auto* label = dynamic_cast<const numbering*>(&mark); label && !label->empty())
      labels.emplace(label->begin, label);
  return labels;
}

bool same_kind(const mtext::marks::index& a, const mtext::marks::index& b) {
  return a.kind == b.kind && a.alphabet == b.alphabet;
}

}  // namespace

bool holds_text(const ExMTextEditable& text) {
  const auto all = text.selections();
  return std::any_of(all.begin(), all.end(), [](const auto& each) { return !each.empty(); });
}

stack_facts stacks_of(const ExMTextEditable& text) {
  std::optional<stack_facts> facts;
  for (const auto& range : text.selections()) {
    if (range.empty()) continue;
    const stack_facts here = stacks_in(text.text().parts, range);
    if (!facts) facts = here;
    facts->can_toggle |= here.can_toggle;
    facts->all_stacked &= here.all_stacked;
    facts->one_run &= here.one_run;
    if (facts->half != here.half) facts->half = stack_half::none;
  }
  return facts.value_or(stack_facts{});
}

list_facts lists_of(const ExMTextEditable& text) {
  const auto labels = labels_by_start(text.text());
  list_facts facts{.all = true};
  bool one_kind = true;
  for (const auto& range : text.selections()) {
    for (const std::size_t start : editing::paragraph_starts(text.text(), range)) {
      const auto label = labels.find(start);
      if (label == labels.end()) {
        facts.all = false;
        continue;
      }
      const auto& level = label->second->indices.back();
      one_kind &= !facts.any || same_kind(*facts.common, level);
      facts.any = true;
      facts.common = level;
    }
  }
  if (!facts.all || !one_kind) facts.common.reset();
  return facts;
}

}  // namespace toolbar
