#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbMText.h"
#include "od/db/linked_columns.h"
#include "od/db/mtext_columns.h"
#include "od/db/mtext_subclass.h"
#include "od/field/OdDbField.h"

// What a changed text leaves for the moment before its drawing is written: its columns as entities, where the
// file wants them so, and its size as it is laid out.

namespace {

const OdDbSubclass& kMText = odMTextSubclass();

/// A file may count more columns than it has; this many are made new.
constexpr int kMostNewColumns = 100;

}  // namespace

/// True when the columns behind the first are entities of their own in this drawing.
bool OdDbMText::linksColumns() const {
  return isDBRO() && !isLinkedColumn() && objectId().stub()->handleInFile && !record().embedded_object() &&
         columns().type != 0;
}

/// What stands in each column; empty when nobody lays the text out or can tell. Codes that nobody changed are
/// not written in another way.
std::vector<OdString> OdDbMText::laidOutColumns() const {
  if (!database() || !database()->textLayout()) return {};
  const auto spelling = m_textChanged ? OdDbMTextLayout::kAnySpelling : OdDbMTextLayout::kKeepsSpelling;
  try {
    return database()->textLayout()->columnContents(*this, spelling);
  } catch (const std::exception&) {
    return {};  // a text that cannot be laid out stays where it is, and the drawing is saved
  }
}

void OdDbMText::putAllIntoFirst() {
  const OdString whole = contents();
  const OdDbFieldPtr field = odCast<OdDbField>(getField(OdDbField::kTextKey));
  emptyLinkedColumns();
  setOwnContents(whole);
  if (field) setField(OdDbField::kTextKey, *field);
}

/// Makes the whole text this one entity.
void OdDbMText::gatherLinkedColumns() {
  if (linkedColumns().empty()) return;
  putAllIntoFirst();
  setLinkedColumnCount(0);
}

void OdDbMText::appendLinkedColumn() {
  const auto column = odNew<OdDbMText>();
  column->setLayer(layer());
  column->setColor(color());
  column->setLinetype(linetype());
  column->setLinetypeScale(linetypeScale());
  column->setLineWeight(lineWeight());
  database()->drawing().appendPart(*objectId().stub(), *column);
}

void OdDbMText::eraseLinkedColumns(std::size_t first) {
  const std::vector<OdDbObjectId> columns = linkedColumns();
  for (std::size_t i = first; i < columns.size(); ++i) columns[i].openObject(OdDb::kForWrite)->erase();
  std::erase_if(objectId().stub()->parts, [](const OdDbStub* part) { return part->erased; });
}

void OdDbMText::setLinkedColumnCount(std::size_t count) {
  const std::size_t before = linkedColumns().size();
  for (std::size_t i = before; i < count; ++i) appendLinkedColumn();
  if (count < before) eraseLinkedColumns(count);
  std::vector<dxf::Handle> handles;
  for (const OdDbObjectId& id : linkedColumns()) handles.push_back(id.handle().value());
  odSetLinkedHandles(record(), handles);
}

/// Takes over from the first column what all have in common, and the place beside it.
void OdDbMText::takeForm(const OdDbMText& first, std::size_t column) {
  const OdDbMTextColumns columns = first.columns();
  const double pitch = columns.width + columns.gutter;
  // Each column is attached as the whole text is: by its left, its middle or its right.
  const double across = ((first.attachment() - 1) % 3) / 2.0;
  const double place = static_cast<double>(column) - across * (columns.count - 1);
  setNormal(first.normal());
  setDirection(first.direction());
  setLocation(first.location() + first.direction() * (place * pitch));
  setAttachment(first.attachment());
  setFlowDirection(first.flowDirection());
  setTextHeight(first.textHeight());
  setWidth(columns.width);
  if (columns.heights.empty()) setHeight(first.height());
  if (first.textStyle()) setTextStyle(first.textStyle());
  setLineSpacingStyle(first.lineSpacingStyle());
  setLineSpacingFactor(first.lineSpacingFactor());
}

/// Gives each column its entity. Where nobody lays the text out, those that are there have to do.
void OdDbMText::spreadLinkedColumns() {
  const std::vector<OdString> texts = laidOutColumns();
  OdDbMTextColumns columns = this->columns();
  const std::size_t present = linkedColumns().size() + 1;
  // Columns of automatic height are not counted by everybody.
  const auto counted =
      std::max(static_cast<std::size_t>(std::max(1, columns.count)), columns.autoHeight ? present : 1);
  const std::size_t most = texts.empty() ? present : std::max<std::size_t>(present, kMostNewColumns);
  const std::size_t count = std::max(std::min(counted, most), texts.size());
  if (texts.empty() && count < present) putAllIntoFirst();
  setLinkedColumnCount(count - 1);
  const bool formChanged = m_formChanged;  // a count that was wrong moves nothing
  columns.count = std::max(columns.count, static_cast<int>(count));
  setColumns(columns);
  const std::vector<OdDbMTextPtr> linked = openLinkedColumns(OdDb::kForWrite);
  if (!texts.empty()) setOwnContents(texts.front());
  for (std::size_t i = 0; i < linked.size(); ++i) {
    if (!texts.empty()) linked[i]->setOwnContents(i + 1 < texts.size() ? texts[i + 1] : OdString());
    if (formChanged || i + 1 >= present) linked[i]->takeForm(*this, i + 1);
  }
}

/// Files may tell how wide and high the text came out.
void OdDbMText::writeLaidOutSize() {
  const bool own = groups(kMText).has(42);
  const OdDbEmbeddedMText embedded(record());
  if (!database() || !database()->textLayout() || !(own || embedded.exists())) return;
  const OdDbMTextColumns columns = this->columns();
  OdDbMTextMeasure size;
  try {
    size = measured();
  } catch (const std::exception&) {
    return;
  }
  if (columns.type != 0 && columns.count > 1)
    size.width = columns.count * (columns.width + columns.gutter) - columns.gutter;
  if (own) {
    edit(kMText).setReal(42, size.width);
    edit(kMText).setReal(43, size.height);
  }
  odSetEmbeddedReal(record(), 42, size.width);
  odSetEmbeddedReal(record(), 43, size.height);
}

void OdDbMText::settle() {
  if (linksColumns()) {
    spreadLinkedColumns();
  } else {
    gatherLinkedColumns();
  }
  writeLaidOutSize();
  m_textChanged = m_formChanged = false;
}
