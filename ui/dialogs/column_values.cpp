#include "ui/dialogs/column_values.h"

#include <algorithm>

namespace dialogs {
namespace {

/// As a real number, and at least one: a text without columns is one wide.
double columns_of(const column_values& values) { return std::max(values.count, 1U); }

double greatest(const column_values& values) { return kGreatestLength * values.text_height; }

void share_total(column_values& values) {
  const double n = columns_of(values);
  values.column_width = (values.total - (n - 1) * values.gutter) / n;
  if (values.column_width >= values.text_height) return;
  values.column_width = values.text_height;
  values.gutter = n > 1 ? (values.total - n * values.text_height) / (n - 1) : 0;
  if (values.gutter >= 0) return;
  values.gutter = 0;
  values.total = n * values.text_height;
}

/// `changed` is the length that was given.
void sum_up(column_values& values, double& changed) {
  const double n = columns_of(values);
  values.total = n * values.column_width + (n - 1) * values.gutter;
  if (values.total > greatest(values)) changed = values.total = greatest(values);
}

}  // namespace

void set_count(column_values& values, std::uint32_t count) {
  values.count = count;
  share_total(values);
}

void set_total(column_values& values, double total) {
  values.total = total;
  share_total(values);
}

void set_column_width(column_values& values, double width) {
  values.column_width = width;
  sum_up(values, values.column_width);
}

void set_gutter(column_values& values, double gutter) {
  values.gutter = gutter;
  sum_up(values, values.gutter);
}

}  // namespace dialogs
