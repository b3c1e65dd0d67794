#include "od/gi/OdGiTextStyle.h"

#include "od/fonts/OdFontLibrary.h"

void OdGiTextStyle::setFont(const OdString& typeface, bool bold, bool italic, int charset,
                            int pitchAndFamily) {
  m_typeface = typeface;
  m_descriptor = static_cast<std::uint32_t>(pitchAndFamily & 0xFF) |
                 static_cast<std::uint32_t>(charset & 0xFF) << 8 | (italic ? kDescriptorItalic : 0) |
                 (bold ? kDescriptorBold : 0);
  m_font.reset();
}

void OdGiTextStyle::setFileName(const OdString& name) {
  m_fileName = name;
  m_typeface = {};
  m_font.reset();
}

void OdGiTextStyle::setBigFontFileName(const OdString& name) {
  m_bigFontFileName = name;
  m_font.reset();
}

void OdGiTextStyle::setCodePage(int codePage) {
  m_codePage = codePage;
  m_font.reset();
}

void OdGiTextStyle::setFontDescriptor(std::uint32_t word) {
  m_descriptor = word;
  m_font.reset();
}

void OdGiTextStyle::loadStyleRec(const OdGiFontContext& context) {
  m_font = context.fontLibrary().find({.typeface = m_typeface,
                                       .file = m_fileName,
                                       .bigFontFile = m_bigFontFileName,
                                       .bold = isBold(),
                                       .italic = isItalic(),
                                       .charset = charset(),
                                       .codePage = m_codePage});
}
