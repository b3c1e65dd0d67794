#include <algorithm>

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbMText.h"
#include "od/db/column_join.h"
#include "od/db/linked_columns.h"
#include "od/field/OdDbField.h"
#include "od/field/field_markers.h"

// A text whose further columns are entities of their own, read and changed as one.

namespace {

/// The code of a container with the numbers of its children counted on from `offset`.
std::u16string countedFrom(std::uint64_t offset, const OdDbField& container) {
  const OdString code = container.getFieldCode(OdDbField::kFieldCode);
  std::u16string counted;
  for (const auto& [letters, reference] : odSplitAtReferences(code.str(), kOdChildReference)) {
    counted += letters;
    if (reference) counted += odFieldReference(kOdChildReference, reference->number + offset);
  }
  return counted;
}

/// One container of those that columns have; a column without one is its text.
OdDbFieldPtr joinedField(const std::vector<OdDbFieldPtr>& fields, const std::vector<OdString>& contents) {
  std::vector<std::u16string> codes;
  std::vector<OdDbFieldPtr> children;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const OdDbFieldPtr& field = fields[i];
    codes.push_back(field ? countedFrom(children.size(), *field) : contents[i].str());
    for (int child = 0; field && child < field->childCount(); ++child)
      children.push_back(field->getChild(child, /*forWrite=*/true));
  }
  const auto whole = odNew<OdDbField>();
  whole->setFieldCode(odJoinColumns(codes), OdDbField::kTextField, std::move(children));
  return whole;
}

}  // namespace

bool OdDbMText::isLinkedColumn() const {
  const OdDbStub* owner = objectId().stub()->owner;
  return owner && owner->record && owner->record->is("MTEXT");
}

std::vector<OdDbObjectId> OdDbMText::linkedColumns() const {
  assertReadEnabled();
  const OdDbStub* first = objectId().stub();
  // A copy outside the drawing shows the columns of its original for as long as it names them.
  if (!first && database() && !odLinkedHandles(record()).empty())
    first = database()->drawing().find(OdDbHandle(record().handle()));
  std::vector<OdDbObjectId> columns;
  if (!first) return columns;
  for (OdDbStub* part : first->parts)
    if (part->erased == first->erased) columns.emplace_back(part);
  return columns;
}

std::vector<OdDbMTextPtr> OdDbMText::openLinkedColumns(OdDb::OpenMode mode) const {
  std::vector<OdDbMTextPtr> columns;
  for (const OdDbObjectId& id : linkedColumns())
    columns.push_back(odCastOrThrow<OdDbMText>(id.openObject(mode, /*openErased=*/true)));
  return columns;
}

std::vector<OdString> OdDbMText::contentsByEntity() const {
  std::vector<OdString> contents{ownTrueContents()};
  for (const OdDbMTextPtr& column : openLinkedColumns(OdDb::kForRead))
    contents.push_back(column->ownTrueContents());
  return contents;
}

/// The entities stay, for a text that is spread over them later.
void OdDbMText::emptyLinkedColumns() {
  if (!isDBRO()) return odSetLinkedHandles(record(), {});
  for (const OdDbMTextPtr& column : openLinkedColumns(OdDb::kForWrite)) {
    column->removeField(OdDbField::kTextKey);
    column->setOwnContents({});
  }
}

OdRxObjectPtr OdDbMText::getField(const OdString& name, OdDb::OpenMode mode) const {
  const OdRxObjectPtr own = OdDbObject::getField(name, mode);
  const std::vector<OdDbMTextPtr> columns = openLinkedColumns(OdDb::kForRead);
  const auto isEmpty = [](const OdDbMTextPtr& column) { return column->ownTrueContents().isEmpty(); };
  if (std::all_of(columns.begin(), columns.end(), isEmpty)) return own;
  std::vector<OdDbFieldPtr> fields{odCast<OdDbField>(own)};
  for (const OdDbMTextPtr& column : columns)
    fields.push_back(odCast<OdDbField>(column->getField(name, mode)));
  const auto exists = [](const OdDbFieldPtr& field) { return field.get() != nullptr; };
  return std::any_of(fields.begin(), fields.end(), exists) ? joinedField(fields, contentsByEntity()) : own;
}

void OdDbMText::removeField(const OdString& name) {
  OdDbObject::removeField(name);
  if (!isDBRO()) return;
  for (const OdDbMTextPtr& column : openLinkedColumns(OdDb::kForWrite)) column->removeField(name);
}
