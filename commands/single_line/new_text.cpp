#include "commands/single_line/new_text.h"

#include <cmath>

#include "commands/base/current_ucs.h"
#include "commands/justify/justify_rows.h"
#include "commands/single_line/text_data.h"
#include "editor/text_justify.h"
#include "host/document.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"

namespace {

constexpr double kNone = 1e-10;
constexpr double kUsualHeight = 2.5;
constexpr double kPitch = 1.6666666666666667;  ///< from one baseline to the next, in text heights

bool is_set(double value) { return std::abs(value) > kNone; }

OdDbTextStyleTableRecordPtr current_style(HostDocument& document) {
  return odCastOrThrow<OdDbTextStyleTableRecord>(document.database().getTEXTSTYLE().openObject());
}

const justify_row& row_of(const new_text_settings& settings) {
  return justify_rows()[static_cast<std::size_t>(settings.justify)];
}

double height_for(HostDocument& document) {
  if (const double fixed = fixed_height(document); is_set(fixed)) return fixed;
  const double size = document.database().getSysVarDouble(u"TEXTSIZE", kUsualHeight);
  return is_set(size) ? size : kUsualHeight;
}

}  // namespace

bool new_text_settings::has_two_points() const { return alignOrFit(row_of(*this).horizontal); }

OdGeVector3d new_text_settings::line_feed() const {
  const OdGeVector3d along = OdGePlane({}, normal).uAxis().rotatedBy(rotation, normal);
  return normal.crossProduct(along) * (-kPitch * height);
}

void new_text_settings::go_down() {
  const OdGeVector3d feed = line_feed();
  origin += feed;
  end += feed;
  if (row_of(*this).horizontal == OdDb::kTextAlign) justify = 0;
}

new_text_settings settings_for(HostDocument& document, bool remembered) {
  new_text_settings settings;
  settings.height = height_for(document);
  settings.normal = current_ucs(document.database()).z;
  keep_height(document, settings.height);
  if (!remembered) return settings;
  settings.rotation = text_data()[document].rotation;
  settings.justify = text_data()[document].justify;
  return settings;
}

OdDbTextPtr new_text(HostDocument& document, const new_text_settings& settings) {
  const auto style = current_style(document);
  auto text = odNew<OdDbText>();
  text->setDatabaseDefaults(&document.database());
  text->setTextStyle(style->objectId());
  text->setOblique(style->obliquingAngle());
  text->setWidthFactor(style->xScale());
  text->setNormal(settings.normal);
  text->setRotation(settings.rotation);
  text->setHeight(settings.height);
  text->setHorizontalMode(row_of(settings).horizontal);
  text->setVerticalMode(row_of(settings).vertical);
  text->setPosition(settings.origin);
  if (!isDefaultTextAlignment(text))
    text->setAlignmentPoint(settings.has_two_points() ? settings.end : settings.origin);
  return text;
}

double fixed_height(HostDocument& document) {
  const double size = current_style(document)->textSize();
  return is_set(size) ? size : 0;
}

void keep_height(HostDocument& document, double height) {
  OdDbDatabase& database = document.database();
  if (is_set(height - database.getSysVarDouble(u"TEXTSIZE", 0)))
    database.setSysVarDouble(u"TEXTSIZE", height);
}
