#pragma once

#include <span>

/// What a control of the toolbar is.
enum class control_kind { button, check_button, combo, spin_edit };

/// One control of the toolbar. An icon in front of a spin edit is part of it.
struct toolbar_control {
  int id;
  control_kind kind;
  int text;                    ///< number of its tooltip, which is its accessible name too
  const char16_t* keys = u"";  ///< what else does the same, for the tooltip; the text itself may tell it too
  int icon = 0;                ///< 0 for none
  int letter_icon = 0;         ///< the icon of the English letter set; 0: it has none
};

namespace toolbar {

/// All controls. Those of the full toolbar are all shown, in this order; a compact one holds the same and
/// shows those of its layout.
std::span<const toolbar_control> control_table();

/// The row of a control. Throws `std::invalid_argument` for a number that no row has.
const toolbar_control& control_of(int id);

/// Whether a control is a button of any kind.
constexpr bool is_button(const toolbar_control& control) {
  return control.kind == control_kind::button || control.kind == control_kind::check_button;
}

/// The icon of a control in one of the two letter sets.
constexpr int icon_of(const toolbar_control& control, bool english_letters) {
  return english_letters && control.letter_icon != 0 ? control.letter_icon : control.icon;
}

}  // namespace toolbar
