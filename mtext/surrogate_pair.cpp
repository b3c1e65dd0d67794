#include "mtext/surrogate_pair.h"

namespace mtext {
namespace {

char16_t only_unit(const geom_part& part) {
  if (part.type() != part_string) return 0;
  const auto& text = static_cast<const geom_word&>(part).text;
  return text.size() == 1 ? text.front() : u'\0';
}

}  // namespace

bool splits_pair(const geom_parts& parts, std::size_t position) {
  return position > 0 && position < parts.size() && is_low_half(only_unit(parts[position])) &&
         is_high_half(only_unit(parts[position - 1]));
}

void measure_pair(geom_parts& parts, std::size_t position, const string_size_finder& finder) {
  if (!splits_pair(parts, position)) return;
  auto& first = static_cast<geom_word&>(parts[position - 1]);
  geom_part& second = parts[position];
  const char16_t whole[] = {only_unit(first), only_unit(second)};
  first.size = finder.measure(first.format, {whole, 2});
  second.size = finder.measure(first.format, u"");
  // A line ends with the edge of its last ink.
  second.size.right_bearing = first.size.right_bearing;
}

}  // namespace mtext
