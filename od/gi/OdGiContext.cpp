#include "od/gi/OdGiContext.h"

#include <string>

#include "od/ge/OdGeExtents3d.h"
#include "od/gi/OdGiTextLine.h"

OdCmEntityColor OdGiContext::shownColor(const OdCmEntityColor& color, const OdString& layer) const {
  if (color.isByLayer()) return layerColor(layer);
  bool isForeground = color.isByBlock() || color.colorMethod() == OdCmEntityColor::kForeground;
  return isForeground ? OdCmEntityColor::fromIndex(OdCmEntityColor::kACIForeground) : color;
}

OdCmEntityColor OdGiDefaultContext::layerColor(const OdString&) const {
  return OdCmEntityColor::fromIndex(OdCmEntityColor::kACIForeground);
}

bool OdGiDefaultContext::layerIsVisible(const OdString&) const { return true; }

void OdGiDefaultContext::textExtentsBox(const OdGiTextStyle& style, const char16_t* text, int length,
                                        unsigned flags, OdGePoint3d& minimum, OdGePoint3d& maximum,
                                        OdGePoint3d& end) const {
  std::u16string_view whole =
      length < 0 ? std::u16string_view(text) : std::u16string_view(text, static_cast<std::size_t>(length));
  OdGiTextLine line = OdGiTextLine::place(whole, (flags & kOdGiRawText) != 0, style);
  OdGeExtents3d box;
  auto add = [&box](const OdGePoint2d& p) { box.addPoint({p.x, p.y, 0}); };
  for (const OdGiTextLine::Glyph& glyph : line.glyphs) {
    for (const auto& contour : glyph.contours) {
      for (const OdGePoint2d& p : contour) add(p);
    }
  }
  if (flags & kOdGiIncludeScores) {
    for (const OdGiTextLine::Score& score : line.scores) {
      add(score.start);
      add(score.end);
    }
  }
  minimum = box.isValidExtents() ? box.minPoint() : OdGePoint3d{};
  maximum = box.isValidExtents() ? box.maxPoint() : OdGePoint3d{};
  end = {line.end.x, line.end.y, 0};
}
