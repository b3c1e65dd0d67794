#include "mtext/geom_multitext.h"

namespace mtext {

const format::paragraph& paragraph_at(const geom_multitext& text, std::size_t at) {
  for (std::size_t i = at; i > 0; --i) {
    const geom_part& before = text.parts[i - 1];
    if (before.type() == part_new_paragraph)
      return static_cast<const new_paragraph&>(before.part()).paragraph;
  }
  return text.format;
}

format::paragraph& paragraph_at(geom_multitext& text, std::size_t at) {
  return const_cast<format::paragraph&>(paragraph_at(static_cast<const geom_multitext&>(text), at));
}

}  // namespace mtext
