#include "editor/remembering_finder.h"

#include <algorithm>

#include "editor/text_pieces.h"

namespace {

/// More formats of one text than this are not remembered: the search has to stay short.
constexpr std::size_t kMostFormats = 16;

}  // namespace

mtext::string_metrics remembering_finder::measure(const mtext::format::string& format,
                                                  std::u16string_view text) const {
  auto known = m_known.find(text);
  if (known == m_known.end()) known = m_known.emplace(text, std::vector<measured>()).first;
  std::vector<measured>& sizes = known->second;
  const auto found = std::find_if(sizes.begin(), sizes.end(), [&](const measured& each) {
    return editing::same_format(each.format, format);
  });
  if (found != sizes.end()) return found->size;
  const mtext::string_metrics size = m_measuring.measure(format, text);
  if (sizes.size() < kMostFormats) sizes.push_back({format, size});
  return size;
}
