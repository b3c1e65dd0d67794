#include <cmath>

#include "mtext/format_paragraph.h"
#include "mtext/format_string.h"

namespace mtext::format {

namespace {

/// A length of `p` as a multiple of the text height.
double scaled(const paragraph& p, double length, double base) { return p.relative ? length : length / base; }

struct length_pair {
  const paragraph& a;
  const paragraph& b;
  double base;

  void set_if_apart(std::optional<double>& change, double paragraph::*length) const {
    double before = scaled(a, a.*length, base);
    double after = scaled(b, b.*length, base);
    if (std::abs(before - after) >= tolerance) change = after;
  }
};

}  // namespace

paragraph_partial merge(double base, const paragraph& a, const paragraph& b) {
  paragraph_partial change;
  length_pair lengths{a, b, base};
  lengths.set_if_apart(change.indent, &paragraph::indent);
  lengths.set_if_apart(change.left, &paragraph::left);
  lengths.set_if_apart(change.right, &paragraph::right);
  lengths.set_if_apart(change.before, &paragraph::before);
  lengths.set_if_apart(change.after, &paragraph::after);
  if (a.alignment != b.alignment) change.alignment = b.alignment;
  if (a.spacing != b.spacing) change.spacing = b.spacing;
  if (!a.tabs.is_shared_with(b.tabs) && !equal_tabs(a.tabs, b.tabs)) change.tabs = b.tabs;
  return change;
}

}  // namespace mtext::format
