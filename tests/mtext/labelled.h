#pragma once

#include "mtext/numbering.h"
#include "tests/mtext/decoded.h"

/// Texts with lists, for tests: lettered with the English alphabet.
namespace mtext {

using levels = std::vector<marks::index>;

/// Reads format codes and marks the labels in them.
inline geom_multitext labelled(const std::u16string& codes) {
  geom_multitext text = decoded(codes);
  mark_numberings(text, marks::default_letters());
  return text;
}

inline std::vector<marks::numbering*> labels_of(geom_multitext& text) {
  std::vector<marks::numbering*> found;
  for (marks::mark& each : text.marks) {
    if (auto* label = dynamic_cast<marks::numbering*>(&each)) found.push_back(label);
  }
  return found;
}

/// Counts all labels and writes them one after the other.
inline void renumber(geom_multitext& text) {
  marks::update_numberings(text.marks, marks::default_letters());
  for (marks::numbering* each : labels_of(text)) {
    update_numbering(text, *each, stub_finder(), marks::default_letters());
  }
}

/// The text, drawn, after its labels were marked, counted and written.
inline std::string renumbered(const std::u16string& codes) {
  geom_multitext text = labelled(codes);
  renumber(text);
  return drawn(text);
}

}  // namespace mtext
