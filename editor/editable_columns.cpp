#include "editor/editable.h"
#include "editor/gadgets/paragraphs.h"
#include "mtext/entity/mtext_layout.h"

void ExMTextEditable::setColumns(const mtext::column_settings& columns) {
  m_text.info.columns = columns;
  layOut();
  const OdGeVector2d box = mtext::column_box(m_text);
  m_frame.width = box.x;
  m_frame.height = box.y;
}

std::vector<mtext::format::paragraph*> ExMTextEditable::touchedParagraphs() {
  return mtext::touched_paragraphs(m_text);
}

std::vector<mtext::format::paragraph*> ExMTextEditable::allParagraphs() {
  return mtext::all_paragraphs(m_text);
}
