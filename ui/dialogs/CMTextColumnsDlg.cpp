#include "ui/dialogs/CMTextColumnsDlg.h"

#include "host/distance_text.h"
#include "host/events.h"
#include "host/help.h"
#include "od/base/unicode.h"
#include "ui/dialogs/dialog_display.h"
#include "ui/resources/message_format.h"

namespace {

using field = CMTextColumnsDlg::field;

constexpr int kCountOutOfRange = 1322, kLengthOutOfRange = 1323;
/// What a text that cannot be read counts as: below every limit.
constexpr double kUnreadable = -1;

/// What a field accepts, both ends included, and the message for everything else.
struct field_rule {
  double low;
  double high;
  int message;

  bool allows(double value) const { return value >= low && value <= high; }
};

field_rule rule_of(field which, double text_height) {
  if (which == field::count) return {2, 100, kCountOutOfRange};
  const bool may_be_zero = which == field::height || which == field::gutter;
  return {may_be_zero ? 0 : text_height, dialogs::kGreatestLength * text_height, kLengthOutOfRange};
}

/// The whole number that a text begins with, behind blanks; 0 if it begins with none.
double leading_integer(std::u16string_view text) {
  constexpr double too_many = 1e9;
  const std::string digits = odToUtf8(text);
  std::size_t at = std::min(digits.find_first_not_of(" \t\n\v\f\r"), digits.size());
  const bool negative = at < digits.size() && digits[at] == '-';
  if (at < digits.size() && (negative || digits[at] == '+')) ++at;
  double value = 0;
  for (; at < digits.size() && digits[at] >= '0' && digits[at] <= '9'; ++at)
    value = std::min(value * 10 + (digits[at] - '0'), too_many);
  return negative ? -value : value;
}

}  // namespace

length_text drawing_lengths() {
  return {.print = [](double length) { return hostdbRToS(length); },
          .read = [](std::u16string_view text) { return hostdbDisToF(text); }};
}

CMTextColumnsDlg::CMTextColumnsDlg(const column_values& values, length_text lengths)
    : m_values(values), m_lengths(std::move(lengths)) {}

double CMTextColumnsDlg::value(field which) const {
  switch (which) {
    case field::count:
      return m_values.count;
    case field::height:
      return m_values.height;
    case field::column_width:
      return m_values.column_width;
    case field::gutter:
      return m_values.gutter;
    default:
      return m_values.total;
  }
}

std::u16string CMTextColumnsDlg::shown(field which) const {
  if (which == field::count) return odToUtf16(std::to_string(m_values.count));
  return m_lengths.print(value(which));
}

bool CMTextColumnsDlg::isEnabled(field which) const {
  switch (which) {
    case field::height:
      return m_values.type != 2 || m_values.auto_height == 1;
    case field::column_width:
    case field::gutter:
      return m_values.type != 0;
    default:
      return m_values.type == 1;
  }
}

double CMTextColumnsDlg::read(field which, std::u16string_view text) const {
  if (which == field::count) return leading_integer(text);
  return m_lengths.read(text).value_or(kUnreadable);
}

bool CMTextColumnsDlg::leave(field which, std::u16string_view text) {
  const double typed = read(which, text);
  const field_rule rule = rule_of(which, m_values.text_height);
  if (!rule.allows(typed)) {
    hostAlert(resources::format_string(rule.message, {rule.low, rule.high}));
    return false;
  }
  // Compared as they are written: the digits that the edit does not show are no change of the user's.
  if (typed != read(which, shown(which))) take(which, typed);
  return true;
}

void CMTextColumnsDlg::take(field which, double value) {
  switch (which) {
    case field::count:
      return dialogs::set_count(m_values, static_cast<std::uint32_t>(value));
    case field::height:
      m_values.height = value;
      return;
    case field::column_width:
      return dialogs::set_column_width(m_values, value);
    case field::gutter:
      return dialogs::set_gutter(m_values, value);
    case field::total:
      return dialogs::set_total(m_values, value);
  }
}

void CMTextColumnsDlg::showHelp() const {
  if (IHelpService* help = Get_IHelpService()) help->show(help_topic);
}

bool CMTextColumnsDlg::doModal() {
  DialogDisplay* const display = dialogs::display();
  return display && display->show(*this);
}
