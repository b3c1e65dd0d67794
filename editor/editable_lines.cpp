#include "editor/editable.h"
#include "editor/line_ends.h"
#include "mtext/flatten.h"
#include "mtext/serialize.h"

std::u16string editing::without_line_ends(std::u16string text) {
  while (!text.empty() && (text.back() == u'\n' || text.back() == u'\r')) text.pop_back();
  return text;
}

std::u16string ExMTextEditable::lineText(std::size_t index) const {
  return editing::without_line_ends(
      mtext::serialize_raw(mtext::flatten(m_text.line(index)), /*tilde_spaces=*/false));
}

OdGePoint3d ExMTextEditable::linePosition(std::size_t index) const {
  if (index >= m_text.lines.size()) throw OdError_InvalidIndex();
  const auto& line = m_text.lines[index];
  return m_frame.text_to_world() * OdGePoint3d{line.x, line.y, 0};
}
