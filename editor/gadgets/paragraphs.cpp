#include "editor/gadgets/paragraphs.h"

#include <algorithm>

#include "mtext/marks.h"

namespace mtext {

namespace {

/// The paragraphs by number: 0 is the first one of the text.
struct numbered_paragraphs {
  std::vector<format::paragraph*> formats;
  std::vector<std::size_t> begins;  ///< the position in front of which each begins
};

numbered_paragraphs number_paragraphs(geom_multitext& text) {
  numbered_paragraphs found{{&text.format}, {0}};
  for (std::size_t at = 0; at < text.parts.size(); ++at) {
    if (text.parts[at].type() != part_new_paragraph) continue;
    found.formats.push_back(&static_cast<new_paragraph&>(text.parts[at].part()).paragraph);
    found.begins.push_back(at + 1);
  }
  return found;
}

/// The number of the paragraph that holds a position.
std::size_t number_at(const numbered_paragraphs& all, std::size_t at) {
  return static_cast<std::size_t>(std::upper_bound(all.begins.begin(), all.begins.end(), at) -
                                  all.begins.begin() - 1);
}

}  // namespace

std::vector<format::paragraph*> all_paragraphs(geom_multitext& text) {
  return number_paragraphs(text).formats;
}

std::vector<format::paragraph*> touched_paragraphs(geom_multitext& text) {
  const numbered_paragraphs all = number_paragraphs(text);
  std::vector<bool> is_touched(all.formats.size());
  for (const marks::selection& range : marks::selections_of(text.marks)) {
    const std::size_t last = number_at(all, range.end);
    for (std::size_t i = number_at(all, range.begin); i <= last; ++i) is_touched[i] = true;
  }
  std::vector<format::paragraph*> touched;
  for (std::size_t i = 0; i < all.formats.size(); ++i)
    if (is_touched[i]) touched.push_back(all.formats[i]);
  return touched;
}

}  // namespace mtext
