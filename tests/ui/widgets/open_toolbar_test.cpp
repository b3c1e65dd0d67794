#include "ui/widgets/open_toolbar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QToolButton>

#include "host/profile.h"
#include "tests/editor/edited_drawing.h"
#include "ui/widgets/toolbar_widget.h"

using testing::ElementsAre;

namespace {

/// The toolbars on the screen.
std::vector<QWidget*> toolbars() {
  std::vector<QWidget*> all;
  for (QWidget* each : QApplication::topLevelWidgets())
    if (dynamic_cast<ToolbarWidget*>(each) && each->isVisible()) all.push_back(each);
  return all;
}

std::vector<std::string> buttons(const QWidget& bar) {
  std::vector<std::string> names;
  for (const auto* button : bar.findChildren<QToolButton*>())
    if (!button->accessibleName().isEmpty()) names.push_back(button->accessibleName().toStdString());
  return names;
}

}  // namespace

TEST(OpenToolbar, a_compact_session_has_two_lines_undo_redo_and_ok_in_one_row) {
  edited_drawing drawing;
  const auto bar = open_toolbar(drawing.begin({.compact = true}));
  ASSERT_EQ(toolbars().size(), 1U);
  EXPECT_THAT(buttons(*toolbars()[0]),
              ElementsAre("Underlined", "Overlined", "Undo", "Redo", "OK (Ctrl+Enter)", "Cancel"));
  EXPECT_LT(toolbars()[0]->height(), 40);
}

TEST(OpenToolbar, it_stands_where_the_last_one_was_left_and_goes_with_the_session) {
  edited_drawing drawing;
  auto bar = open_toolbar(drawing.begin());
  ASSERT_EQ(toolbars().size(), 1U);
  EXPECT_EQ(toolbars()[0]->pos(), QPoint(200, 300));
  toolbars()[0]->move(31, 57);
  bar.reset();
  EXPECT_TRUE(toolbars().empty());
  EXPECT_EQ(drawing.application.profile().number(u"SCRIBE", u"ptpos.x", 0), 31);
  EXPECT_EQ(drawing.application.profile().number(u"SCRIBE", u"ptpos.y", 0), 57);
}

TEST(OpenToolbar, the_fonts_of_the_machine_are_there_to_choose_from) {
  edited_drawing drawing;
  const auto bar = open_toolbar(drawing.begin());
  std::size_t rows = 0;
  for (const auto* box : toolbars()[0]->findChildren<QComboBox*>())
    if (box->findText("DejaVu Sans") >= 0) rows = static_cast<std::size_t>(box->count());
  EXPECT_GT(rows, 5U);
}

TEST(OpenToolbar, a_single_line_text_has_none) {
  edited_drawing drawing;
  smart_edit session(drawing.application.document());
  session.beginPlain(/*single_line=*/true, /*had_text=*/true);
  EXPECT_FALSE(open_toolbar(session));
}
