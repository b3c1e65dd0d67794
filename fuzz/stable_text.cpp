#include "fuzz/stable_text.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>

#include "mtext/parse.h"

namespace fuzz {
namespace {

using namespace mtext;

constexpr double degree = 0.017453292519943295;

/// The number that a code `\W` with `value` in five digits reads as.
double read_back(double value) {
  char digits[32];
  std::snprintf(digits, sizeof digits, "\\W%.5g;x", value);
  multitext read;
  parse(std::u16string(digits, digits + std::strlen(digits)), format::string(), read, {});
  return read.parts.empty() ? std::nan("") : read.parts[0].format.width_factor;
}

/// Numbers that are written in full, and differ from each other by more than counts as the same.
bool is_stable(double value, double unit = 1) {
  const double written = value / unit;
  if (!(std::abs(written) < 10000) || (std::signbit(written) && written == 0)) return false;
  if (std::abs(written * 100 - std::round(written * 100)) > 1e-6) return false;
  return read_back(written) * unit == value;
}

/// Ratios of heights are written, so all heights are powers of two apart from the base height.
bool is_stable_height(double height, double base_height) {
  const double ratio = height / base_height;
  return ratio == 0.25 || ratio == 0.5 || ratio == 1 || ratio == 2 || ratio == 4;
}

bool is_stable(const format::string& each, double base_height) {
  return !each.is_shx && is_stable_height(each.height, base_height) && is_stable(each.width_factor) &&
         is_stable(each.oblique, degree) && is_stable(each.tracking);
}

bool is_stable(const format::paragraph& each) {
  const auto stable_tab = [](const format::tab_stop& stop) { return is_stable(stop.position); };
  return is_stable(each.indent) && is_stable(each.left) && is_stable(each.right) && is_stable(each.before) &&
         is_stable(each.after) && is_stable(each.spacing.value) &&
         std::all_of(each.tabs.begin(), each.tabs.end(), stable_tab);
}

bool is_sorted(const std::vector<format::tab_stop>& tabs) {
  return std::is_sorted(tabs.begin(), tabs.end(),
                        [](const auto& a, const auto& b) { return a.position < b.position; });
}

bool is_stable(const part& each) {
  switch (each.type()) {
    case part_string:
      return static_cast<const mtext::string&>(each).text.find_first_of(std::u16string_view(u"\0\t\n%", 4)) ==
             std::u16string::npos;
    case part_stack:
      return false;
    case part_new_paragraph:
      return is_stable(static_cast<const new_paragraph&>(each).paragraph);
    default:
      return true;
  }
}

}  // namespace

bool is_stable(const geom_multitext& text, const format::string& base) {
  if (!is_stable(text.format) || !is_sorted(text.format.tabs)) return false;
  return std::all_of(text.parts.begin(), text.parts.end(), [&](const geom_part& each) {
    // A line end forgets its format and takes the default one, whose font no code can name.
    if (each.type() == part_new_line && !base.font.empty()) return false;
    return is_stable(each.part().format, text.info.height) && is_stable(each.part());
  });
}

}  // namespace fuzz
