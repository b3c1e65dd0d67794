#include "mtext/format_paragraph.h"

namespace mtext::format {

namespace {

template <typename Value>
void overwrite(Value& target, const std::optional<Value>& change) {
  if (change) target = *change;
}

template <typename Value>
void keep_if_equal(std::optional<Value>& common, const std::optional<Value>& other) {
  if (common != other) common.reset();
}

}  // namespace

paragraph_partial to_partial(const paragraph& p) {
  return {.indent = p.indent,
          .left = p.left,
          .right = p.right,
          .before = p.before,
          .after = p.after,
          .alignment = p.alignment,
          .spacing = p.spacing,
          .tabs = p.tabs};
}

void apply_to(paragraph& p, const paragraph_partial& q) {
  overwrite(p.indent, q.indent);
  overwrite(p.left, q.left);
  overwrite(p.right, q.right);
  overwrite(p.before, q.before);
  overwrite(p.after, q.after);
  overwrite(p.alignment, q.alignment);
  overwrite(p.spacing, q.spacing);
}

void apply_to(paragraph_partial& a, const paragraph_partial& b) {
  a.indent = b.indent;
  a.left = b.left;
  a.right = b.right;
  a.before = b.before;
  a.after = b.after;
  a.alignment = b.alignment;
  a.spacing = b.spacing;
}

paragraph_partial intersection(const paragraph_partial& a, const paragraph_partial& b) {
  paragraph_partial common = a;
  keep_if_equal(common.indent, b.indent);
  keep_if_equal(common.left, b.left);
  keep_if_equal(common.right, b.right);
  keep_if_equal(common.before, b.before);
  keep_if_equal(common.after, b.after);
  keep_if_equal(common.alignment, b.alignment);
  keep_if_equal(common.spacing, b.spacing);
  // No intersection, on purpose: a selection's ruler shows the stops of its last paragraph.
  common.tabs = b.tabs;
  return common;
}

}  // namespace mtext::format
