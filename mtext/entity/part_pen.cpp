#include "mtext/entity/part_pen.h"

#include "mtext/entity/text_style.h"

namespace mtext {

void part_pen::text(const OdGePoint2d& at, std::u16string_view text, const format::string& format) {
  if (!m_format || !(*m_format == format) || m_format->height != format.height) {
    m_style = text_style(format, m_fonts);
    m_style.setObliquingAngle(format.oblique);
    m_style.setFlags(m_style.flags() & ~OdGiTextStyle::kShapeFile);
    m_format = format;
  }
  m_geometry.text({at.x, at.y, 0}, OdGeVector3d::kZAxis, OdGeVector3d::kXAxis, text, /*raw=*/true, m_style);
}

}  // namespace mtext
