#include "editor/editable.h"
#include "mtext/flatten.h"
#include "mtext/serialize.h"

std::u16string ExMTextEditable::lineText(std::size_t index) const {
  std::u16string plain = mtext::serialize_raw(mtext::flatten(m_text.line(index)), /*tilde_spaces=*/false);
  while (!plain.empty() && (plain.back() == u'\n' || plain.back() == u'\r')) plain.pop_back();
  return plain;
}

OdGePoint3d ExMTextEditable::linePosition(std::size_t index) const {
  if (index >= m_text.lines.size()) throw OdError_InvalidIndex();
  const auto& line = m_text.lines[index];
  return m_frame.text_to_world() * OdGePoint3d{line.x, line.y, 0};
}
