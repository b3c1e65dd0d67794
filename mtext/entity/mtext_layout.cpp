#include "mtext/entity/mtext_layout.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "mtext/decode.h"
#include "mtext/entity/decode_entity.h"
#include "mtext/entity/draw_parts.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "mtext/parse.h"
#include "mtext/serialize.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/column_join.h"
#include "od/gi/OdGiContext.h"
#include "od/gi/OdGiWorldDraw.h"

namespace mtext {

namespace {

OdDbMTextPtr pointer_to(const OdDbMText& text) { return OdDbMTextPtr(const_cast<OdDbMText*>(&text)); }

/// From the entity's location to the origin of the laid-out text.
OdGeVector2d origin_offset(const geom_multitext& text) {
  const OdGeVector2d box = column_box(text);
  return {-box.x * 0.5 * (text.info.alignment - 1),
          (box.y - last_line_leading(text)) * 0.5 * text.info.vertical};
}

/// The last line of a column, the empty one behind a closing line end included; null where there is none.
const geom_line* last_line_of(const geom_multitext& text, const geom_column& column) {
  const auto behind = std::partition_point(text.lines.begin(), text.lines.end(),
                                           [&](const geom_line& line) { return line.last <= column.last; });
  return behind == text.lines.begin() ? nullptr : &behind[-1];
}

/// From the top of a column to its last baseline, for the column that reaches furthest down so.
double greatest_depth(const geom_multitext& text) {
  double depth = 0;
  for (const geom_column& column : text.columns)
    if (const geom_line* line = last_line_of(text, column)) depth = std::max(depth, column.y - line->y);
  return depth;
}

/// The right end of a line's letters; its break does not count.
double right_end(const geom_multitext& text, const geom_line& line) {
  if (line.first == line.last) return line.x;
  const geom_part& last = text.parts[line.last - 1];
  return is_terminator(last) ? last.x : last.x + last.size.advance;
}

/// Codes as they are written here.
std::u16string spelled(const std::u16string& codes, const format::string& base, double height) {
  multitext read;
  parse(codes, base, read, {});
  return serialize(read, base, height);
}

/// What codes show, without its looks and its blanks.
std::u16string letters_of(const std::u16string& codes) {
  multitext read;
  parse(codes, {}, read, {});
  std::u16string letters = serialize_raw(read, /*tilde_spaces=*/false);
  std::erase(letters, u' ');
  return letters;
}

/// What stands in one column of a text without fields. `current` is the format of the paragraph that begins
/// or goes on at its top, and becomes that of the one at its end. What goes on has no first line.
multitext text_of(const geom_multitext& text, const geom_column& column, format::paragraph& current) {
  multitext result;
  result.paragraph = current;
  const bool goes_on = column.first > 0 && text.parts[column.first - 1].type() != part_new_paragraph;
  if (goes_on) result.paragraph.indent = result.paragraph.before = 0;
  for (std::size_t i = column.first; i < column.last; ++i) {
    const part& logical = text.parts[i].part();
    result.parts.push_back(logical.clone());
    if (logical.type() == part_new_paragraph) current = static_cast<const new_paragraph&>(logical).paragraph;
  }
  return result;
}

}  // namespace

OdGeVector2d column_box(const geom_multitext& text) {
  const auto& columns = text.info.columns;
  const std::size_t set = columns.kind == 2 ? 1 : columns.heights.size();
  const auto count = static_cast<double>(std::max(set, text.columns.size()));
  return {columns.width * count + columns.gutter * (count - 1),
          *std::max_element(columns.heights.begin(), columns.heights.end())};
}

OdGeExtents3d line_extents(const geom_multitext& text) {
  OdGeExtents3d box;
  for (const geom_line& line : text.lines) {
    box.addPoint({line.x, line.y + line.size.above, 0});
    box.addPoint({right_end(text, line), line.y - line.size.below, 0});
  }
  return box;
}

double last_line_leading(const geom_multitext& text) {
  double least = std::numeric_limits<double>::infinity();
  for (const geom_column& column : text.columns)
    if (const geom_line* line = last_line_of(text, column))
      least = std::min(least, line->y - (column.y - column.height));
  return std::isfinite(least) ? least : 0;
}

std::shared_ptr<const geom_multitext> mtext_layout::laid_out(const OdDbMText& text) const {
  const auto entity = pointer_to(text);
  const auto contents = contents_of(entity);
  const mtext_size_finder finder{OdDbDatabasePtr(text.database())};
  return std::make_shared<geom_multitext>(decode(contents.text.str(), drawn_mtext_format(entity),
                                                 drawn_convert_info(entity), finder, contents.fields));
}

OdDbMTextMeasure mtext_layout::measure(const OdDbMText& text) {
  if (!text.database()) return {};
  const auto kept = laid_out(text);
  const geom_multitext& laid = *kept;
  if (laid.lines.empty()) return {};
  const OdGeExtents3d box = line_extents(laid);
  const OdGePoint2d low{box.minPoint().x, box.minPoint().y}, high{box.maxPoint().x, box.maxPoint().y};
  const OdGeVector2d offset = origin_offset(laid);
  return {high.x - low.x, greatest_depth(laid), low + offset, high + offset};
}

std::vector<OdString> mtext_layout::columnContents(const OdDbMText& text, Spelling spelling) {
  const auto entity = pointer_to(text);
  const format::string base = drawn_mtext_format(entity);
  const double height = text.textHeight();
  const auto is_own_spelling = [&](const OdString& codes) {
    return spelled(codes.str(), base, height) == codes.str();
  };
  const std::vector<OdString> before = text.contentsByEntity();
  if (spelling == kKeepsSpelling && !std::all_of(before.begin(), before.end(), is_own_spelling)) return {};
  const auto laid = laid_out(text);
  if (!laid->marks.empty()) return {};
  std::vector<std::u16string> contents;
  format::paragraph current = laid->format;
  for (const geom_column& column : laid->columns)
    contents.push_back(serialize(text_of(*laid, column, current), base, height));
  const bool is_whole = letters_of(odJoinColumns(contents)) == letters_of(text.contents().str());
  return is_whole ? std::vector<OdString>(contents.begin(), contents.end()) : std::vector<OdString>();
}

void mtext_layout::draw(const OdDbMText& text, OdGiWorldDraw& draw) {
  if (!text.database()) return;
  const auto kept = laid_out(text);
  const geom_multitext& laid = *kept;
  const OdGeVector2d offset = origin_offset(laid);
  OdGiGeometry& geometry = draw.geometry();
  geometry.pushModelTransform(OdGeMatrix3d::translation({offset.x, offset.y, 0}));
  draw_parts(
      laid, geometry, *text.database(),
      {.text_color = geometry.traits().trueColor(), .layer_color = draw.context().layerColor(text.layer())});
  geometry.popModelTransform();
}

}  // namespace mtext
