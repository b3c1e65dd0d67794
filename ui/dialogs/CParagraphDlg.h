#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "mtext/format_paragraph.h"

/// The line spacing of paragraphs, as a dialog.
///
/// The value is kept as a factor of the text height in all styles; the edit shows it as a length for "At
/// least" and "Exactly". A text that is refused stays in the edit.
class CParagraphDlg {
 public:
  /// What the edit accepts, both ends included.
  struct limits {
    double low;
    double high;
  };

  /// Without a spacing the dialog begins with "Multiple" of 1, switched on; `text_height` is in drawing
  /// units.
  CParagraphDlg(bool has_spacing, const mtext::format::line_spacing& spacing, double text_height);

  bool isEnabled() const { return m_enabled; }
  /// 1 "At least", 2 "Exactly", 3 "Multiple"; 0 before any was chosen.
  std::uint32_t style() const { return m_style; }
  /// What stands in the edit.
  const std::u16string& valueText() const { return m_value_text; }
  limits valueLimits() const;

  /// The check box. Switching it on where no style is chosen chooses "Multiple".
  void setEnabled(bool enabled);
  /// The list. Between "Multiple" and the others the number in the edit is converted; a text that is none
  /// stays.
  void setStyle(std::uint32_t style);
  /// The edit is left with a text in it, or OK is pressed: false when the text is refused. The user has been
  /// told then, and the edit should keep the focus.
  bool leaveValue(std::u16string_view text);

  /// Shows the dialog until it is closed; true for OK.
  bool doModal();
  /// What was chosen: style 0 and 1.0 when it is switched off.
  mtext::format::line_spacing result() const;

 private:
  /// What a value of 1 is in the edit.
  double unit() const;
  void showValue();

  double m_text_height;
  bool m_enabled;
  std::uint32_t m_style;
  double m_value;
  std::u16string m_value_text;
};

namespace dialogs {

/// The styles of line spacing in the order of the dialog's list.
inline constexpr std::uint32_t kSpacingStyles[] = {2, 1, 3};

}  // namespace dialogs
