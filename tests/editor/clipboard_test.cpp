#include <gtest/gtest.h>

#include "od/db/OdDbDictionary.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

TEST(Clipboard, copy_with_only_carets_does_not_touch_it) {
  edited_text text("a|b");
  text.application().clipboard().set(CF_UNICODETEXT, u"before");
  text.keys("Ctrl+c");
  EXPECT_EQ(text.application().clipboard().get(CF_UNICODETEXT), u"before");
}

TEST(Clipboard, copying_two_selections_gives_both_texts_joined_with_nothing_between) {
  edited_text text("[ab]c[d]");
  text.keys("Ctrl+c");
  EXPECT_EQ(text.application().clipboard().get(CF_UNICODETEXT), u"abd");
}

TEST(Clipboard, cut_and_paste_move_text_with_its_format) {
  auto text = edited_text::on_codes("a{\\C1;b}c");
  text.text().setSelections({mtext::marks::selection(1, 2)});
  EXPECT_EQ(text.keys("Ctrl+x End Ctrl+v").codes(), "ac{\\C1;b}");
}

TEST(Clipboard, codes_in_plain_text_stay_letters) {
  edited_text text("|");
  text.application().clipboard().set(CF_UNICODETEXT, u"a\\Pb");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "a\\Pb|");
}

TEST(Clipboard, plain_lines_become_paragraphs) {
  edited_text text("|");
  text.application().clipboard().set(CF_UNICODETEXT, u"a\r\nb");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "a¶b|");
}

TEST(Clipboard, plain_lines_become_blanks_in_an_existing_single_line_text) {
  edited_text text("x|");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  text.application().clipboard().set(CF_UNICODETEXT, u"a\r\nb");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "xa b|");
}

TEST(Clipboard, plain_lines_in_a_new_single_line_text_each_become_an_entity_at_finish) {
  edited_drawing drawing;
  auto source = odNew<OdDbText>();
  source->setDatabaseDefaults(drawing.database.get());
  drawing.session.emplace(drawing.application.document());
  drawing.session->beginTextEdit(source);
  drawing.application.clipboard().set(CF_UNICODETEXT, u"first\r\nsecond");
  drawing.session->editable().paste(/*single_line=*/true, /*non_empty=*/false);
  drawing.session->editable().endOfEdit(/*relayout=*/true);
  drawing.session->finishEdit(/*accept=*/true, /*force=*/false);
  ASSERT_EQ(drawing.session->writtenLines().size(), 2U);
  EXPECT_EQ(odOpen<OdDbText>(drawing.session->writtenLines()[0])->textString(), OdString(u"first"));
  EXPECT_EQ(odOpen<OdDbText>(drawing.session->writtenLines()[1])->textString(), OdString(u"second"));
}

TEST(Clipboard, plain_lines_become_items_of_the_list_they_are_pasted_into) {
  edited_text text("1.→a|¶2.→b");
  text.application().clipboard().set(CF_UNICODETEXT, u"x\ny\nz");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "1.→ax¶2.→y¶3.→z|¶4.→b");
}

TEST(Clipboard, a_pasted_break_in_front_of_a_label_takes_the_caret_behind_it) {
  edited_text text("a|2.→b");
  text.application().clipboard().set(CF_UNICODETEXT, u"\nx");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "a¶1.→x|b");
}

TEST(Clipboard, pasted_items_are_counted) {
  edited_text text("1.→a¶2.→[b¶3.→c]");
  EXPECT_EQ(text.keys("Ctrl+c PageDown Enter Backspace Ctrl+v").drawn(), "1.→a¶2.→b¶3.→c¶b¶4.→c|");
}

TEST(Clipboard, pasting_nothing_over_a_selection_erases_it_and_lays_the_text_out) {
  edited_text text("ab[cd¶ef]");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "ab|");
  ASSERT_EQ(text.text().lineCount(), 1U);
  EXPECT_EQ(text.text().text().lines[0].last, 2U);
}

TEST(Clipboard, copy_offers_html_beside_the_plain_and_the_private_format) {
  auto text = edited_text::on_codes("a{\\Lb}");
  text.keys("Ctrl+a Ctrl+c");
  auto& board = text.application().clipboard();
  EXPECT_EQ(board.get(CF_UNICODETEXT), u"ab");
  EXPECT_EQ(board.get(board.registerFormat(u"MText")), u"a{\\Lb}");
  EXPECT_EQ(board.get(board.registerFormat(kHtmlFormat)),
            u"<p>a<span style=\"text-decoration:underline;\">b</span></p>");
}

TEST(Clipboard, html_is_pasted_with_its_formats_where_no_text_is_there) {
  edited_text text("x|");
  auto& board = text.application().clipboard();
  board.set(board.registerFormat(kHtmlFormat), u"<p>a<u>b</u></p><p>{c}</p>");
  EXPECT_TRUE(text.text().canPaste());
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "xab¶{c}|");
  EXPECT_EQ(text.codes(), "xa{\\Lb}\\P\\{c\\}");
  text.keys("Ctrl+Z");
  EXPECT_EQ(text.drawn(), "x|");
}

TEST(Clipboard, rtf_is_pasted_where_there_is_no_html_either) {
  edited_text text("|");
  auto& board = text.application().clipboard();
  board.set(board.registerFormat(kRtfFormat), u"{\\rtf1 a{\\ul b}}");
  EXPECT_TRUE(text.text().canPaste());
  EXPECT_EQ(text.keys("Ctrl+v").codes(), "a{\\Lb}");
  board.set(board.registerFormat(kHtmlFormat), u"<p>h</p>");
  EXPECT_EQ(text.keys("Ctrl+v").codes(), "a{\\Lbh}");
}

TEST(Clipboard, plain_text_is_pasted_rather_than_html) {
  edited_text text("|");
  auto& board = text.application().clipboard();
  board.set(board.registerFormat(kHtmlFormat), u"<b>a</b>");
  board.set(CF_UNICODETEXT, u"plain");
  EXPECT_EQ(text.keys("Ctrl+v").codes(), "plain");
}

TEST(Clipboard, items_of_html_become_items_of_a_list) {
  edited_text text("1.→x¶|");
  auto& board = text.application().clipboard();
  board.set(board.registerFormat(kHtmlFormat), u"<ol><li>a</li><li>b</li></ol>");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "1.→x¶2.→a¶3.→b|");
}

TEST(Clipboard, html_in_a_single_line_text_loses_its_formats_and_in_an_existing_one_its_lines) {
  edited_text text("x|");
  auto& board = text.application().clipboard();
  board.set(board.registerFormat(kHtmlFormat), u"<p>a<b>b</b></p><p>c</p>");
  text.session().beginPlain(/*single_line=*/true, /*had_text=*/true);
  EXPECT_EQ(text.keys("Ctrl+v").codes(), "xab c");
}

TEST(Clipboard, garbage_pastes_nothing_and_breaks_nothing) {
  edited_text text("x|");
  auto& board = text.application().clipboard();
  std::u16string garbage;
  for (unsigned unit = 1; unit < 5000; ++unit) garbage += static_cast<char16_t>(unit * 7919);
  board.set(board.registerFormat(kRtfFormat), garbage);
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "x|");
  board.set(board.registerFormat(kHtmlFormat), u"<p><b></i>");
  EXPECT_EQ(text.keys("Ctrl+v").drawn(), "x|");
}

TEST(Clipboard, copied_fields_are_their_values) {
  auto text = edited_text::on_codes("a%<\\AcVar Date>%b");
  text.keys("Ctrl+a Ctrl+c");
  EXPECT_EQ(text.application().clipboard().get(CF_UNICODETEXT), u"a----b");
}
