#include "od/db/OdDbMText.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/db/mtext_background.h"
#include "od/db/mtext_columns.h"
#include "od/db/mtext_subclass.h"
#include "od/db/mtext_xdata.h"
#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbMText, OdDbEntity, "MTEXT")

namespace {

const OdDbSubclass& kMText = odMTextSubclass();
using Xdata = OdDbMTextXdata;

}  // namespace

std::unique_ptr<dxf::Record> OdDbMText::newRecord() const {
  return odNewRecord("MTEXT", {{100, u"AcDbEntity"},
                               {8, u"0"},
                               {100, u"AcDbMText"},
                               {10, OdGePoint3d()},
                               {40, 2.5},
                               {41, 0.0},
                               {71, OdDb::kTopLeft},
                               {72, OdDb::kByStyle},
                               {1, u""},
                               {73, OdDb::kAtLeast},
                               {44, 1.0}});
}

/// What the newest form says in groups of its own goes into extended data where the file's version asks.
void OdDbMText::recordMoved(const dxf::Record& before) {
  dxf::Record& moved = record();
  const dxf::Version version = moved.manner().version;
  if (const auto embedded = moved.embedded_object(); embedded && version < dxf::R2018) {
    moved.erase(dxf::Range{embedded->begin - 1, embedded->end});
    OdDbMTextColumns::read(before).write(moved);
  }
  if (version < dxf::R2007) {
    const double defined = OdDbGroups(before, kMText).real(46, 0);
    edit(kMText).remove(46);
    setHeight(defined);
  }
  if (version < dxf::R2004) {
    const OdDbMTextBackground background = OdDbMTextBackground::read(before);
    for (const int code : {90, 63, 421, 431, 45, 441}) edit(kMText).remove(code);
    background.write(moved);
  }
}

OdDbGroupEditor OdDbMText::editForm() {
  assertWriteEnabled();
  return {record(), kMText, [this] {
            m_formChanged = true;
            touch();
          }};
}

double OdDbMText::textHeight() const { return groups(kMText).real(40, 0); }

void OdDbMText::setTextHeight(double height) { editForm().setReal(40, height); }

double OdDbMText::width() const { return groups(kMText).real(41, 0); }

void OdDbMText::setWidth(double width) {
  editForm().setReal(41, width, 0);
  odSetEmbeddedReal(record(), 40, width);
}

double OdDbMText::height() const {
  const double own = groups(kMText).real(46, 0);
  if (own != 0) return own;
  const double embedded = OdDbEmbeddedMText(record()).real(41, 0);
  return embedded != 0 ? embedded : Xdata::real(record(), Xdata::kDefinedHeight, 46, 0);
}

void OdDbMText::setHeight(double height) {
  assertWriteEnabled();
  if (this->height() == height) return;
  const bool inXdata = Xdata::find(record(), Xdata::kDefinedHeight).has_value();
  const bool isOld = record().manner().version < dxf::R2007;
  if (!isOld || groups(kMText).has(46)) editForm().setReal(46, height, 0);
  odSetEmbeddedReal(record(), 41, height);
  if (inXdata || isOld) Xdata::write(record(), Xdata::kDefinedHeight, {{46, height}});
  m_formChanged = true;
  touch();
}

OdDb::AttachmentPoint OdDbMText::attachment() const {
  const int value = groups(kMText).integer(71, OdDb::kTopLeft);
  return value < 1 || value > 9 ? OdDb::kTopLeft : static_cast<OdDb::AttachmentPoint>(value);
}

void OdDbMText::setAttachment(OdDb::AttachmentPoint attachment) {
  if (this->attachment() == attachment) return;
  editForm().setInteger(71, attachment);
  odSetEmbeddedInteger(record(), 70, attachment);
}

void OdDbMText::setHorizontalMode(OdDb::TextHorzMode mode) {
  const bool centred = mode == OdDb::kTextCenter || mode == OdDb::kTextMid;
  const int column = mode == OdDb::kTextRight ? 2 : centred ? 1 : 0;
  const int first = (attachment() - OdDb::kTopLeft) / 3 * 3 + OdDb::kTopLeft;
  setAttachment(static_cast<OdDb::AttachmentPoint>(first + column));
}

OdDb::FlowDirection OdDbMText::flowDirection() const {
  // Some writers put 0, 2 or 4 here, which say nothing of their own.
  const int value = groups(kMText).integer(72, OdDb::kByStyle);
  return value == 1 ? OdDb::kLtoR : value == 3 ? OdDb::kTtoB : OdDb::kByStyle;
}

void OdDbMText::setFlowDirection(OdDb::FlowDirection direction) {
  if (flowDirection() != direction) editForm().setInteger(72, direction);
}

OdString OdDbMText::textStyleName() const { return groups(kMText).string(7, u"Standard"); }

OdDbObjectId OdDbMText::textStyle() const {
  return database() ? database()->textStyleOrStandard(textStyleName()) : OdDbObjectId();
}

void OdDbMText::setTextStyle(OdDbObjectId style) {
  if (style == textStyle()) return;
  const OdString name = odCastOrThrow<OdDbTextStyleTableRecord>(style.openObject())->getName();
  if (textStyleName().iCompare(name.str()) != 0) editForm().setString(7, name, u"Standard");
}

OdDb::LineSpacingStyle OdDbMText::lineSpacingStyle() const {
  return groups(kMText).integer(73, OdDb::kAtLeast) == OdDb::kExactly ? OdDb::kExactly : OdDb::kAtLeast;
}

void OdDbMText::setLineSpacingStyle(OdDb::LineSpacingStyle style) {
  if (lineSpacingStyle() != style) editForm().setInteger(73, style);
}

double OdDbMText::lineSpacingFactor() const { return groups(kMText).real(44, 1); }

void OdDbMText::setLineSpacingFactor(double factor) { editForm().setReal(44, factor, 1); }

void OdDbMText::setDatabaseDefaults(OdDbDatabase* source) {
  OdDbEntity::setDatabaseDefaults(source);
  if (!source) return;
  setTextStyle(source->getTEXTSTYLE());
  setTextHeight(source->getSysVarDouble(u"TEXTSIZE", 2.5));
}
