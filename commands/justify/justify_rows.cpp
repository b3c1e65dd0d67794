#include "commands/justify/justify_rows.h"

#include <algorithm>
#include <array>

namespace {

using enum OdDb::TextHorzMode;
using enum OdDb::TextVertMode;
using enum OdDb::AttachmentPoint;

constexpr std::array<justify_row, 15> kRows{{
    {kTextLeft, kTextBase, kTopLeft},
    {kTextAlign, kTextBase, kTopLeft},
    {kTextFit, kTextBase, kTopLeft},
    {kTextCenter, kTextBase, kTopCenter},
    {kTextMid, kTextBase, kMiddleCenter},
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

/// Rows of three stand one below the other from the top down, behind those on the baseline.
constexpr int kColumns = 3;
constexpr int kRowsInAll = 5;

}  // namespace

std::span<const justify_row> justify_rows() { return kRows; }

int justify_index(OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical) {
  if (vertical != kTextBase) return horizontal + kColumns * (kRowsInAll - horizontal / kColumns - vertical);
  const auto row = std::find_if(kRows.begin(), kRows.end(),
                                [=](const auto& each) { return each.horizontal == horizontal; });
  return static_cast<int>(row - kRows.begin());
}

void ApplyMTextJustify(const OdDbMTextPtr& text, OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical) {
  const auto index = static_cast<std::size_t>(justify_index(horizontal, vertical));
  text->setAttachmentMovingLocation(kRows.at(index).attachment);
}
