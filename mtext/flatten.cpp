#include "mtext/flatten.h"

#include "mtext/mark_sweep.h"

namespace mtext {

multitext flatten(const geom_multitext& text) {
  multitext result;
  result.paragraph = text.format;
  marks::mark_sweep<marks::field> fields(text.marks);
  for (std::size_t i = 0; i < text.parts.size();) {
    const part& logical = text.parts[i].part();
    if (const marks::field* found = fields.at(i)) {
      result.parts.push_back(new field(logical.format, found->code));
      i = found->end;
    } else {
      result.parts.push_back(logical.clone());
      ++i;
    }
  }
  return result;
}

}  // namespace mtext
