#pragma once

#include <array>

/// The dialog "Case": one of five ways to change letters, by radio controls.
class CCaseDlg {
 public:
  /// A radio control: its number, the mode that it stands for, and the string that labels it.
  struct choice {
    int control;
    int mode;
    int label;
  };
  /// In the order in which OK looks for the checked one, which is that of the modes.
  static constexpr std::array<choice, 5> kChoices{
      {{1031, 0, 1341}, {1033, 1, 1342}, {1035, 2, 1343}, {1034, 3, 1344}, {1032, 4, 1345}}};

  /// Checks the control of a mode, 0 to 4.
  explicit CCaseDlg(int mode) : m_mode(mode) {}

  int mode() const { return m_mode; }
  void check(const choice& chosen) { m_mode = chosen.mode; }

  /// Shows the dialog until it is closed; true for OK.
  bool doModal();

 private:
  int m_mode;
};
