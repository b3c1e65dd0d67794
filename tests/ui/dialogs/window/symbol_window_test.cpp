#include "ui/dialogs/window/symbol_window.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "tests/ui/dialogs/window/shown_window.h"
#include "ui/dialogs/CSymbolDlg.h"
#include "ui/dialogs/recent_symbols.h"
#include "ui/dialogs/window/character_grid.h"
#include "ui/dialogs/window/character_model.h"

namespace {

constexpr int kInsert = 1, kFind = 1331, kBlock = 1332, kRecent = 1333, kCharacters = 1334;

/// Somebody who took two characters before.
struct RememberingHost : DialogHost {
  RememberingHost() {
    for (const char32_t each : {U'\u2205', U'\u00B1'}) dialogs::remember_symbol(profile(), each);
  }
};

class SymbolWindowTest : public testing::Test {
 protected:
  CharacterGrid& grid(int number) { return m_window.control<CharacterGrid>(number); }
  QLineEdit& find() { return m_window.control<QLineEdit>(kFind); }

  RememberingHost m_host;
  CSymbolDlg m_dialog{{.font = u"Liberation Sans"}, &m_host.profile()};
  ShownWindow<SymbolWindow> m_window{m_dialog};
};

TEST_F(SymbolWindowTest, begins_with_what_was_used_last) {
  EXPECT_EQ(grid(kRecent).currentIndex().column(), 0);
  EXPECT_EQ(m_window.control<QComboBox>(kBlock).currentText(), "Latin-1 Supplement");
  EXPECT_EQ(grid(kCharacters).currentIndex().data(Qt::AccessibleTextRole).toString(),
            "U+00B1 PLUS-MINUS SIGN");
}

TEST_F(SymbolWindowTest, a_search_fills_the_grid_and_enter_takes_the_first) {
  QTest::keyClicks(&find(), "degree sign");
  EXPECT_EQ(m_dialog.selected(), U'\u00B0');
  QTest::keyClick(&find(), Qt::Key_Return);
  EXPECT_EQ(m_window.result(), QDialog::Accepted);
}

TEST_F(SymbolWindowTest, a_search_that_finds_nothing_says_so) {
  QTest::keyClicks(&find(), "qqq");
  EXPECT_EQ(grid(kCharacters).model()->rowCount(), 0);
  bool said = false;
  for (const QLabel* label : m_window.findChildren<QLabel*>())
    said |= label->text() == "No character has such a name.";
  EXPECT_TRUE(said);
}

TEST_F(SymbolWindowTest, arrows_go_from_character_to_character) {
  grid(kCharacters).setFocus();
  QTest::keyClick(&grid(kCharacters), Qt::Key_Left);
  EXPECT_EQ(m_dialog.selected(), U'\u00B0');
}

TEST_F(SymbolWindowTest, a_press_on_one_used_before_chooses_it) {
  const QRect cell = grid(kRecent).visualRect(grid(kRecent).model()->index(0, 1));
  QTest::mouseClick(grid(kRecent).viewport(), Qt::LeftButton, {}, cell.center());
  EXPECT_EQ(m_dialog.selected(), U'\u2205');
}

TEST_F(SymbolWindowTest, a_double_click_takes_the_character) {
  const QRect cell = grid(kCharacters).visualRect(grid(kCharacters).model()->index(0, 3));
  QTest::mouseClick(grid(kCharacters).viewport(), Qt::LeftButton, {}, cell.center());
  QTest::mouseDClick(grid(kCharacters).viewport(), Qt::LeftButton, {}, cell.center());
  EXPECT_EQ(m_window.result(), QDialog::Accepted);
  EXPECT_EQ(m_dialog.selected(), U'\u00A4');
}

TEST_F(SymbolWindowTest, another_block_ends_the_search) {
  QTest::keyClicks(&find(), "degree");
  QComboBox& blocks = m_window.control<QComboBox>(kBlock);
  blocks.setFocus();
  QTest::keyClick(&blocks, Qt::Key_Home);
  EXPECT_EQ(find().text(), "");
  EXPECT_EQ(m_dialog.characters().front(), U'!');
}

TEST_F(SymbolWindowTest, escape_takes_nothing) {
  QTest::keyClick(&m_window, Qt::Key_Escape);
  EXPECT_EQ(m_window.result(), QDialog::Rejected);
}

}  // namespace
