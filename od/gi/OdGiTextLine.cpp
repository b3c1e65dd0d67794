#include "od/gi/OdGiTextLine.h"

#include <cmath>
#include <optional>

#include "od/base/OdError.h"
#include "od/fonts/OdFont.h"
#include "od/gi/OdGiTextCharacter.h"
#include "od/gi/OdGiTextStyle.h"

namespace {

/// Where the lines along a text stand, in text heights above the baseline.
constexpr double kUnderline = -0.2, kOverline = 1.2, kStrike = 0.5;

/// Draws a line that goes on as long as the characters ask for it.
class ScorePen {
 public:
  explicit ScorePen(double height) : m_height(height) {}

  void step(bool on, double penX, std::vector<OdGiTextLine::Score>& scores) {
    if (on && !m_start) m_start = penX;
    if (!on && m_start) {
      if (penX != *m_start) scores.push_back({{*m_start, m_height}, {penX, m_height}});
      m_start.reset();
    }
  }

 private:
  double m_height;
  std::optional<double> m_start;
};

class Placer {
 public:
  explicit Placer(const OdGiTextStyle& style)
      : m_style(style),
        m_font(*style.font()),
        m_scale(style.textSize() / m_font.nominalHeight()),
        m_slant(std::tan(style.obliquingAngle())),
        m_vertical(style.isVertical() && m_font.hasVerticalMode()) {}

  OdGiTextLine place(const std::vector<OdGiTextCharacter>& characters) {
    for (const OdGiTextCharacter& c : characters) {
      score(c);
      add(c.character);
    }
    score({});
    m_line.end = m_pen;
    mirror();
    return std::move(m_line);
  }

 private:
  void score(const OdGiTextCharacter& c) {
    m_under.step(c.underlined, m_pen.x, m_line.scores);
    m_over.step(c.overlined, m_pen.x, m_line.scores);
    m_strike.step(c.struckThrough, m_pen.x, m_line.scores);
  }

  void add(char32_t character) {
    const OdFontGlyph* shape = m_font.glyph(character, m_vertical);
    if (!shape) return;
    if (!shape->contours.empty()) {
      OdGiTextLine::Glyph& glyph = m_line.glyphs.emplace_back();
      glyph.filled = shape->filled;
      glyph.contours = shape->contours;
      for (auto& contour : glyph.contours) {
        for (OdGePoint2d& p : contour) p = m_pen + distorted(p);
      }
    }
    OdGeVector2d advance{shape->advance.x * m_style.xScale(), shape->advance.y};
    m_pen = m_pen + advance * (m_scale * m_style.trackingPercent());
  }

  OdGeVector2d distorted(const OdGePoint2d& p) const {
    return {(p.x * m_style.xScale() + p.y * m_slant) * m_scale, p.y * m_scale};
  }

  void mirror() {
    double x = m_style.isBackward() ? -1 : 1, y = m_style.isUpsideDown() ? -1 : 1;
    if (x == 1 && y == 1) return;
    auto turn = [x, y](OdGePoint2d& p) { p = {p.x * x, p.y * y}; };
    for (OdGiTextLine::Glyph& glyph : m_line.glyphs) {
      for (auto& contour : glyph.contours) {
        for (OdGePoint2d& p : contour) turn(p);
      }
    }
    for (OdGiTextLine::Score& s : m_line.scores) {
      turn(s.start);
      turn(s.end);
    }
    turn(m_line.end);
  }

  const OdGiTextStyle& m_style;
  const OdFont& m_font;
  double m_scale, m_slant;
  bool m_vertical;
  OdGePoint2d m_pen;
  OdGiTextLine m_line;
  ScorePen m_under{kUnderline * m_style.textSize()};
  ScorePen m_over{kOverline * m_style.textSize()};
  ScorePen m_strike{kStrike * m_style.textSize()};
};

}  // namespace

OdGiTextLine OdGiTextLine::place(std::u16string_view text, bool raw, const OdGiTextStyle& style) {
  if (!style.font()) throw OdError(eInvalidInput, "The text style has no font yet");
  return Placer(style).place(odReadTextCharacters(text, raw, style.codePage()));
}
