#include "ui/dialogs/window/paragraph_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "tests/ui/dialogs/window/shown_window.h"
#include "ui/dialogs/CParagraphDlg.h"

namespace {

constexpr int kOk = 1, kCancel = 2, kValue = 1008, kStyle = 1009, kEnabled = 1031;

class ParagraphWindowTest : public testing::Test {
 protected:
  const std::vector<std::u16string>& alerts() { return m_host.events().shown(); }

  DialogHost m_host;
  CParagraphDlg m_dialog{/*has_spacing=*/true, {.style = 2, .value = 2.0}, 2.5};
  ShownWindow<ParagraphWindow> m_window{m_dialog};
  QLineEdit& m_value = m_window.control<QLineEdit>(kValue);
  QComboBox& m_style = m_window.control<QComboBox>(kStyle);
};

TEST_F(ParagraphWindowTest, shows_what_the_dialog_holds) {
  EXPECT_TRUE(m_window.control<QGroupBox>(kEnabled).isChecked());
  EXPECT_EQ(m_style.currentText(), "Exactly");
  EXPECT_EQ(m_value.text(), "5");
}

TEST_F(ParagraphWindowTest, list_and_edit_can_be_used_while_it_is_switched_on_alone) {
  m_window.control<QGroupBox>(kEnabled).setFocus();
  QTest::keyClick(&m_window.control<QGroupBox>(kEnabled), Qt::Key_Space);
  EXPECT_FALSE(m_style.isEnabled());
  EXPECT_FALSE(m_value.isEnabled());
  EXPECT_EQ(m_dialog.result().style, 0U);
}

TEST_F(ParagraphWindowTest, another_row_of_the_list_converts_the_value) {
  m_style.setFocus();
  QTest::keyClick(&m_style, Qt::Key_Down);
  EXPECT_EQ(m_style.currentText(), "At least");
  EXPECT_EQ(m_value.text(), "5");
  QTest::keyClick(&m_style, Qt::Key_Down);
  EXPECT_EQ(m_style.currentText(), "Multiple");
  EXPECT_EQ(m_value.text(), "2");
}

TEST_F(ParagraphWindowTest, leaving_a_value_out_of_range_tells_and_keeps_the_focus) {
  m_window.type(m_value, "10.1");
  QTest::keyClick(&m_value, Qt::Key_Tab);
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Please provide a value within the range of 0.625 and 10."));
  EXPECT_EQ(m_window.focused(), kValue);
  EXPECT_EQ(m_value.text(), "10.1");
}

TEST_F(ParagraphWindowTest, ok_with_a_value_out_of_range_does_not_close) {
  m_window.type(m_value, "99");
  QTest::mouseClick(&m_window.control<QPushButton>(kOk), Qt::LeftButton);
  EXPECT_TRUE(m_window.isVisible());
  EXPECT_EQ(alerts().size(), 1u);
  QTest::keyClick(&m_value, Qt::Key_Return);
  EXPECT_TRUE(m_window.isVisible());
  EXPECT_EQ(alerts().size(), 2u);
}

TEST_F(ParagraphWindowTest, ok_takes_the_value_that_is_being_typed) {
  m_window.type(m_value, "7.5");
  QTest::keyClick(&m_value, Qt::Key_Return);
  EXPECT_FALSE(m_window.isVisible());
  EXPECT_EQ(m_window.QDialog::result(), QDialog::Accepted);
  EXPECT_EQ(m_dialog.result().value, 3.0);
}

TEST_F(ParagraphWindowTest, cancelling_refuses_nothing) {
  m_window.type(m_value, "99");
  QTest::mouseClick(&m_window.control<QPushButton>(kCancel), Qt::LeftButton);
  EXPECT_FALSE(m_window.isVisible());
  EXPECT_TRUE(alerts().empty());
}

TEST_F(ParagraphWindowTest, escape_cancels) {
  m_window.type(m_value, "99");
  QTest::keyClick(&m_value, Qt::Key_Escape);
  EXPECT_EQ(m_window.QDialog::result(), QDialog::Rejected);
  EXPECT_TRUE(alerts().empty());
}

}  // namespace
