#include "mtext/entity/draw_parts.h"

#include <algorithm>
#include <optional>

#include "mtext/entity/draw_stack.h"
#include "mtext/entity/part_pen.h"
#include "mtext/surrogate_pair.h"

namespace mtext {

namespace {

/// Ink of the underline: below the baseline by the depth of the part, which a shape font's own depth
/// overstates.
double score_distance(const geom_word& word) {
  return word.format.is_shx ? (word.size.above - word.size.below) / 2 : word.size.below;
}

void draw_scores(const geom_word& word, OdGiGeometry& geometry) {
  const double right = word.x + word.size.advance;
  const double distance = score_distance(word);
  const auto line_at = [&](double y) { geometry.polyline({{word.x, y, 0}, {right, y, 0}}); };
  if (word.format.flags & format::flag_underline) line_at(word.y - distance);
  if (word.format.flags & format::flag_overline) line_at(word.y + word.size.above + distance);
}

/// The letters of the word at `at`, with the second half of its character where it is only the first.
std::u16string character_at(const geom_parts& parts, std::size_t at) {
  const auto letters = [&](std::size_t i) { return static_cast<const geom_word&>(parts[i]).text; };
  return splits_pair(parts, at + 1) ? letters(at) + letters(at + 1) : letters(at);
}

void draw_word(const geom_word& word, std::u16string_view character, part_pen& pen) {
  pen.text({word.x, word.y}, character, word.format);
  draw_scores(word, pen.geometry());
}

void draw_box(const geom_part& part, OdGiGeometry& geometry) {
  const double left = part.x, right = part.x + part.size.advance;
  const double top = part.y + part.size.above, bottom = part.y - part.size.below;
  geometry.polyline(
      {{left, bottom, 0}, {right, bottom, 0}, {right, top, 0}, {left, top, 0}, {left, bottom, 0}});
}

OdCmEntityColor color_of(const format::text_color& color, const part_drawing& drawing) {
  if (color.kind == 0)
    return color.index == OdCmEntityColor::kACIbyLayer ? drawing.layer_color
                                                       : OdCmEntityColor::fromIndex(color.index);
  const bool is_unset = color == format::text_color{};
  return is_unset ? drawing.text_color : OdCmEntityColor(color.red, color.green, color.blue);
}

}  // namespace

void draw_parts(const geom_multitext& text, OdGiGeometry& geometry, const OdGiFontContext& fonts,
                const part_drawing& drawing) {
  const OdGiSubEntityTraits before = geometry.traits();
  part_pen pen(geometry, fonts);
  for (std::size_t at = 0; at < text.parts.size(); ++at) {
    const geom_part& part = text.parts[at];
    if (part.type() != part_string && part.type() != part_stack) continue;
    if (splits_pair(text.parts, at)) continue;  // the first half drew both
    geometry.traits().setTrueColor(color_of(part.part().format.color, drawing));
    if (drawing.draft)
      draw_box(part, geometry);
    else if (part.type() == part_string)
      draw_word(static_cast<const geom_word&>(part), character_at(text.parts, at), pen);
    else
      draw_stack(static_cast<const geom_stack&>(part), pen);
  }
  geometry.traits() = before;
}

}  // namespace mtext
