#include "mtext/entity/entity_format.h"

#include <cmath>

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbTextStyleTableRecord.h"

namespace mtext {

namespace {

/// Heights nearer to zero than this are none.
constexpr double kNoHeight = 1e-10;
constexpr double kUsualHeight = 2.5;
/// The gutter of a text without columns, in widths.
constexpr double kGutterFactor = 0.2;

/// What a text is drawn with that has no style.
constexpr const char16_t* kLastFont = u"txt.shx";

/// True for a height that is none; a number that is not finite counts as a height.
bool is_zero(double height) { return std::abs(height) <= kNoHeight; }

double style_height(const OdDbTextStyleTableRecord& style, const OdDbDatabase* database) {
  if (is_zero(style.textSize()))
    return database ? database->getSysVarDouble(u"TEXTSIZE", kUsualHeight) : kUsualHeight;
  return (database ? database->getSysVarDouble(u"DIMSCALE", 1.0) : 1.0) * style.textSize();
}

std::u16string with_shape_extension(std::u16string file) {
  const auto slash = file.find_last_of(u"/\\");
  const auto dot = file.rfind(u'.');
  const bool has_extension = dot != std::u16string::npos && (slash == std::u16string::npos || dot > slash);
  return has_extension ? file : file + u".shx";
}

void take_font(format::string& result, const OdDbTextStyleTableRecord& style) {
  OdString typeface;
  bool bold = false, italic = false;
  int charset = 0, pitch = 0;
  style.font(typeface, bold, italic, charset, pitch);
  result.is_shx = typeface.isEmpty();
  result.font = result.is_shx ? with_shape_extension(style.fileName().str()) : typeface.str();
  result.charset = static_cast<std::uint32_t>(charset);
  result.pitch = static_cast<std::uint32_t>(pitch);
  result.flags = (bold ? format::flag_bold : 0U) | (italic ? format::flag_italic : 0U);
}

void take_columns(column_settings& columns, const OdDbMText& entity) {
  const int type = entity.getColumnType();
  if (type == OdDb::kNoColumns) {
    columns = {
        .width = entity.width(), .gutter = kGutterFactor * entity.width(), .heights = {entity.height()}};
    return;
  }
  if (type != OdDb::kStaticColumns && type != OdDb::kDynamicColumns) return;
  columns.width = entity.getColumnWidth();
  columns.gutter = entity.getColumnGutterWidth();
  const auto count = static_cast<std::size_t>(std::max(entity.getColumnCount(), 0));
  if (type == OdDb::kStaticColumns) {
    columns.heights.assign(count, entity.height());
  } else if (entity.getColumnAutoHeight()) {
    columns.kind = 2;
    columns.heights = {entity.height()};
  } else {
    columns.kind = 1;
    columns.heights.clear();
    for (std::size_t i = 0; i < count; ++i)
      columns.heights.push_back(entity.getColumnHeight(static_cast<int>(i)));
  }
  // Layout needs one height at least; a file may count no column.
  if (columns.heights.empty()) columns.heights = {entity.height()};
}

std::uint32_t alignment_of(int attachment) {
  switch (attachment) {
    case 2:
    case 5:
    case 8:
    case 11:
      return 2;
    case 3:
    case 6:
    case 9:
    case 12:
      return 3;
    default:
      return 1;
  }
}

std::uint32_t vertical_of(int attachment) {
  switch (attachment) {
    case 4:
    case 5:
    case 6:
    case 15:
    case 19:
    case 23:
      return 1;
    case 7:
    case 8:
    case 9:
    case 14:
    case 18:
    case 22:
      return 2;
    default:
      return 0;
  }
}

}  // namespace

format::string style_format(OdDbObjectId style, const OdDbDatabase* database) {
  const auto record = odCastOrThrow<OdDbTextStyleTableRecord>(style.openObject(OdDb::kForRead));
  format::string result;
  result.height_kind = 0;
  result.height = style_height(*record, database);
  take_font(result, *record);
  result.width_factor = record->xScale();
  result.oblique = record->obliquingAngle();
  return result;
}

format::string default_mtext_format(OdSmartPtr<OdDbMText> entity) {
  format::string result = style_format(entity->textStyle(), entity->database());
  // A fixed height of the style has deliberately no effect on a multi-line text.
  result.height = entity->textHeight();
  return result;
}

format::string drawn_mtext_format(OdSmartPtr<OdDbMText> entity) {
  if (entity->textStyle()) return default_mtext_format(entity);
  return {.height = entity->textHeight(), .height_kind = 0, .font = kLastFont, .is_shx = true};
}

convert_info mtext_convert_info(OdSmartPtr<OdDbMText> entity) {
  convert_info info;
  take_columns(info.columns, *entity);
  info.height = is_zero(entity->textHeight()) ? kUsualHeight : entity->textHeight();
  info.alignment = alignment_of(entity->attachment());
  info.vertical = vertical_of(entity->attachment());
  return info;
}

convert_info drawn_convert_info(OdSmartPtr<OdDbMText> entity) {
  convert_info info = mtext_convert_info(entity);
  info.spacing = {static_cast<std::uint32_t>(entity->lineSpacingStyle()), entity->lineSpacingFactor()};
  return info;
}

}  // namespace mtext
