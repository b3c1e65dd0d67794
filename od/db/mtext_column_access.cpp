#include "od/db/OdDbMText.h"
#include "od/db/mtext_columns.h"

// The columns of a multi-line text: each setter reads them all, changes one value and writes what differs.

OdDbMTextColumns OdDbMText::columns() const {
  assertReadEnabled();
  return OdDbMTextColumns::read(record());
}

void OdDbMText::setColumns(const OdDbMTextColumns& columns) {
  assertWriteEnabled();
  if (columns == OdDbMTextColumns::read(record())) return;
  columns.write(record());
  m_formChanged = true;
  touch();
}

OdDb::ColumnType OdDbMText::getColumnType() const {
  const int type = columns().type;
  return type < 0 || type > 2 ? OdDb::kNoColumns : static_cast<OdDb::ColumnType>(type);
}

void OdDbMText::setColumnType(OdDb::ColumnType type) {
  OdDbMTextColumns changed = columns();
  if (changed.type == type) return;
  if (type == OdDb::kNoColumns) changed = {};
  if (changed.type == OdDb::kNoColumns && type != OdDb::kNoColumns) {
    changed.count = 1;
    changed.width = width();
  }
  changed.type = type;
  setColumns(changed);
}

int OdDbMText::getColumnCount() const { return columns().count; }

void OdDbMText::setColumnCount(int count) {
  OdDbMTextColumns changed = columns();
  if (changed.type == OdDb::kNoColumns) return;
  changed.count = count;
  if (changed.heights.size() > static_cast<std::size_t>(std::max(0, count)))
    changed.heights.resize(static_cast<std::size_t>(std::max(0, count)));
  setColumns(changed);
}

double OdDbMText::getColumnWidth() const {
  const OdDbMTextColumns present = columns();
  return present.type == OdDb::kNoColumns ? width() : present.width;
}

void OdDbMText::setColumnWidth(double width) {
  OdDbMTextColumns changed = columns();
  if (changed.type == OdDb::kNoColumns) return;
  changed.width = width;
  setColumns(changed);
}

double OdDbMText::getColumnGutterWidth() const { return columns().gutter; }

void OdDbMText::setColumnGutterWidth(double gutter) {
  OdDbMTextColumns changed = columns();
  if (changed.type == OdDb::kNoColumns) return;
  changed.gutter = gutter;
  setColumns(changed);
}

bool OdDbMText::getColumnAutoHeight() const { return columns().autoHeight; }

void OdDbMText::setColumnAutoHeight(bool on) {
  OdDbMTextColumns changed = columns();
  if (changed.type == OdDb::kNoColumns) return;
  changed.autoHeight = on;
  if (on) changed.heights.clear();
  setColumns(changed);
}

bool OdDbMText::getColumnFlowReversed() const { return columns().reversed; }

double OdDbMText::getColumnHeight(int index) const {
  const OdDbMTextColumns present = columns();
  const auto at = static_cast<std::size_t>(index);
  return index >= 0 && at < present.heights.size() ? present.heights[at] : 0;
}

void OdDbMText::setColumnHeight(int index, double height) {
  if (index < 0) throw OdError_InvalidIndex();
  OdDbMTextColumns changed = columns();
  const auto at = static_cast<std::size_t>(index);
  if (changed.type == OdDb::kNoColumns || getColumnHeight(index) == height) return;
  if (at >= changed.heights.size()) changed.heights.resize(at + 1);
  changed.heights[at] = height;
  setColumns(changed);
}
