#pragma once

#include <array>

/// The dialog "Case": one of five ways to change letters, by radio controls.
class CCaseDlg {
 public:
  /// A radio control: its number, the mode that it stands for, and its label.
  struct choice {
    int control;
    int mode;
    const char16_t* label;
  };
  /// In the order in which OK looks for the checked one.
  static constexpr std::array<choice, 5> kChoices{{{1031, 0, u"Sentence case"},
                                                   {1033, 1, u"lower case"},
                                                   {1035, 2, u"UPPER CASE"},
                                                   {1034, 3, u"Title Case"},
                                                   {1032, 4, u"tOGGLE CASE"}}};

  /// Checks the control of a mode, 0 to 4.
  explicit CCaseDlg(int mode) : m_mode(mode) {}

  int mode() const { return m_mode; }
  void check(const choice& chosen) { m_mode = chosen.mode; }

 private:
  int m_mode;
};
