#pragma once

#include <vector>

#include "mtext/geom_multitext.h"

/// The selections of a text, taken out for a change and written back when the scope ends.
/// Writing back merges what overlaps and moves every end out of the solids and of characters that are two
/// parts, so that no operation has to.
class selection_scope {
 public:
  explicit selection_scope(mtext::geom_multitext& text);
  ~selection_scope();
  selection_scope(const selection_scope&) = delete;
  selection_scope& operator=(const selection_scope&) = delete;

  /// In order of their begins.
  std::vector<mtext::marks::selection> selections;

 private:
  mtext::geom_multitext& m_text;
};

namespace editing {

/// Copies of the selections of `text`, in order of their begins.
std::vector<mtext::marks::selection> selections_of(const mtext::geom_multitext& text);

/// The selections of `text` themselves, in order of their begins; they stay the text's own.
std::vector<mtext::marks::selection*> selection_marks(mtext::geom_multitext& text);

}  // namespace editing
