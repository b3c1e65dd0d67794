#include "od/db/OdDbAttributeDefinition.h"

#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbAttributeDefinition, OdDbText, "ATTDEF")

namespace {

constexpr int kOrder[] = {3, 2, 70, 73, 74};
const OdDbSubclass kDefinition{"AcDbAttributeDefinition", kOrder};

constexpr int kInvisible = 1, kConstant = 2, kVerify = 4, kPreset = 8;

}  // namespace

std::unique_ptr<dxf::Record> OdDbAttributeDefinition::newRecord() const {
  return odNewRecord("ATTDEF", {{100, u"AcDbEntity"},
                                {8, u"0"},
                                {100, u"AcDbText"},
                                {10, OdGePoint3d()},
                                {40, 2.5},
                                {1, u""},
                                {100, u"AcDbAttributeDefinition"},
                                {3, u""},
                                {2, u""},
                                {70, 0}});
}

OdDbText::VerticalGroup OdDbAttributeDefinition::verticalGroup() const { return {&kDefinition, 74}; }

OdString OdDbAttributeDefinition::tag() const { return groups(kDefinition).string(2); }

void OdDbAttributeDefinition::setTag(const OdString& tag) { edit(kDefinition).setString(2, tag); }

OdString OdDbAttributeDefinition::prompt() const { return groups(kDefinition).string(3); }

void OdDbAttributeDefinition::setPrompt(const OdString& prompt) { edit(kDefinition).setString(3, prompt); }

bool OdDbAttributeDefinition::isInvisible() const { return groups(kDefinition).flag(70, kInvisible); }

bool OdDbAttributeDefinition::isConstant() const { return groups(kDefinition).flag(70, kConstant); }

bool OdDbAttributeDefinition::isVerifiable() const { return groups(kDefinition).flag(70, kVerify); }

bool OdDbAttributeDefinition::isPreset() const { return groups(kDefinition).flag(70, kPreset); }

int OdDbAttributeDefinition::fieldLength() const { return groups(kDefinition).integer(73, 0); }

OdString OdDbAttributeDefinition::shownText() const { return isConstant() ? textString() : tag(); }
