#include <algorithm>

#include "editor/smart_edit.h"
#include "host/document.h"

namespace {

/// What the entity holds now; null for one whose text was edited without its field.
OdDbFieldPtr field_of(const OdDbEntity& target) {
  return odCast<OdDbField>(target.getField(OdDbField::kTextKey));
}

bool same_columns(const mtext::column_settings& a, const mtext::column_settings& b) {
  return a.width == b.width && a.gutter == b.gutter && a.kind == b.kind && a.heights == b.heights;
}

OdDb::ColumnType column_type(const mtext::column_settings& columns) {
  if (columns.kind != 0) return OdDb::kDynamicColumns;
  return columns.heights.size() == 1 ? OdDb::kNoColumns : OdDb::kStaticColumns;
}

/// Columns of automatic height are as many as the text fills.
int column_count(const mtext::geom_multitext& text) {
  const std::size_t set = text.info.columns.heights.size();
  return static_cast<int>(text.info.columns.kind == 2 ? std::max(set, text.columns.size()) : set);
}

}  // namespace

/// A field that shows something else has the same codes.
bool smart_edit::textChanged() const {
  return m_is_new || m_editable->contentsText() != m_origin.contents ||
         m_editable->evaluatedContentsText() != m_origin.shown;
}

void smart_edit::writeColumns(OdDbMText& target) {
  const auto& columns = m_editable->text().info.columns;
  target.setWidth(columns.width);
  target.setHeight(columns.heights[0]);
  const OdDb::ColumnType type = column_type(columns);
  target.setColumnType(type);
  if (type == OdDb::kNoColumns) return;
  target.setColumnWidth(columns.width);
  target.setColumnGutterWidth(columns.gutter);
  target.setColumnCount(column_count(m_editable->text()));
  target.setColumnAutoHeight(columns.kind == 2);
  if (columns.kind != 1) return;
  for (std::size_t i = 0; i < columns.heights.size(); ++i)
    target.setColumnHeight(static_cast<int>(i), columns.heights[i]);
}

void smart_edit::writeContents(OdDbMText& target) {
  if (const OdDbFieldPtr top = m_editable->fieldText(field_of(target).get())) {
    target.setField(OdDbField::kTextKey, *top);
    if (!target.isDBRO()) m_written_field = top;
  } else {
    target.setContents(m_editable->contentsText());
    target.removeField(OdDbField::kTextKey);
  }
}

void smart_edit::writeLine(OdDbText& target, std::size_t index) {
  if (const OdDbFieldPtr top = m_editable->lineField(index, field_of(target).get())) {
    target.setField(OdDbField::kTextKey, *top);
  } else {
    target.setTextString(m_editable->lineText(index));
    target.removeField(OdDbField::kTextKey);
  }
}

void smart_edit::write(OdDbMText& target) {
  // The entity keeps its own spelling of a text that came out as it went in.
  const bool text_changed = textChanged();
  if (text_changed) writeContents(target);
  if (m_editable->styleId() != m_origin.style) target.setTextStyle(m_editable->styleId());
  if (!same_columns(m_editable->text().info.columns, m_origin.info.columns)) writeColumns(target);
  // A text without a height was laid out with the least one, and what was typed has to stay as it was seen.
  if (text_changed || m_editable->textHeight() != m_origin.info.height)
    target.setTextHeight(m_editable->textHeight());
  if (m_editable->normal() != m_origin.frame.normal) target.setNormal(m_editable->normal());
  if (m_editable->attachment() == m_origin.frame.attachment &&
      m_editable->frame().location == m_origin.frame.location)
    return;
  target.setAttachment(static_cast<OdDb::AttachmentPoint>(m_editable->attachment() + 1));
  target.setLocation(m_editable->frame().location);
}

void smart_edit::write(OdDbText& target) {
  if (!textChanged()) return;
  if (m_editable->normal() != m_origin.frame.normal) target.setNormal(m_editable->normal());
  if (m_editable->lineCount() > 0) {
    writeLine(target, 0);
  } else {
    target.setTextString({});
    target.removeField(OdDbField::kTextKey);
  }
  if (!target.isDefaultAlignment()) target.adjustAlignment();
}

bool smart_edit::finishEdit(bool accept, bool force) {
  if (!m_source_text && !m_source_line) return accept;
  if (!force && m_editable->text().parts.empty()) accept = false;
  if (accept && m_source_text) write(*m_source_text);
  if (m_source_line && !m_had_text) {
    // Of a new text the line that is being typed is given up with it; those above it were finished by Enter.
    const std::size_t lines = m_editable->lineCount();
    writeLines(*m_source_line, accept || lines == 0 ? lines : lines - 1);
  } else if (accept && m_source_line) {
    write(*m_source_line);
  }
  showSource();
  return accept;
}

void smart_edit::showSource() {
  OdDbEntityPtr source = m_source_text ? OdDbEntityPtr(m_source_text) : OdDbEntityPtr(m_source_line);
  if (!source) return;
  source->setVisibility(OdDb::kVisible, true);
  updateDisplay(*source);
  m_source_text.release();
  m_source_line.release();
}
