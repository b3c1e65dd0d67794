#include "od/db/OdDbAttribute.h"

#include "od/db/OdDbDictionary.h"
#include "od/db/new_record.h"

ODRX_DEFINE_MEMBERS(OdDbAttribute, OdDbText, "ATTRIB")

namespace {

constexpr int kOrder[] = {2, 70, 73, 74};
const OdDbSubclass kAttribute{"AcDbAttribute", kOrder};

constexpr int kInvisible = 1, kConstant = 2;

}  // namespace

std::unique_ptr<dxf::Record> OdDbAttribute::newRecord() const {
  return odNewRecord("ATTRIB", {{100, u"AcDbEntity"},
                                {8, u"0"},
                                {100, u"AcDbText"},
                                {10, OdGePoint3d()},
                                {40, 2.5},
                                {1, u""},
                                {100, u"AcDbAttribute"},
                                {2, u""},
                                {70, 0}});
}

OdDbText::VerticalGroup OdDbAttribute::verticalGroup() const { return {&kAttribute, 74}; }

OdString OdDbAttribute::tag() const { return groups(kAttribute).string(2); }

void OdDbAttribute::setTag(const OdString& tag) { edit(kAttribute).setString(2, tag); }

bool OdDbAttribute::isInvisible() const { return groups(kAttribute).flag(70, kInvisible); }

bool OdDbAttribute::isConstant() const { return groups(kAttribute).flag(70, kConstant); }

int OdDbAttribute::fieldLength() const { return groups(kAttribute).integer(73, 0); }

bool OdDbAttribute::isMTextAttribute() const {
  if (record().embedded_object()) return true;
  // Older files keep it in the extension dictionary.
  const OdDbObjectId id = extensionDictionary();
  const auto dictionary = odCast<OdDbDictionary>(id ? id.openObject() : OdDbObjectPtr());
  return dictionary && !dictionary->getAt(u"ACAD_MLATT").isNull();
}

OdString OdDbAttribute::shownText() const { return isInvisible() ? OdString() : textString(); }
