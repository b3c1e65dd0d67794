#include "mtext/tab_stop.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace mtext::format {

namespace {

constexpr double k_relative_tolerance = 1024 * std::numeric_limits<double>::epsilon();

/// Numbers in their order; what is no number stands behind them all, so that the order is always a strict
/// one.
bool stands_before(const tab_stop& a, const tab_stop& b) {
  if (std::isnan(b.position)) return !std::isnan(a.position);
  return a.position < b.position;
}

}  // namespace

bool equal_positions(double a, double b) {
  if (!std::isfinite(a) || !std::isfinite(b)) return a == b;
  return std::abs(a - b) <= k_relative_tolerance * std::max(std::abs(a), std::abs(b));
}

bool equal_tabs(const tab_stop& a, const tab_stop& b) {
  return a.kind == b.kind && equal_positions(a.position, b.position) &&
         (a.kind != 3 || a.decimal_char == b.decimal_char);
}

bool equal_tabs(const std::vector<tab_stop>& a, const std::vector<tab_stop>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const tab_stop& left, const tab_stop& right) { return equal_tabs(left, right); });
}

void sort_tabs(std::vector<tab_stop>& tabs) { std::stable_sort(tabs.begin(), tabs.end(), stands_before); }

void clean_tabs(std::vector<tab_stop>& tabs) {
  sort_tabs(tabs);
  auto equal = [](const tab_stop& a, const tab_stop& b) { return equal_tabs(a, b); };
  tabs.erase(std::unique(tabs.begin(), tabs.end(), equal), tabs.end());
}

}  // namespace mtext::format
