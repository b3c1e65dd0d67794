#include <algorithm>

#include "editor/editable.h"
#include "mtext/entity/mtext_layout.h"

void ExMTextEditable::setFrame(const text_frame& frame) {
  m_frame = frame;
  m_frame.leading = mtext::last_line_leading(m_text);
  setAttachment(frame.attachment);
}

void ExMTextEditable::setNormal(const OdGeVector3d& normal) {
  const double rotation = OdGePlane({}, m_frame.normal).uAxis().angleTo(m_frame.direction, m_frame.normal);
  m_frame.normal = normal.normal();
  setRotation(rotation);
}

void ExMTextEditable::setRotation(double radians) {
  m_frame.direction = OdGePlane({}, m_frame.normal).uAxis().rotatedBy(radians, m_frame.normal).normal();
}

void ExMTextEditable::setLocation(const OdGePoint3d& location) { m_frame.location = location; }

void ExMTextEditable::setSize(double width, double height) {
  m_frame.width = width;
  m_frame.height = height;
  auto& columns = m_text.info.columns;
  if (columns.kind != 0 || columns.heights.size() != 1) return;
  columns.width = width;
  columns.heights[0] = height;
  m_layout_dirty = true;
}

void ExMTextEditable::setTextHeight(double height, bool keep_runs) {
  const double before = textHeight();
  m_text.info.height = height;
  m_default_format.height = height;
  m_default_format.height_kind = 0;
  m_layout_dirty = true;
  if (keep_runs || before == height || before == 0) return;
  for (auto& part : m_text.parts) part.part().format.height *= height / before;
  remeasure(0, m_text.parts.size());
}

void ExMTextEditable::setAttachment(int attachment) {
  m_frame.attachment = attachment;
  m_text.info.alignment = static_cast<std::uint32_t>(attachment % 3 + 1);
  m_text.info.vertical = static_cast<std::uint32_t>(attachment / 3);
  m_layout_dirty = true;
}

OdGeExtents3d ExMTextEditable::textExtents() const { return mtext::line_extents(m_text); }
