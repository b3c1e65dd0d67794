#include "ui/dialogs/window/columns_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "tests/ui/dialogs/three_columns.h"
#include "tests/ui/dialogs/window/shown_window.h"

namespace {

constexpr int kOk = 1, kCancel = 2, kHelp = 9;
constexpr int kCount = 1013, kHeight = 1014, kColumnWidth = 1015, kGutter = 1016, kTotal = 1017;
constexpr int kDynamic = 1029, kStatic = 1030, kNone = 1031, kAutoHeight = 1032, kManualHeight = 1033;

class ColumnsWindowTest : public testing::Test {
 protected:
  const std::vector<std::u16string>& alerts() { return m_host.events().shown(); }
  QLineEdit& edit(int number) { return m_window.control<QLineEdit>(number); }
  QRadioButton& radio(int number) { return m_window.control<QRadioButton>(number); }
  QPushButton& button(int number) { return m_window.control<QPushButton>(number); }
  void click(QWidget& control) { QTest::mouseClick(&control, Qt::LeftButton, {}, {8, control.height() / 2}); }

  DialogHost m_host;
  CMTextColumnsDlg m_dialog{kThreeColumns};
  ShownWindow<ColumnsWindow> m_window{m_dialog};
};

TEST_F(ColumnsWindowTest, shows_what_the_dialog_holds) {
  EXPECT_TRUE(radio(kStatic).isChecked());
  EXPECT_TRUE(radio(kAutoHeight).isChecked());
  EXPECT_FALSE(radio(kAutoHeight).isEnabled());
  EXPECT_EQ(edit(kCount).text(), "3");
  EXPECT_EQ(edit(kHeight).text(), "20");
  EXPECT_EQ(edit(kColumnWidth).text(), "30");
  EXPECT_EQ(edit(kGutter).text(), "5");
  EXPECT_EQ(edit(kTotal).text(), "100");
}

TEST_F(ColumnsWindowTest, another_type_lets_other_edits_be_changed) {
  click(radio(kDynamic));
  EXPECT_EQ(m_dialog.values().type, 2U);
  EXPECT_FALSE(edit(kCount).isEnabled());
  EXPECT_TRUE(radio(kManualHeight).isEnabled());
  click(radio(kManualHeight));
  EXPECT_EQ(m_dialog.values().auto_height, 0);
  EXPECT_FALSE(edit(kHeight).isEnabled());
  click(radio(kNone));
  EXPECT_FALSE(edit(kGutter).isEnabled());
  EXPECT_TRUE(edit(kHeight).isEnabled());
}

TEST_F(ColumnsWindowTest, an_edit_that_is_left_changes_the_others) {
  m_window.type(edit(kCount), "5");
  QTest::keyClick(&edit(kCount), Qt::Key_Tab);
  EXPECT_EQ(edit(kColumnWidth).text(), "16");
  EXPECT_EQ(m_window.focused(), kHeight);
}

TEST_F(ColumnsWindowTest, a_text_that_is_refused_vanishes_and_the_focus_stays) {
  m_window.type(edit(kCount), "101");
  QTest::keyClick(&edit(kCount), Qt::Key_Tab);
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Value must be between 2 and 100"));
  EXPECT_EQ(edit(kCount).text(), "3");
  EXPECT_EQ(m_window.focused(), kCount);
}

TEST_F(ColumnsWindowTest, enter_looks_at_all_edits_in_their_order_and_stops_at_the_first_that_fails) {
  m_window.type(edit(kTotal), "1");
  edit(kCount).setText("1");
  QTest::keyClick(&edit(kTotal), Qt::Key_Return);
  EXPECT_TRUE(m_window.isVisible());
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Value must be between 2 and 100"));
  EXPECT_EQ(edit(kCount).text(), "3");
  EXPECT_EQ(edit(kTotal).text(), "1");
  EXPECT_EQ(m_window.focused(), kTotal);
}

TEST_F(ColumnsWindowTest, enter_looks_at_edits_that_cannot_be_changed_too) {
  CMTextColumnsDlg none(
      {.type = 0, .auto_height = 1, .count = 1, .height = 20, .total = 41, .text_height = 2.5});
  ShownWindow<ColumnsWindow> window(none);
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(alerts().size(), 1u);
  QTest::mouseClick(&window.control<QPushButton>(kOk), Qt::LeftButton);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(ColumnsWindowTest, enter_with_good_values_accepts_them) {
  m_window.type(edit(kGutter), "7.25");
  QTest::keyClick(&edit(kGutter), Qt::Key_Return);
  EXPECT_EQ(m_window.QDialog::result(), QDialog::Accepted);
  EXPECT_EQ(m_dialog.values().gutter, 7.25);
  EXPECT_EQ(m_dialog.values().total, 104.5);
}

TEST_F(ColumnsWindowTest, ok_takes_the_value_that_is_being_typed_or_refuses_it) {
  m_window.type(edit(kGutter), "wide");
  click(button(kOk));
  EXPECT_TRUE(m_window.isVisible());
  EXPECT_EQ(alerts().size(), 1u);
  m_window.type(edit(kGutter), "7");
  click(button(kOk));
  EXPECT_FALSE(m_window.isVisible());
  EXPECT_EQ(m_dialog.values().gutter, 7);
}

TEST_F(ColumnsWindowTest, a_bad_value_keeps_from_another_type) {
  m_window.type(edit(kGutter), "wide");
  click(radio(kNone));
  EXPECT_EQ(alerts().size(), 1u);
  EXPECT_EQ(m_dialog.values().type, 1U);
  EXPECT_TRUE(radio(kStatic).isChecked());
}

TEST_F(ColumnsWindowTest, escape_and_the_cancel_button_raise_no_message_for_a_bad_value) {
  m_window.type(edit(kCount), "1");
  click(button(kCancel));
  EXPECT_EQ(m_window.QDialog::result(), QDialog::Rejected);
  ShownWindow<ColumnsWindow> again(m_dialog);
  again.type(again.control<QLineEdit>(kCount), "1");
  QTest::keyClick(&again.control<QLineEdit>(kCount), Qt::Key_Escape);
  EXPECT_FALSE(again.isVisible());
  EXPECT_TRUE(alerts().empty());
  EXPECT_EQ(m_dialog.values(), kThreeColumns);
}

TEST_F(ColumnsWindowTest, help_button_and_f1_show_the_help) {
  click(button(kHelp));
  QTest::keyClick(&m_window, Qt::Key_F1);
  EXPECT_EQ(m_host.help().keys().size(), 2u);
}

}  // namespace
