#include "editor/line_frame.h"

#include <algorithm>

#include "editor/editable.h"
#include "mtext/entity/mtext_layout.h"

void line_frame::open(const ExMTextEditable& text) {
  m_text = &text;
  m_frame = odNew<micui::frame>();
  m_frame->name = u"text";
  refreshed();
}

micui::frame& line_frame::refreshed() const {
  OdGeExtents3d lines = mtext::line_extents(m_text->displayed());
  lines.addPoint({});
  m_frame->x = lines.minPoint().x;
  m_frame->y = lines.maxPoint().y;
  m_frame->width = lines.maxPoint().x - lines.minPoint().x;
  m_frame->height = lines.minPoint().y - lines.maxPoint().y;
  return *m_frame;
}
