#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "mtext/geom_multitext.h"
#include "mtext/letters_dictionary.h"

/// The labels of list items, as the operations on a text under edit meet them. A label opens its paragraph
/// and ends with its tab.
namespace editing {

/// The label of the paragraph that begins at `start`, or null.
mtext::marks::numbering* label_at(mtext::geom_multitext& text, std::size_t start);

/// Whether any paragraph of the text is a list item.
bool has_labels(const mtext::geom_multitext& text);

/// The label that ends directly before `position`, or null.
mtext::marks::numbering* label_before(mtext::geom_multitext& text, std::size_t position);

/// The levels that the parts from `start` up to `stop` are a label of; nothing unless they are characters
/// alone, and a label from first to last.
std::optional<std::vector<mtext::marks::index>> levels_of(const mtext::geom_multitext& text,
                                                          std::size_t start, std::size_t stop,
                                                          const mtext::marks::letters_dictionary& letters);

/// Whether the paragraph that begins at `start` opens with a label that nobody has marked yet.
bool opens_with_new_label(mtext::geom_multitext& text, std::size_t start,
                          const mtext::marks::letters_dictionary& letters);

/// A label to insert, with its mark, in `format`.
mtext::geom_multitext label_to_insert(const std::vector<mtext::marks::index>& levels,
                                      const mtext::format::string& format, double text_height,
                                      const mtext::string_size_finder& finder,
                                      const mtext::marks::letters_dictionary& letters);

/// Gives a paragraph the indents and the one tab stop of a first-level item: its text stands three text
/// heights in, its label hangs at the margin.
void hang_label(mtext::format::paragraph& paragraph);

/// Takes underlines from all labels and puts their bullets back into their font, and measures what changed.
/// Returns whether anything did.
bool clean_labels(mtext::geom_multitext& text, const mtext::string_size_finder& finder);

/// Holds the selections that end with a label to it while the label is written anew, which would leave their
/// ends in front of it. The marks of the labels have to outlive the scope.
class label_end_scope {
 public:
  explicit label_end_scope(mtext::geom_multitext& text);
  ~label_end_scope();
  label_end_scope(const label_end_scope&) = delete;
  label_end_scope& operator=(const label_end_scope&) = delete;

 private:
  struct bond {
    mtext::marks::selection* range;
    const mtext::marks::numbering* label;
  };
  std::vector<bond> m_bonds;
};

}  // namespace editing
