#include "mtext/numbering.h"
#include "mtext/numbering_prefix.h"
#include "mtext/serialize.h"

namespace mtext {
namespace {

/// Appends the characters from `at` on, and gives the position of the first element that is none.
std::size_t read_characters(const geom_parts& parts, std::size_t at, std::u16string& characters) {
  for (; at < parts.size() && parts[at].type() == part_string; ++at) {
    serialize_raw(characters, parts[at].part(), /*tilde_spaces=*/false);
  }
  return at;
}

/// The start of the paragraph behind the one that holds `at`; beyond the end if there is none.
std::size_t next_paragraph(const geom_parts& parts, std::size_t at) {
  while (at < parts.size() && parts[at].type() != part_new_paragraph) ++at;
  return at + 1;
}

}  // namespace

void mark_numberings(geom_multitext& text, const marks::letters_dictionary& dictionary) {
  text.marks.erase_if([](const marks::mark& each) { return dynamic_cast<const marks::numbering*>(&each); });
  const geom_parts& parts = text.parts;
  std::u16string characters;
  for (std::size_t first = 0; first < parts.size();) {
    characters.clear();
    const std::size_t stop = read_characters(parts, first, characters);
    if (stop < parts.size() && parts[stop].type() == part_tab) {
      if (auto levels = read_label(characters, dictionary)) {
        text.marks.push_back(new marks::numbering(first, stop + 1, std::move(*levels)));
      }
    }
    first = next_paragraph(parts, stop);
  }
}

}  // namespace mtext
