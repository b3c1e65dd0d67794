#include <gtest/gtest.h>

#include "od/db/OdDbSymbolTable.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

namespace {

mtext::format::string_partial red() {
  mtext::format::string_partial change;
  change.color = mtext::format::text_color{.kind = 0, .index = 1};
  return change;
}

}  // namespace

TEST(Format, is_applied_to_every_selection) {
  edited_text text("[ab]c[d]");
  text.text().applyFormat(red());
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_EQ(text.codes(), "{\\C1;ab}c{\\C1;d}");
}

TEST(Format, with_a_caret_waits_for_the_next_typed_character) {
  edited_text text("a|b");
  text.text().applyFormat(red());
  EXPECT_EQ(text.codes(), "ab");
  EXPECT_EQ(text.keys("x y").codes(), "a{\\C1;xy}b");
}

TEST(Format, that_waits_is_dropped_when_the_caret_moves) {
  edited_text text("a|b");
  text.text().applyFormat(red());
  EXPECT_EQ(text.keys("Right Left x").codes(), "axb");
}

TEST(Format, a_height_changes_the_layout) {
  edited_text text("[aaaa] bbbb", wrapping(16));
  mtext::format::string_partial change;
  change.height = {5.0, 0};
  text.text().applyFormat(change);
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_EQ(text.text().lineCount(), 2U);
}

TEST(Format, of_the_selection_is_known) {
  auto text = edited_text::on_codes("a{\\C1;bc}");
  text.text().setSelections({mtext::marks::selection(1, 3)});
  text.text().endOfEdit(/*relayout=*/false);
  ASSERT_TRUE(text.text().currentFormat().color);
  EXPECT_EQ(text.text().currentFormat().color->index, 1);
  text.keys("Ctrl+a");
  EXPECT_FALSE(text.text().currentFormat().color);
}

TEST(Paragraph, a_change_reaches_every_paragraph_that_a_selection_touches) {
  edited_text text("a[b¶c]d¶ef");
  mtext::format::paragraph_partial change;
  change.alignment = 2;
  text.text().applyParagraph(change);
  text.text().endOfEdit(/*relayout=*/true);
  EXPECT_EQ(text.codes(), "\\pxqc;ab\\Pcd\\P\\pq*;ef");
}

TEST(Stack, a_slash_makes_a_fraction_and_the_same_again_takes_it_apart) {
  edited_text text("a[1/2]b");
  text.text().stackSelection();
  EXPECT_EQ(text.drawn(), "a[½]b");
  text.text().stackSelection();
  EXPECT_EQ(text.drawn(), "a[1/2]b");
}

TEST(Stack, a_selection_without_a_separator_stays) {
  edited_text text("a[12]b");
  text.text().stackSelection();
  EXPECT_EQ(text.drawn(), "a[12]b");
}

TEST(Stack, superscript_and_subscript_are_stacks_of_one_text) {
  edited_text up("m[2]");
  up.text().superscript();
  EXPECT_EQ(up.codes(), "m{\\H0.7x;\\S2^;}");
  edited_text down("m[2]");
  down.text().subscript();
  EXPECT_EQ(down.codes(), "m{\\H0.7x;\\S^2;}");
}

TEST(Style, without_keeping_runs_rebases_what_was_the_default_and_leaves_the_rest) {
  edited_drawing drawing;
  drawing.text->setContents(u"a{\\C1;\\H5;b}{\\W0.5;c}");
  smart_edit& session = drawing.begin();
  ExMTextEditable& text = session.editable();
  auto style = odCast<OdDbTextStyleTableRecord>(drawing.database->getTEXTSTYLE().openObject(OdDb::kForWrite));
  style->setXScale(0.8);
  text.setStyle(drawing.database->getTEXTSTYLE(), /*keep_runs=*/false);
  EXPECT_DOUBLE_EQ(text.text().parts[0].part().format.width_factor, 0.8);
  EXPECT_DOUBLE_EQ(text.text().parts[1].part().format.width_factor, 0.8);
  EXPECT_DOUBLE_EQ(text.text().parts[2].part().format.width_factor, 0.5);
  EXPECT_DOUBLE_EQ(text.text().parts[1].part().format.height, 5);
  EXPECT_EQ(text.text().parts[1].part().format.color.index, 1);
}

TEST(Style, keeping_runs_every_part_takes_the_new_default_whole) {
  edited_drawing drawing;
  drawing.text->setContents(u"a{\\C1;\\H5;b}");
  ExMTextEditable& text = drawing.begin().editable();
  text.setStyle(drawing.database->getTEXTSTYLE(), /*keep_runs=*/true);
  EXPECT_EQ(text.text().parts[1].part().format, text.defaultFormat());
}
