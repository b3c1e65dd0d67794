#include "mtext/entity/mtext_layout.h"

#include <algorithm>

#include "mtext/decode.h"
#include "mtext/entity/decode_entity.h"
#include "mtext/entity/draw_parts.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/gi/OdGiContext.h"
#include "od/gi/OdGiWorldDraw.h"

namespace mtext {

namespace {

OdDbMTextPtr pointer_to(const OdDbMText& text) { return OdDbMTextPtr(const_cast<OdDbMText*>(&text)); }

geom_multitext laid_out(const OdDbMText& text) {
  const auto entity = pointer_to(text);
  const auto contents = contents_of(entity);
  const mtext_size_finder finder{OdDbDatabasePtr(text.database())};
  return decode(contents.text.str(), drawn_mtext_format(entity), drawn_convert_info(entity), finder,
                contents.fields);
}

/// From the entity's location to the origin of the laid-out text.
OdGeVector2d origin_offset(const geom_multitext& text) {
  const OdGeVector2d box = attachment_box(text);
  return {-box.x * 0.5 * (text.info.alignment - 1), box.y * 0.5 * text.info.vertical};
}

/// The right end of a line's letters; its break does not count.
double right_end(const geom_multitext& text, const geom_line& line) {
  if (line.first == line.last) return line.x;
  const geom_part& last = text.parts[line.last - 1];
  return is_terminator(last) ? last.x : last.x + last.size.advance;
}

}  // namespace

OdGeVector2d attachment_box(const geom_multitext& text) {
  const auto& columns = text.info.columns;
  const std::size_t set = columns.kind == 2 ? 1 : columns.heights.size();
  const auto count = static_cast<double>(std::max(set, text.columns.size()));
  return {columns.width * count + columns.gutter * (count - 1),
          *std::max_element(columns.heights.begin(), columns.heights.end())};
}

OdDbMTextMeasure mtext_layout::measure(const OdDbMText& text) {
  if (!text.database()) return {};
  const geom_multitext laid = laid_out(text);
  if (laid.lines.empty()) return {};
  const geom_line& first = laid.lines.front();
  OdGePoint2d low{first.x, first.y}, high{first.x, first.y};
  for (const geom_line& line : laid.lines) {
    low = {std::min(low.x, line.x), std::min(low.y, line.y - line.size.below)};
    high = {std::max(high.x, right_end(laid, line)), std::max(high.y, line.y + line.size.above)};
  }
  const OdGeVector2d offset = origin_offset(laid);
  return {high.x - low.x, high.y - low.y, low + offset, high + offset};
}

void mtext_layout::draw(const OdDbMText& text, OdGiWorldDraw& draw) {
  if (!text.database()) return;
  const geom_multitext laid = laid_out(text);
  const OdGeVector2d offset = origin_offset(laid);
  OdGiGeometry& geometry = draw.geometry();
  geometry.pushModelTransform(OdGeMatrix3d::translation({offset.x, offset.y, 0}));
  draw_parts(
      laid, geometry, *text.database(),
      {.text_color = geometry.traits().trueColor(), .layer_color = draw.context().layerColor(text.layer())});
  geometry.popModelTransform();
}

}  // namespace mtext
