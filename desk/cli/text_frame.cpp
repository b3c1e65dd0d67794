#include "desk/cli/text_frame.h"

#include "desk/cli/render_drawing.h"
#include "desk/document/drawing_file.h"
#include "desk/document/font_report.h"
#include "mtext/decode.h"
#include "mtext/entity/entity_format.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/base/unicode.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbTextStyleTableRecord.h"

namespace {

/// Gives the font to the style that the text is drawn with.
void setFont(OdDbDatabase& drawing, const mtext::format::string& base) {
  if (base.font.empty()) return;
  const auto style =
      odCastOrThrow<OdDbTextStyleTableRecord>(drawing.getTEXTSTYLE().openObject(OdDb::kForWrite));
  if (base.is_shx) {
    style->setFont(u"", false, false, 0, 0);
    style->setFileName(base.font);
  } else {
    style->setFont(base.font, false, false, 0, 0);
  }
}

}  // namespace

mtext::format::string baseFormat(const MTextOptions& options) {
  mtext::format::string base{.height = options.height, .height_kind = 0, .font = odToUtf16(options.font)};
  base.is_shx = odLowerAscii(base.font).ends_with(u".shx");
  return base;
}

TextFrame::TextFrame(const MTextOptions& options) : m_drawing(newDrawing()), m_text(odNew<OdDbMText>()) {
  setFont(*m_drawing, baseFormat(options));
  m_text->setDatabaseDefaults(m_drawing.get());
  m_text->setTextStyle(m_drawing->getTEXTSTYLE());
  m_text->setTextHeight(options.height);
  m_text->setWidth(options.width);
  odCastOrThrow<OdDbBlockTableRecord>(m_drawing->getModelSpaceId().openObject(OdDb::kForWrite))
      ->appendOdDbEntity(m_text.get());
}

mtext::geom_multitext TextFrame::layOut(const std::u16string& text) const {
  const mtext::mtext_size_finder finder{m_drawing};
  return mtext::decode(text, mtext::drawn_mtext_format(m_text), mtext::drawn_convert_info(m_text), finder,
                       {});
}

void TextFrame::draw(const std::u16string& text, const std::string& name,
                     const std::filesystem::path& picture) {
  m_text->setContents(OdString(text));
  renderDrawing(*m_drawing, name, {.drawing = {}, .output = picture});
}

std::vector<std::u16string> TextFrame::lackingFonts() const { return substitutedFonts(*m_drawing); }
