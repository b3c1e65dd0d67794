#include "ui/dialogs/window/case_window.h"

#include <gtest/gtest.h>

#include <QRadioButton>

#include "tests/ui/dialogs/window/shown_window.h"

namespace {

/// The number of the checked control; 0 without one.
int checked(const CaseWindow& window) {
  for (const auto* radio : window.findChildren<QRadioButton*>())
    if (radio->isChecked()) return radio->objectName().toInt();
  return 0;
}

}  // namespace

TEST(CaseWindow, the_control_of_the_mode_is_checked) {
  const DialogHost host;
  constexpr int kControls[] = {1031, 1033, 1035, 1034, 1032};
  for (int mode = 0; mode < 5; ++mode) {
    CCaseDlg dialog(mode);
    const CaseWindow window(dialog, nullptr);
    EXPECT_EQ(checked(window), kControls[mode]);
  }
}

TEST(CaseWindow, ok_takes_the_checked_mode_and_cancel_does_not) {
  const DialogHost host;
  for (const bool ok : {true, false}) {
    CCaseDlg dialog(0);
    CaseWindow window(dialog, nullptr);
    window.findChild<QRadioButton*>("1034")->setChecked(true);
    ok ? window.accept() : window.reject();
    EXPECT_EQ(dialog.mode(), ok ? 3 : 0);
  }
}

TEST(CaseWindow, its_labels_show_what_the_modes_do) {
  const DialogHost host;
  CCaseDlg dialog(0);
  const CaseWindow window(dialog, nullptr);
  EXPECT_EQ(window.windowTitle(), "Case");
  QStringList labels;
  for (const auto* radio : window.findChildren<QRadioButton*>()) labels += radio->text().remove('&');
  EXPECT_EQ(labels, QStringList({"Sentence case", "lower case", "UPPER CASE", "Title Case", "tOGGLE CASE"}));
}
