#include "ui/dialogs/CMTextColumnsDlg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ui/dialogs/dialog_host.h"
#include "tests/ui/dialogs/three_columns.h"

namespace {

using field = CMTextColumnsDlg::field;

class ColumnsDialog : public testing::Test {
 protected:
  const std::vector<std::u16string>& alerts() { return m_host.events().shown(); }

  DialogHost m_host;
  column_values m_values = kThreeColumns;
};

TEST_F(ColumnsDialog, two_columns_of_10_with_gutter_1_are_4_5_wide_and_five_need_12_5) {
  m_values.count = 3;
  m_values.gutter = 1;
  m_values.total = 10;
  CMTextColumnsDlg dialog(m_values);
  EXPECT_TRUE(dialog.leave(field::count, u"2"));
  EXPECT_EQ(dialog.values().column_width, 4.5);
  EXPECT_TRUE(dialog.leave(field::count, u"5"));
  EXPECT_EQ(dialog.values().column_width, 2.5);
  EXPECT_EQ(dialog.values().gutter, 0);
  EXPECT_EQ(dialog.values().total, 12.5);
}

TEST_F(ColumnsDialog, count_1_fails_with_the_message_and_101_fails_too) {
  CMTextColumnsDlg dialog(m_values);
  EXPECT_FALSE(dialog.leave(field::count, u"1"));
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Value must be between 2 and 100"));
  EXPECT_FALSE(dialog.leave(field::count, u"101"));
  EXPECT_EQ(alerts().size(), 2u);
  EXPECT_EQ(dialog.shown(field::count), u"3");
  EXPECT_EQ(dialog.values(), m_values);
}

TEST_F(ColumnsDialog, lengths_have_limits_in_text_heights) {
  CMTextColumnsDlg dialog(m_values);
  EXPECT_FALSE(dialog.leave(field::column_width, u"2.4"));
  EXPECT_FALSE(dialog.leave(field::total, u"25000.5"));
  EXPECT_FALSE(dialog.leave(field::gutter, u"-1"));
  EXPECT_FALSE(dialog.leave(field::height, u"x"));
  EXPECT_THAT(alerts(), testing::ElementsAre(u"Value must be between 2.5 and 25000.0",
                                             u"Value must be between 2.5 and 25000.0",
                                             u"Value must be between 0.0 and 25000.0",
                                             u"Value must be between 0.0 and 25000.0"));
  EXPECT_TRUE(dialog.leave(field::gutter, u"0"));
  EXPECT_TRUE(dialog.leave(field::height, u"0"));
}

TEST_F(ColumnsDialog, a_count_is_the_number_that_its_text_begins_with) {
  CMTextColumnsDlg dialog(m_values);
  EXPECT_TRUE(dialog.leave(field::count, u" 4x"));
  EXPECT_EQ(dialog.values().count, 4u);
  EXPECT_TRUE(dialog.leave(field::count, u"+5.9"));
  EXPECT_EQ(dialog.values().count, 5u);
  for (const char16_t* text : {u"x4", u"", u"-3", u"99999999999999999999"})
    EXPECT_FALSE(dialog.leave(field::count, text));
}

TEST_F(ColumnsDialog, leaving_an_edit_without_a_change_changes_nothing) {
  m_values.column_width = 26 + 2.0 / 3;
  m_values.total = 77.7;
  CMTextColumnsDlg dialog(m_values);
  EXPECT_EQ(dialog.shown(field::column_width), u"26.6667");
  for (const field each : CMTextColumnsDlg::kFields) EXPECT_TRUE(dialog.leave(each, dialog.shown(each)));
  EXPECT_TRUE(dialog.leave(field::total, u"77.70"));
  EXPECT_EQ(dialog.values(), m_values);
}

TEST_F(ColumnsDialog, lengths_are_read_and_shown_in_the_units_of_the_drawing) {
  OdDbDatabase& database = m_host.document().database();
  database.setSysVarInt(u"LUNITS", 4);
  database.setSysVarInt(u"DIMZIN", 0);
  CMTextColumnsDlg dialog(m_values);
  EXPECT_EQ(dialog.shown(field::total), u"8'-4\"");
  EXPECT_TRUE(dialog.leave(field::gutter, u"1'6\""));
  EXPECT_EQ(dialog.values().gutter, 18);
  EXPECT_EQ(dialog.shown(field::total), u"10'-6\"");
}

TEST_F(ColumnsDialog, static_columns_let_every_edit_be_changed) {
  const CMTextColumnsDlg dialog(m_values);
  for (const field each : CMTextColumnsDlg::kFields) EXPECT_TRUE(dialog.isEnabled(each));
  EXPECT_FALSE(dialog.isHeightModeEnabled());
}

TEST_F(ColumnsDialog, dynamic_columns_of_automatic_height_have_no_count_and_no_total_to_change) {
  CMTextColumnsDlg dialog(m_values);
  dialog.setType(2);
  EXPECT_TRUE(dialog.isHeightModeEnabled());
  EXPECT_FALSE(dialog.isEnabled(field::count));
  EXPECT_TRUE(dialog.isEnabled(field::height));
  EXPECT_TRUE(dialog.isEnabled(field::column_width));
  EXPECT_TRUE(dialog.isEnabled(field::gutter));
  EXPECT_FALSE(dialog.isEnabled(field::total));
}

TEST_F(ColumnsDialog, dynamic_columns_of_manual_height_have_no_height_to_change) {
  CMTextColumnsDlg dialog(m_values);
  dialog.setType(2);
  dialog.setAutoHeight(false);
  EXPECT_FALSE(dialog.isEnabled(field::height));
  EXPECT_TRUE(dialog.isEnabled(field::gutter));
}

TEST_F(ColumnsDialog, no_columns_have_a_height_alone) {
  CMTextColumnsDlg dialog(m_values);
  dialog.setType(0);
  EXPECT_TRUE(dialog.isEnabled(field::height));
  for (const field each : {field::count, field::column_width, field::gutter, field::total})
    EXPECT_FALSE(dialog.isEnabled(each));
}

TEST_F(ColumnsDialog, help_goes_to_the_topic_or_to_the_first_page) {
  CMTextColumnsDlg dialog(m_values);
  dialog.showHelp();
  dialog.help_topic = u"columns";
  dialog.showHelp();
  EXPECT_THAT(m_host.help().keys(), testing::ElementsAre(u"", u"columns"));
}

class ShowColumns : public ColumnsDialog {
 protected:
  bool show() {
    return ShowMTextColumnsDlg(&m_values.type, &m_values.auto_height, &m_values.count, &m_values.height,
                               &m_values.column_width, &m_values.gutter, &m_values.total,
                               &m_values.text_height);
  }

  ScriptedDisplay m_user;
};

TEST_F(ShowColumns, cancel_writes_nothing_back_and_returns_false) {
  m_user.on_columns = [](CMTextColumnsDlg& dialog) {
    dialog.setType(2);
    dialog.leave(field::count, u"5");
    return false;
  };
  const column_values before = m_values;
  EXPECT_FALSE(show());
  EXPECT_EQ(m_values, before);
}

TEST_F(ShowColumns, ok_writes_all_values_back_and_returns_true) {
  m_user.on_columns = [](CMTextColumnsDlg& dialog) {
    dialog.setType(2);
    dialog.setAutoHeight(false);
    dialog.leave(field::height, u"7");
    return dialog.leave(field::count, u"5");
  };
  EXPECT_TRUE(show());
  const column_values expected{.type = 2,
                               .auto_height = 0,
                               .count = 5,
                               .height = 7,
                               .column_width = 16,
                               .gutter = 5,
                               .total = 100,
                               .text_height = 2.5};
  EXPECT_EQ(m_values, expected);
}

TEST_F(ShowColumns, a_type_of_0_on_ok_keeps_the_values) {
  m_user.on_columns = [](CMTextColumnsDlg& dialog) {
    dialog.setType(0);
    return true;
  };
  column_values expected = m_values;
  expected.type = 0;
  EXPECT_TRUE(show());
  EXPECT_EQ(m_values, expected);
}

TEST(ShowColumnsWithoutDisplay, is_a_cancel) {
  column_values values{.type = 1, .count = 2, .text_height = 2.5};
  EXPECT_FALSE(ShowMTextColumnsDlg(&values.type, &values.auto_height, &values.count, &values.height,
                                   &values.column_width, &values.gutter, &values.total, &values.text_height));
}

}  // namespace
