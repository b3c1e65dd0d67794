#include "mtext/entity/draw_parts.h"

#include <algorithm>
#include <optional>

#include "mtext/entity/draw_stack.h"
#include "mtext/entity/part_pen.h"

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

void draw_word(const geom_word& word, part_pen& pen) {
  pen.text({word.x, word.y}, word.text, word.format);
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
  for (const geom_part& part : text.parts) {
    if (part.type() != part_string && part.type() != part_stack) continue;
    geometry.traits().setTrueColor(color_of(part.part().format.color, drawing));
    if (drawing.draft)
      draw_box(part, geometry);
    else if (part.type() == part_string)
      draw_word(static_cast<const geom_word&>(part), pen);
    else
      draw_stack(static_cast<const geom_stack&>(part), pen);
  }
  geometry.traits() = before;
}

}  // namespace mtext
