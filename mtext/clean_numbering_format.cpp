#include "mtext/format_range.h"
#include "mtext/label_text.h"
#include "mtext/numbering.h"
#include "mtext/numbering_prefix.h"

namespace mtext {
namespace {

bool is_bullet(const geom_part& part) {
  if (part.type() != part_string) return false;
  return static_cast<const string&>(part.part()).text == std::u16string_view(&bullet_character, 1);
}

}  // namespace

void clean_numbering_format(geom_multitext& text, marks::numbering& mark) {
  text.verify_mark(mark);
  format::string_partial plain;
  plain.underline = false;
  for (std::size_t i = mark.begin; i < mark.end; ++i) {
    geom_part& part = text.parts[i];
    apply_to(part.part().format, plain);
    if (is_bullet(part)) apply_to(part.part().format, bullet_format());
  }
}

}  // namespace mtext
