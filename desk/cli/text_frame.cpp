#include "desk/cli/text_frame.h"

#include "desk/cli/render_drawing.h"
#include "desk/document/drawing_file.h"
#include "desk/document/font_report.h"
#include "mtext/decode.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_layout.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbMText.h"

namespace {

/// Draws an entity as a text that was laid out before, whatever the entity itself says. A text of some length
/// is thus laid out once for all who measure and draw it.
class StandingLayout : public mtext::mtext_layout {
 public:
  explicit StandingLayout(mtext::geom_multitext text)
      : m_text(std::make_shared<mtext::geom_multitext>(std::move(text))) {}

 protected:
  std::shared_ptr<const mtext::geom_multitext> laid_out(const OdDbMText&) const override { return m_text; }

 private:
  std::shared_ptr<const mtext::geom_multitext> m_text;
};

void takeFont(mtext::format::string& target, const mtext::format::string& source) {
  target.font = source.font;
  target.is_shx = source.is_shx;
  target.charset = source.charset;
  target.pitch = source.pitch;
}

}  // namespace

TextFrame::TextFrame(FrameStyle style) : m_drawing(newDrawing()), m_style(std::move(style)) {
  if (m_style.format.font.empty())
    takeFont(m_style.format, mtext::style_format(m_drawing->getTEXTSTYLE(), m_drawing.get()));
}

mtext::geom_multitext TextFrame::layOut(const std::u16string& text) const {
  const mtext::mtext_size_finder finder{m_drawing};
  return mtext::decode(text, m_style.format, m_style.frame, finder, {});
}

void TextFrame::draw(const std::u16string& text, const std::string& name,
                     const std::filesystem::path& picture, QSize size) {
  m_drawing->setTextLayout(std::make_shared<StandingLayout>(layOut(text)));
  const OdDbMTextPtr entity = odNew<OdDbMText>();
  entity->setDatabaseDefaults(m_drawing.get());
  odCastOrThrow<OdDbBlockTableRecord>(m_drawing->getModelSpaceId().openObject(OdDb::kForWrite))
      ->appendOdDbEntity(entity.get());
  renderDrawing(*m_drawing, name, {.drawing = {}, .output = picture, .size = size});
}

std::vector<std::u16string> TextFrame::lackingFonts() const { return substitutedFonts(*m_drawing); }
