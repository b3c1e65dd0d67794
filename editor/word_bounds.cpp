#include "editor/word_bounds.h"

#include "editor/part_kinds.h"

namespace editing {

std::size_t word_start(const mtext::geom_multitext& text, std::size_t position) {
  if (position == 0) return 0;
  std::size_t at = position - 1;
  if (is_break(text.parts[at]) || at == 0) return at;
  while (at > 0 && is_blank(text.parts[at])) --at;
  while (at > 0 && is_wordlike(text.parts[at])) --at;
  return is_wordlike(text.parts[at]) ? at : at + 1;
}

std::size_t word_end(const mtext::geom_multitext& text, std::size_t position) {
  const std::size_t count = text.parts.size();
  if (position == count) return position;
  if (is_break(text.parts[position])) return position + 1;
  while (position < count && is_wordlike(text.parts[position])) ++position;
  while (position < count && is_blank(text.parts[position])) ++position;
  return position;
}

std::size_t paragraph_start(const mtext::geom_multitext& text, std::size_t position) {
  while (position > 0 && !is_paragraph_end(text.parts[position - 1])) --position;
  return position;
}

std::vector<std::size_t> paragraph_starts(const mtext::geom_multitext& text,
                                          const mtext::marks::mark& range) {
  std::vector<std::size_t> starts{paragraph_start(text, range.end)};
  while (starts.back() > range.begin) starts.push_back(paragraph_start(text, starts.back() - 1));
  return starts;
}

}  // namespace editing
