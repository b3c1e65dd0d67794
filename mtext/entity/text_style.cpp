#include "mtext/entity/text_style.h"

#include "od/fonts/OdCharMapper.h"

namespace mtext {

namespace {

/// A style that names a shape font has no typeface to carry these; they stand in its descriptor by hand.
std::uint32_t font_descriptor(const format::string& format) {
  std::uint32_t word = (format.pitch & 0xFFU) | (format.charset & 0xFFU) << 8;
  if (format.flags & format::flag_italic) word |= OdGiTextStyle::kDescriptorItalic;
  if (format.flags & format::flag_bold) word |= OdGiTextStyle::kDescriptorBold;
  return word;
}

void set_font(OdGiTextStyle& style, const format::string& format) {
  if (format.is_shx) {
    style.setFileName(format.font.str());
    style.setFontDescriptor(font_descriptor(format));
    return;
  }
  style.setFont(format.font.str(), format.flags & format::flag_bold, format.flags & format::flag_italic,
                static_cast<int>(format.charset), static_cast<int>(format.pitch));
}

}  // namespace

OdGiTextStyle text_style(const format::string& format, const OdGiFontContext& fonts) {
  OdGiTextStyle style;
  set_font(style, format);
  style.setTextSize(format.height);
  style.setXScale(format.width_factor);
  style.setCodePage(OdCharMapper::getCodepageByCharset(static_cast<unsigned short>(format.charset)));
  style.setBigFontFileName(OdString());
  style.loadStyleRec(fonts);
  return style;
}

}  // namespace mtext
