#include "ui/dialogs/CParagraphDlg.h"

#include "host/events.h"
#include "ui/controls/number_text.h"
#include "ui/dialogs/dialog_display.h"
#include "ui/resources/message_format.h"

namespace {

constexpr std::uint32_t kMultiple = 3;
constexpr int kOutOfRange = 1098;
constexpr double kLowest = 0.25;
constexpr double kHighest = 4.0;
/// As many digits as the edit shows.
constexpr int kDigits = 6;

bool is_length(std::uint32_t style) { return style == 1 || style == 2; }

}  // namespace

CParagraphDlg::CParagraphDlg(bool has_spacing, const mtext::format::line_spacing& spacing, double text_height)
    : m_text_height(text_height),
      m_enabled(!has_spacing || spacing.style != 0),
      m_style(has_spacing ? spacing.style : kMultiple),
      m_value(has_spacing ? spacing.value : 1.0) {
  showValue();
}

double CParagraphDlg::unit() const { return is_length(m_style) ? m_text_height : 1.0; }

void CParagraphDlg::showValue() { m_value_text = controls::short_text(m_value * unit(), kDigits); }

CParagraphDlg::limits CParagraphDlg::valueLimits() const { return {kLowest * unit(), kHighest * unit()}; }

void CParagraphDlg::setEnabled(bool enabled) {
  m_enabled = enabled;
  if (enabled && m_style == 0) m_style = kMultiple;
  showValue();
}

void CParagraphDlg::setStyle(std::uint32_t style) {
  const double old_unit = unit();
  const bool other_unit = is_length(m_style) != is_length(style);
  m_style = style;
  const auto number = controls::whole_number(m_value_text);
  if (!other_unit || !number || m_value_text.empty()) return;
  m_value_text = controls::short_text(*number / old_unit * unit(), kDigits);
}

bool CParagraphDlg::leaveValue(std::u16string_view text) {
  m_value_text = text;
  if (!m_enabled || text.empty()) return true;
  const auto number = controls::whole_number(text);
  const auto [low, high] = valueLimits();
  if (!number || *number < low || *number > high) {
    hostAlert(resources::format_string(kOutOfRange, {low, high}));
    return false;
  }
  m_value = *number / unit();
  showValue();
  return true;
}

bool CParagraphDlg::doModal() {
  DialogDisplay* const display = dialogs::display();
  return display && display->show(*this);
}

mtext::format::line_spacing CParagraphDlg::result() const {
  if (!m_enabled) return {.style = 0, .value = 1.0};
  return {.style = m_style, .value = m_value};
}
