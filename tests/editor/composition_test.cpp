#include <gtest/gtest.h>

#include <numbers>

#include "host/composer.h"
#include "host/key_code.h"
#include "od/gi/OdGiRecorder.h"
#include "tests/editor/edited_drawing.h"
#include "tests/editor/edited_text.h"

namespace {

HostComposer& composer(edited_text& text) { return *text.application().window().composer(); }

/// The letters as they are shown, with `|` for each caret.
std::u16string shown(edited_text& text) {
  const auto& displayed = text.text().displayed();
  std::u16string letters;
  for (std::size_t at = 0; at <= displayed.parts.size(); ++at) {
    for (const auto& mark : displayed.marks)
      if (dynamic_cast<const mtext::marks::selection*>(&mark) && mark.begin == at) letters += u'|';
    if (at < displayed.parts.size())
      letters += static_cast<const mtext::geom_word&>(displayed.parts[at]).text;
  }
  return letters;
}

std::size_t polylines(ExMTextEditable& text) {
  OdGiRecorder recorder;
  recorder.record(text);
  return recorder.primitives().size();
}

}  // namespace

TEST(Composition, is_shown_at_the_caret_and_is_no_part_of_the_text) {
  edited_text text("ab|cd");
  composer(text).compose({u"xyz", 2});
  EXPECT_EQ(shown(text), u"abxy|zcd");
  EXPECT_EQ(text.drawn(), "ab|cd");
  EXPECT_EQ(text.codes(), "abcd");
  EXPECT_TRUE(text.session().undo().is_empty());
}

TEST(Composition, replaces_the_one_before_and_an_empty_one_ends_it) {
  edited_text text("ab|cd");
  composer(text).compose({u"x", 1});
  composer(text).compose({u"yz", 0});
  EXPECT_EQ(shown(text), u"ab|yzcd");
  composer(text).compose({});
  EXPECT_EQ(shown(text), u"ab|cd");
}

TEST(Composition, is_shown_at_every_caret_and_in_place_of_what_is_selected) {
  edited_text text("a|b[cd]");
  composer(text).compose({u"x", 1});
  EXPECT_EQ(shown(text), u"ax|bx|");
  EXPECT_EQ(text.drawn(), "a|b[cd]");
}

TEST(Composition, is_underlined_and_has_the_format_that_typing_would_have) {
  auto text = edited_text::on_codes("{\\C1;ab}");
  text.text().setSelections({mtext::marks::selection(1)});
  composer(text).compose({u"x", 1});
  const auto& format = text.text().displayed().parts[1].part().format;
  EXPECT_EQ(format.color.index, 1);
  EXPECT_TRUE(format.flags & mtext::format::flag_underline);
}

TEST(Composition, is_drawn_where_it_would_stand) {
  edited_text text("ab|");
  text.text().setDraft(true);
  EXPECT_EQ(polylines(text.text()), 2U);
  composer(text).compose({u"xy", 2});
  EXPECT_EQ(polylines(text.text()), 4U);
}

TEST(Composition, its_caret_never_stands_inside_a_character) {
  edited_text text("a|");
  composer(text).compose({u"😀", 1});
  EXPECT_EQ(shown(text), u"a😀|");
}

TEST(Composition, that_a_key_interrupts_is_shown_in_the_text_as_it_then_is) {
  edited_text text("abc|");
  composer(text).compose({u"xy", 2});
  text.keys("Backspace Backspace Backspace");
  EXPECT_EQ(shown(text), u"xy|");
  EXPECT_EQ(text.drawn(), "|");
}

TEST(Composition, what_it_committed_is_typed_in_one_undo_step) {
  edited_text text("ab|");
  composer(text).compose({u"kanji", 5});
  composer(text).compose({});
  for (const char16_t unit : std::u16string(u"漢😀")) {
    text.send({.number = WM_KEYDOWN, .code = 231});
    text.send({.number = WM_CHAR, .code = unit});
    text.send({.number = WM_KEYUP, .code = 231});
  }
  EXPECT_EQ(text.drawn(), "ab漢😀|");
  EXPECT_EQ(text.keys("Ctrl+z").drawn(), "ab|");
}

TEST(Composition, tells_where_its_caret_is_seen) {
  edited_text text("ab|");
  const auto before = composer(text).caret();
  composer(text).compose({u"x", 1});
  const auto behind = composer(text).caret();
  ASSERT_TRUE(before && behind);
  EXPECT_GT(behind->top.x, before->top.x);
  EXPECT_GT(behind->top.y, behind->bottom.y);
}

TEST(Composition, the_caret_of_a_rotated_text_is_where_it_is_seen) {
  edited_drawing drawing;
  drawing.text->setRotation(std::numbers::pi / 6);
  smart_edit& session = drawing.begin();
  const auto caret = drawing.application.window().composer()->caret();
  OdGePoint2d top, bottom;
  session.editable().caretPoints(session.editable().selections()[0], top, bottom);
  EXPECT_TRUE(caret);
  EXPECT_EQ(caret->top, session.worldPoint(top));
  EXPECT_EQ(caret->bottom, session.worldPoint(bottom));
  EXPECT_NE(caret->top.x, caret->bottom.x);
}

TEST(Composition, nobody_shows_it_when_the_session_has_ended) {
  edited_drawing drawing;
  drawing.begin();
  EXPECT_NE(drawing.application.window().composer(), nullptr);
  drawing.end();
  EXPECT_EQ(drawing.application.window().composer(), nullptr);
}
