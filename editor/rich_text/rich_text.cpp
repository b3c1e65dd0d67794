#include "editor/rich_text/rich_text.h"

#include <algorithm>
#include <map>

namespace rich {

void text::add(std::u16string_view characters, const rich::style& style) {
  if (characters.empty()) return;
  if (paragraphs.empty()) paragraphs.emplace_back();
  auto& runs = paragraphs.back().runs;
  if (runs.empty() || runs.back().style != style) runs.push_back({{}, style});
  runs.back().text += characters;
}

void text::begin_paragraph() {
  if (paragraphs.empty() || !paragraphs.back().runs.empty() || !paragraphs.back().label.empty())
    paragraphs.emplace_back();
}

bool text::empty() const {
  return std::all_of(paragraphs.begin(), paragraphs.end(),
                     [](const paragraph& each) { return each.runs.empty() && each.label.empty(); });
}

double usual_size(const text& source) {
  std::map<double, std::size_t> counts;
  for (const paragraph& each : source.paragraphs)
    for (const run& piece : each.runs)
      if (piece.style.size > 0) counts[piece.style.size] += piece.text.size();
  const auto most = std::max_element(counts.begin(), counts.end(),
                                     [](const auto& a, const auto& b) { return a.second < b.second; });
  return most == counts.end() ? 0 : most->first;
}

}  // namespace rich
