#include "mtext/ensure.h"
#include "mtext/numbering.h"

namespace mtext {
namespace {

constexpr double level_depth = 3.0;  ///< in text heights, as is `hang`
constexpr double hang = 2.0;  ///< how far a label stands to the left of its text, more with every level

/// Leaves one tab stop: the first, moved by `offset`, or one at the depth of the innermost level.
void move_tabs(format::paragraph& paragraph, double offset, std::size_t levels) {
  if (paragraph.tabs.empty()) {
    paragraph.tabs.edit().push_back({static_cast<double>(levels) * level_depth, 0, u' '});
  } else {
    paragraph.tabs.edit().resize(1);
    paragraph.tabs.edit().front().position += offset;
  }
}

void add_level(std::vector<marks::index>& levels) {
  marks::index& last = levels.back();
  if (last.value > 1) --last.value;
  const bool lettered = last.kind == 1 || last.kind == 2;
  levels.push_back({1, last.kind, lettered ? last.alphabet : 0});
}

void remove_level(std::vector<marks::index>& levels) {
  levels.pop_back();
  ++levels.back().value;
}

}  // namespace

void indent_numbering(geom_multitext& text, marks::numbering& mark, format::paragraph& paragraph,
                      const string_size_finder& finder, bool deeper,
                      const marks::letters_dictionary& dictionary) {
  ensure(!mark.indices.empty(), "!indices.empty()", "indent_numbering: the label has no levels");
  if (!deeper && mark.indices.size() == 1) return clear_numbering(text, mark, paragraph);
  deeper ? add_level(mark.indices) : remove_level(mark.indices);
  const double step = deeper ? 1 : -1;
  paragraph.indent -= step * hang;
  paragraph.left += step * level_depth;
  move_tabs(paragraph, step * level_depth, mark.indices.size());
  update_numbering(text, mark, finder, dictionary);
}

void clear_numbering(geom_multitext& text, marks::numbering& mark, format::paragraph& paragraph) {
  text.erase(mark, /*drop_empty=*/false);
  paragraph.indent = 0.0;
  paragraph.left = 0.0;
  paragraph.tabs = {};
}

}  // namespace mtext
