#include "editor/editable.h"
#include "mtext/marks.h"

using mtext::marks::field;

const field* ExMTextEditable::fieldAt(const OdGePoint2d& at) const {
  const std::size_t position = m_text.position_at(at.x, at.y).at;
  for (const auto& mark : m_text.marks) {
    const auto* found = dynamic_cast<const field*>(&mark);
    if (found && found->begin <= position && position < found->end) return found;
  }
  return nullptr;
}

void ExMTextEditable::convertFieldToText(const OdGePoint2d& at) {
  while (const field* held = fieldAt(at))
    m_text.marks.erase_if([held](const mtext::marks::mark& mark) { return &mark == held; });
  m_layout_dirty = true;
}
