#include <cmath>

#include "mtext/format_string.h"

namespace mtext::format {

namespace {

using boost::logic::indeterminate;
using boost::logic::tribool;

template <typename Value>
void keep_if_equal(std::optional<Value>& common, const std::optional<Value>& other) {
  if (!other || !common || !(*common == *other)) common.reset();
}

/// A comparison with something indeterminate is indeterminate, and so no agreement.
void keep_if_equal(tribool& common, tribool other) {
  tribool same = common == other;
  if (!same || indeterminate(same)) common = indeterminate;
}

bool same_height(const string_partial& a, const string_partial& b) {
  return a.height && b.height && a.height->second == b.height->second &&
         std::abs(a.height->first - b.height->first) < tolerance;
}

}  // namespace

string_partial intersection(const string_partial& a, const string_partial& b) {
  string_partial common = a;
  if (!same_height(a, b)) common.height.reset();
  keep_if_equal(common.font, b.font);
  keep_if_equal(common.pitch, b.pitch);
  keep_if_equal(common.charset, b.charset);
  keep_if_equal(common.is_shx, b.is_shx);
  keep_if_equal(common.bold, b.bold);
  keep_if_equal(common.italic, b.italic);
  keep_if_equal(common.underline, b.underline);
  keep_if_equal(common.overline, b.overline);
  keep_if_equal(common.color, b.color);
  keep_if_equal(common.width_factor, b.width_factor);
  keep_if_equal(common.oblique, b.oblique);
  keep_if_equal(common.tracking, b.tracking);
  keep_if_equal(common.align, b.align);
  return common;
}

}  // namespace mtext::format
