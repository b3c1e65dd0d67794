#include "od/fonts/OdShxFont.h"

#include <algorithm>
#include <array>
#include <optional>

#include "od/base/OdError.h"
#include "od/base/unicode.h"
#include "od/fonts/OdCharMapper.h"
#include "od/fonts/ShxInterpreter.h"
#include "od/fonts/glyph_geometry.h"

namespace {

constexpr unsigned kLineFeed = 10;
constexpr unsigned kVerticalKey = 0x10000;
/// An ideograph that every simplified Chinese big font has and that fills the character box.
constexpr unsigned kMeasuredIdeograph = 0xB9FA;

/// A sign of measuring, which the kinds of fonts keep under different numbers.
struct Symbol {
  unsigned unicode, otherUnicode, inNewShapes, inOldShapes;
};
constexpr std::array<Symbol, 3> kSymbols{
    {{0xB0, 0, 256, 127}, {0xB1, 0, 257, 128}, {0x2205, 0x2300, 258, 129}}};

std::optional<Symbol> symbolOf(char32_t character) {
  for (const Symbol& symbol : kSymbols) {
    if (character == symbol.unicode || character == symbol.otherUnicode) return symbol;
  }
  return std::nullopt;
}

}  // namespace

OdShxFont::OdShxFont(ShxFile file, std::u16string name, int codePage, std::shared_ptr<const OdFont> primary)
    : m_file(std::move(file)), m_name(std::move(name)), m_codePage(codePage), m_primary(std::move(primary)) {
  if (!m_file.isTextFont()) {
    throw OdError(eInvalidFile, odToUtf8(m_name) + " holds symbols and is not a text font");
  }
  m_height = m_file.above() > 0 ? m_file.above() : measuredHeight();
  ShxInterpreter feed(m_file, 1);
  feed.run(kLineFeed, false);
  m_pitch = feed.penEnd().y < 0 ? -feed.penEnd().y : m_height * 5 / 3;
}

/// A few big fonts say 0 for their height and draw their characters scaled.
double OdShxFont::measuredHeight() const {
  for (unsigned number : {kMeasuredIdeograph, unsigned{'H'}}) {
    double height = odGlyphBox(ShxInterpreter(m_file, 1).run(number, false)).height();
    if (height > 0) return height;
  }
  return std::max(m_file.below(), 1);
}

const OdFontGlyph* OdShxFont::glyph(char32_t character, bool vertical) const {
  vertical = vertical && hasVerticalMode();
  unsigned number = m_file.isBigfont() ? numberInBigfont(character) : numberOf(character);
  bool isSpace = character == U' ' && !m_file.isBigfont();
  if (number == 0 && !isSpace) return nullptr;
  unsigned key = number | (vertical ? kVerticalKey : 0);
  auto found = m_glyphs.find(key);
  if (found == m_glyphs.end()) {
    found = m_glyphs.emplace(key, number ? run(number, vertical) : spaceOfOthers(vertical)).first;
  }
  return &found->second;
}

unsigned OdShxFont::numberOf(char32_t character) const {
  if (character < 0x20) return 0;
  bool isUnifont = m_file.kind() == ShxFile::kUnifont;
  if (auto symbol = symbolOf(character)) {
    if (isUnifont) return firstPresent({symbol->unicode, symbol->otherUnicode});
    if (unsigned number = firstPresent({symbol->inNewShapes, symbol->inOldShapes})) return number;
  }
  if (isUnifont || character < 0x80) return firstPresent({character});
  std::string bytes = OdCharMapper::toBytes(character, m_codePage);
  return bytes.size() == 1 ? firstPresent({static_cast<unsigned char>(bytes[0])}) : 0;
}

unsigned OdShxFont::numberInBigfont(char32_t character) const {
  if (character < 0x80) return 0;
  std::string bytes = OdCharMapper::toBytes(character, m_codePage);
  if (bytes.size() != 2) return 0;
  unsigned lead = static_cast<unsigned char>(bytes[0]);
  unsigned trail = static_cast<unsigned char>(bytes[1]);
  return m_file.isLeadByte(lead) ? firstPresent({lead << 8 | trail}) : 0;
}

unsigned OdShxFont::firstPresent(std::initializer_list<unsigned> numbers) const {
  for (unsigned number : numbers) {
    if (number != 0 && m_file.hasShape(number)) return number;
  }
  return 0;
}

OdFontGlyph OdShxFont::run(unsigned number, bool vertical) const {
  ShxInterpreter interpreter(m_file, m_height * kGlyphTolerance,
                             [this](unsigned wanted) { return borrowed(wanted); });
  return interpreter.run(number, vertical);
}

OdFontGlyph OdShxFont::spaceOfOthers(bool vertical) const {
  OdFontGlyph space;
  space.advance = m_file.hasShape('A') ? run('A', vertical).advance
                  : vertical           ? OdGeVector2d{0, -m_pitch}
                                       : OdGeVector2d{m_height, 0};
  return space;
}

const OdFontGlyph* OdShxFont::borrowed(unsigned number) const {
  const OdFontGlyph* glyph = m_primary ? m_primary->glyph(number) : nullptr;
  if (!glyph) return nullptr;
  auto [place, isNew] = m_borrowed.try_emplace(number);
  if (isNew) place->second = odScaledGlyph(*glyph, m_height / m_primary->nominalHeight());
  return &place->second;
}
