// Reads any bytes as a font. The first byte chooses the kind of font, the rest is the file.

#include <cmath>
#include <memory>

#include "fuzz/byte_source.h"
#include "fuzz/require.h"
#include "od/base/OdError.h"
#include "od/fonts/OdJhfFont.h"
#include "od/fonts/OdLffFont.h"
#include "od/fonts/OdShxFont.h"
#include "od/fonts/ShxInterpreter.h"
#include "od/fonts/glyph_geometry.h"

namespace {

using fuzz::require;

bool isFinite(const OdGePoint2d& p) { return std::isfinite(p.x) && std::isfinite(p.y); }

void requireGlyph(const OdFontGlyph& glyph) {
  require(std::isfinite(glyph.advance.x) && std::isfinite(glyph.advance.y), "an advance is a number");
  std::size_t points = 0;
  for (const auto& contour : glyph.contours) {
    require(!contour.empty(), "a contour has a point");
    for (const OdGePoint2d& p : contour) require(isFinite(p), "a point has numbers");
    points += contour.size();
  }
  const OdGlyphBox box = odGlyphBox(glyph);
  require(box.isEmpty == (points == 0), "a glyph with a point has a box");
  require(!(box.width() < 0) && !(box.height() < 0), "a box is the right way round");
}

void requireFont(const OdFont& font) {
  require(font.isShapeFont(), "these are fonts of strokes");
  require(font.nominalHeight() > 0 && std::isfinite(font.nominalHeight()), "capitals have a height");
  require(std::isfinite(font.linePitch()) && std::isfinite(font.descender()), "lines have a distance");
  for (char32_t character : U" AB?gy09.\u00e4\u00b0\u4e9c\u20ac\ufffd\U0001F600") {
    for (const bool vertical : {false, true}) {
      const OdFontGlyph* glyph = font.glyph(character, vertical);
      require(glyph == font.glyph(character, vertical), "a glyph is worked out once");
      if (glyph) requireGlyph(*glyph);
    }
  }
  if (const OdFontGlyph* missing = font.missingGlyph()) requireGlyph(*missing);
}

std::size_t pointsOf(const OdFontGlyph& glyph) {
  std::size_t points = 0;
  for (const auto& contour : glyph.contours) points += contour.size();
  return points;
}

/// Runs the first shapes of the file, whether a character names them or not.
void requireShapes(const ShxFile& file) {
  unsigned before = 0;
  std::size_t run = 0;
  for (unsigned number : file.numbers()) {
    require(run == 0 || number > before, "shape numbers ascend");
    require(file.hasShape(number), "a numbered shape is there");
    before = number;
    if (++run > 8) continue;
    const OdFontGlyph glyph = ShxInterpreter(file, 0.01, {}).run(number, number % 2 == 1);
    requireGlyph(glyph);
    // An arc that began below the limit may end above it.
    require(pointsOf(glyph) < ShxInterpreter::kMaxPoints + 10000, "a shape ends");
  }
}

std::unique_ptr<OdFont> readShx(std::string bytes, int codePage) {
  ShxFile file = ShxFile::parse(std::move(bytes), "font.shx");
  requireShapes(file);
  return std::make_unique<OdShxFont>(std::move(file), u"font.shx", codePage);
}

std::unique_ptr<OdFont> readFont(std::uint8_t kind, std::string bytes) {
  switch (kind % 4) {
    case 0:
      return readShx(std::move(bytes), 1252);
    case 1:
      return readShx(std::move(bytes), 932);
    case 2:
      return std::make_unique<OdLffFont>(std::move(bytes), u"font.lff");
    default:
      return std::make_unique<OdJhfFont>(bytes, u"font.jhf");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::byte_source input(data, size);
  try {
    const std::uint8_t kind = input.byte();
    requireFont(*readFont(kind, std::string(input.rest())));
  } catch (const OdError& refused) {
    require(std::string_view(refused.what()).starts_with("font."), "a refusal names the file");
  }
  return 0;
}
