#include <cmath>

#include "mtext/format_string.h"

namespace mtext::format {

namespace {

template <typename Value>
void set_if_changed(std::optional<Value>& change, const Value& a, const Value& b) {
  if (!(a == b)) change = b;
}

void set_if_changed(boost::logic::tribool& change, bool a, bool b) {
  if (a != b) change = b;
}

/// Deliberately more tolerant than the equality of the records.
void set_if_apart(std::optional<double>& change, double a, double b) {
  if (std::abs(a - b) >= tolerance) change = b;
}

}  // namespace

string_partial merge(const string& a, const string& b) {
  string_partial change;
  bool heights_differ = std::abs(a.height - b.height) >= tolerance || a.height_kind != b.height_kind;
  if (heights_differ) change.height = std::pair(b.height / a.height, std::uint32_t{1});
  set_if_changed(change.font, a.font, b.font);
  set_if_changed(change.pitch, a.pitch, b.pitch);
  set_if_changed(change.charset, a.charset, b.charset);
  set_if_changed(change.is_shx, a.is_shx, b.is_shx);
  set_if_changed(change.bold, a.flags & flag_bold, b.flags & flag_bold);
  set_if_changed(change.italic, a.flags & flag_italic, b.flags & flag_italic);
  set_if_changed(change.underline, a.flags & flag_underline, b.flags & flag_underline);
  set_if_changed(change.overline, a.flags & flag_overline, b.flags & flag_overline);
  set_if_changed(change.color, a.color, b.color);
  set_if_apart(change.width_factor, a.width_factor, b.width_factor);
  set_if_apart(change.oblique, a.oblique, b.oblique);
  set_if_apart(change.tracking, a.tracking, b.tracking);
  set_if_changed(change.align, a.align, b.align);
  return change;
}

}  // namespace mtext::format
