#include "mtext/entity/dtext_size_finder.h"

#include <cmath>

#include "od/db/OdDbDatabase.h"

namespace mtext {

dtext_size_finder::dtext_size_finder(OdSmartPtr<OdDbDatabase> database, OdDb::TextVertMode vertical_mode,
                                     std::uint32_t vertical_attachment)
    : mtext_size_finder(std::move(database)),
      m_vertical_mode(vertical_mode),
      m_vertical_attachment(vertical_attachment) {}

string_metrics dtext_size_finder::measure(const format::string& format, std::u16string_view text) const {
  string_metrics size = mtext_size_finder::measure(format, text);
  size.ink_bottom = m_vertical_attachment == attached_middle ? 0.0 : size.below;
  const double halves = m_vertical_mode == OdDb::kTextVertMid ? 1 : m_vertical_mode == OdDb::kTextTop ? 2 : 0;
  const double shift = std::tan(format.oblique) * (halves * 0.5 * format.height);
  size.left_bearing += shift;
  size.right_bearing -= shift;
  return size;
}

std::uint32_t vertical_attachment(OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical) {
  if (vertical == OdDb::kTextBottom) return dtext_size_finder::attached_bottom;
  if (vertical == OdDb::kTextVertMid || horizontal == OdDb::kTextMid)
    return dtext_size_finder::attached_middle;
  return dtext_size_finder::attached_top;
}

}  // namespace mtext
