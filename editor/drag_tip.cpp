#include "editor/drag_tip.h"

#include <algorithm>
#include <cmath>

#include "host/translate.h"
#include "od/evaluate/format_number.h"

namespace editing {

namespace {

constexpr int kMostDecimals = 12;

/// With a point in every language, and no zeros at the end of the decimals.
std::u16string written(double number, int decimals) {
  constexpr int kNoTrailingZeros = 8;
  std::u16string text = odFormatFixed(number, decimals);
  odSuppressZeros(text, kNoTrailingZeros);
  return text;
}

/// How many decimals a thousandth of a length has.
int decimals_of(double length) {
  return static_cast<int>(std::clamp(3 - std::floor(std::log10(length)), 0.0, double{kMostDecimals}));
}

}  // namespace

std::u16string drag_tip(std::span<const mtext::drag_measure> measures, double text_height) {
  std::u16string tip;
  for (const mtext::drag_measure& each : measures) {
    if (!tip.empty()) tip += u'\n';
    tip += Supp_Translate(each.name) + u": " + written(each.length, decimals_of(text_height)) + u" (" +
           written(each.length / text_height, 2) + u" " + Supp_Translate(u"text heights") + u")";
  }
  return tip;
}

}  // namespace editing
