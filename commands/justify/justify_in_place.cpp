#include "commands/justify/justify_in_place.h"

#include <array>

namespace {

using enum OdDb::TextHorzMode;
using enum OdDb::TextVertMode;
using enum OdDb::AttachmentPoint;

constexpr std::array<justify_row, 13> kJustifications{{
    {kTextLeft, kTextBase, kTopLeft},
    {kTextCenter, kTextBase, kTopCenter},
    {kTextCenter, kTextBase, kMiddleCenter},
    {kTextRight, kTextBase, kTopRight},
    {kTextLeft, kTextTop, kTopLeft},
    {kTextCenter, kTextTop, kTopCenter},
    {kTextRight, kTextTop, kTopRight},
    {kTextLeft, kTextVertMid, kMiddleLeft},
    {kTextCenter, kTextVertMid, kMiddleCenter},
    {kTextRight, kTextVertMid, kMiddleRight},
    {kTextLeft, kTextBottom, kBottomLeft},
    {kTextCenter, kTextBottom, kBottomCenter},
    {kTextRight, kTextBottom, kBottomRight},
}};

/// The top left corner of a text whose direction is the x axis of the world.
OdGePoint3d corner_of(const OdDbMText& text) {
  const int place = text.attachment() - kTopLeft;
  const int row = place / 3, column = place % 3;
  return text.location() +
         OdGeVector3d(-0.5 * column * text.actualWidth(), 0.5 * row * text.actualHeight(), 0);
}

}  // namespace

const justify_row& justification_at(int index) { return kJustifications.at(static_cast<std::size_t>(index)); }

void justify_in_place(OdDbText& text, const justify_row& to) {
  // Files hold positions that nobody worked out: the alignment point is what counts.
  text.adjustAlignment();
  const OdGePoint3d before = text.position();
  text.setVerticalMode(to.vertical);
  text.setHorizontalMode(to.horizontal);
  text.adjustAlignment();
  text.setAlignmentPoint(text.alignmentPoint() + (before - text.position()));
  // The position follows the point that was just moved; a text without one has kept its own.
  text.adjustAlignment();
}

void justify_in_place(OdDbMText& text, const justify_row& to) {
  const OdGePoint3d before = corner_of(text);
  text.setAttachment(to.attachment);
  text.setLocation(text.location() + (before - corner_of(text)));
}
