#include "ui/widgets/toolbar_widget.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include "tests/editor/edited_text.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/control_table.h"
#include "ui/toolbar/layout_table.h"
#include "ui/widgets/list_box.h"
#include "ui/widgets/qt_text.h"

namespace {

/// A text in a session whose toolbar has a window.
struct text_with_window {
  explicit text_with_window(std::string_view drawn)
      : text(drawn),
        bar(text.session(), window,
            {{u"txt.shx", controls::kShapeFontWord},
             {u"Arial", controls::typeface_word(/*fixed_pitch=*/false, 0)}}) {
    window.fill(bar);
    window.show();
  }
  ~text_with_window() { window.empty(); }

  /// The control whose words have a number.
  template <class Widget>
  Widget* control(int id) {
    const QString name = qtString(toolbar::control_of(id).text);
    for (Widget* each : window.findChildren<Widget*>())
      if (each->accessibleName() == name) return each;
    return nullptr;
  }
  void enter(QLineEdit& line, const char* typed) {
    line.setFocus();
    line.selectAll();
    QTest::keyClicks(&line, typed);
    QTest::keyClick(&line, Qt::Key_Return);
  }

  edited_text text;
  ToolbarWidget window{nullptr};
  CMTextEdit bar;
};

}  // namespace

TEST(ToolbarWidget, every_control_has_a_name_and_a_tooltip) {
  text_with_window shown("[ab]");
  for (const toolbar_control& control : toolbar::control_table()) {
    const QWidget* widget = shown.control<QWidget>(control.id);
    ASSERT_TRUE(widget) << control.id;
    const QWidget* told = control.kind == control_kind::spin_edit ? widget->parentWidget() : widget;
    EXPECT_TRUE(told->toolTip().startsWith(qtString(control.text))) << control.id;
    EXPECT_EQ(told->toolTip().contains(toQt(control.keys)), true) << control.id;
  }
}

TEST(ToolbarWidget, nothing_on_a_button_is_cut) {
  text_with_window shown("[ab]");
  for (const auto* button : shown.window.findChildren<QToolButton*>()) {
    if (button->arrowType() != Qt::NoArrow) continue;
    EXPECT_GE(button->width(), button->sizeHint().width()) << button->toolTip().toStdString();
  }
}

TEST(ToolbarWidget, is_a_little_transparent_and_takes_no_focus) {
  text_with_window shown("a|");
  EXPECT_NEAR(shown.window.windowOpacity(), 229 / 255.0, 1 / 255.0);
  EXPECT_TRUE(shown.window.windowFlags() & Qt::WindowDoesNotAcceptFocus);
  EXPECT_TRUE(shown.window.testAttribute(Qt::WA_ShowWithoutActivating));
  for (const auto* button : shown.window.findChildren<QToolButton*>())
    EXPECT_FALSE(button->focusPolicy() & Qt::ClickFocus) << button->toolTip().toStdString();
}

TEST(ToolbarWidget, a_click_does_what_the_button_does_and_leaves_it_as_the_text_says) {
  text_with_window shown("[ab]");
  auto* underlined = shown.control<QToolButton>(1003);
  QTest::mouseClick(underlined, Qt::LeftButton);
  EXPECT_EQ(shown.text.codes(), "{\\Lab}");
  EXPECT_TRUE(underlined->isChecked());
  auto* numbering = shown.control<QToolButton>(1049);
  QTest::mouseClick(numbering, Qt::LeftButton);
  EXPECT_FALSE(numbering->isChecked());
}

TEST(ToolbarWidget, a_typed_size_counts_when_enter_is_let_go_and_not_again_when_the_box_is_left) {
  text_with_window shown("[ab]");
  auto* box = shown.control<QComboBox>(1008);
  EXPECT_EQ(box->lineEdit()->text(), "2.5");
  shown.enter(*box->lineEdit(), "5");
  EXPECT_EQ(shown.text.codes(), "{\\H2x;ab}");
  EXPECT_EQ(box->count(), 1);
  box->lineEdit()->clearFocus();
  EXPECT_EQ(box->count(), 1);
  EXPECT_EQ(box->lineEdit()->text(), "5");
}

TEST(ToolbarWidget, a_typed_font_is_found_and_only_once) {
  text_with_window shown("[ab]");
  auto* box = shown.control<QComboBox>(1009);
  shown.enter(*box->lineEdit(), "ari");
  EXPECT_EQ(box->lineEdit()->text(), "Arial");
  EXPECT_EQ(shown.text.session().undo().undo_count(), 1U);
  EXPECT_EQ(shown.text.codes(), "{\\fArial|b0|i0|c0|p0;ab}");
}

TEST(ToolbarWidget, choosing_a_row_of_a_box_is_the_users_and_showing_one_is_not) {
  text_with_window shown("[ab]");
  auto* colors = shown.control<ListBox>(1029);
  emit colors->activated(2);
  EXPECT_EQ(shown.text.codes(), "{\\C1;ab}");
  EXPECT_EQ(colors->currentText(), "Red");
  shown.text.keys("Ctrl+z");
  EXPECT_EQ(colors->currentText(), "By layer");
  EXPECT_EQ(shown.text.codes(), "ab");
}

TEST(ToolbarWidget, the_colors_are_listed_once_and_not_again_for_each_selection) {
  text_with_window shown("ab|");
  auto* colors = shown.control<ListBox>(1029);
  int listed = 0;
  QObject::connect(colors->model(), &QAbstractItemModel::rowsInserted, [&listed] { ++listed; });
  shown.bar.colors().select(controls::index_code(1));
  EXPECT_EQ(colors->currentText(), "Red");
  EXPECT_EQ(listed, 0);
}

TEST(ToolbarWidget, a_text_that_begins_with_a_byte_order_mark_keeps_it_on_its_way_to_the_toolkit) {
  EXPECT_EQ(fromQt(toQt(u"\ufeffa")), u"\ufeffa");
}

TEST(ToolbarWidget, the_arrows_and_keys_of_a_number_move_it_by_a_step) {
  text_with_window shown("[ab]");
  auto* oblique = shown.control<QLineEdit>(1040);
  QTest::keyClick(oblique, Qt::Key_Up);
  EXPECT_EQ(oblique->text(), "1.000");
  for (auto* arrow : oblique->parentWidget()->findChildren<QToolButton*>())
    if (arrow->arrowType() == Qt::DownArrow) QTest::mouseClick(arrow, Qt::LeftButton);
  EXPECT_EQ(oblique->text(), "0.000");
}

TEST(ToolbarWidget, tab_goes_through_the_controls_in_their_order) {
  text_with_window shown("[1/2]");
  std::vector<QString> order;
  const QWidget* first = shown.control<QComboBox>(1015);
  for (const QWidget* at = first; at && (order.empty() || at != first); at = at->nextInFocusChain())
    if (at->focusPolicy() & Qt::TabFocus && !at->accessibleName().isEmpty() && shown.window.isAncestorOf(at))
      order.push_back(at->accessibleName());
  std::vector<QString> expected;
  for (const auto& row : toolbar::layout_rows(/*compact=*/false))
    for (const int id : row)
      if (id > 0) expected.push_back(qtString(toolbar::control_of(id).text));
  order.erase(std::remove(order.begin(), order.end(), qtString(1305)), order.end());
  EXPECT_EQ(order, expected);
}

TEST(ToolbarWidget, closing_it_cancels_the_session_and_leaves_it_open_until_that_is_answered) {
  text_with_window shown("a|");
  shown.window.close();
  EXPECT_TRUE(shown.window.isVisible());
  EXPECT_EQ(shown.text.ended(), "cancel");
}
