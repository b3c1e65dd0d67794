#include <gtest/gtest.h>

#include <numbers>

#include "host/key_code.h"
#include "mtext/entity/entity_format.h"
#include "od/gi/OdGsView.h"
#include "tests/editor/edited_drawing.h"

TEST(Session, hides_its_entity_and_shows_it_again_at_the_end) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  EXPECT_EQ(drawing.text->visibility(), OdDb::kInvisible);
  session.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(drawing.text->visibility(), OdDb::kVisible);
}

TEST(Session, that_ends_without_a_word_shows_its_entity_and_takes_its_layers_and_filter_away) {
  edited_drawing drawing;
  drawing.begin();
  EXPECT_EQ(drawing.application.document().view().overlay().layers().size(), 3U);
  drawing.end();
  EXPECT_EQ(drawing.text->visibility(), OdDb::kVisible);
  EXPECT_TRUE(drawing.application.document().view().overlay().layers().empty());
  EXPECT_FALSE(drawing.application.document().messages().offer({.number = WM_KEYDOWN, .code = 'A'}));
}

TEST(Session, writes_what_was_typed) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  drawing.type(u"My ");
  EXPECT_TRUE(session.finishEdit(/*accept=*/true, /*force=*/false));
  EXPECT_EQ(drawing.text->contents(), OdString(u"My Hall"));
}

TEST(Session, that_is_not_accepted_writes_nothing) {
  edited_drawing drawing;
  const std::string before = drawing.bytes();
  smart_edit& session = drawing.begin();
  drawing.type(u"My ");
  EXPECT_FALSE(session.finishEdit(/*accept=*/false, /*force=*/false));
  EXPECT_EQ(drawing.bytes(), before);
}

TEST(Session, accepting_an_unchanged_text_leaves_the_drawing_as_it_was_whatever_its_spelling) {
  for (const char16_t* contents : {u"{\\C1;{a}}b", u"\\A1;{\\fArial|b0|i0;x}", u"\\H2.5;a\\H1x;b",
                                   u"a\\~b %%d \\U+00B0", u"\\pi0,l0;a"}) {
    edited_drawing drawing;
    drawing.text->setContents(contents);
    const std::string before = drawing.bytes();
    smart_edit& session = drawing.begin();
    drawing.send({.number = WM_KEYDOWN, .code = VK_END});
    EXPECT_TRUE(session.finishEdit(/*accept=*/true, /*force=*/false));
    EXPECT_EQ(drawing.bytes(), before);
  }
}

TEST(Session, counts_the_lists_of_a_text_when_it_is_opened_and_writes_that_with_the_first_change) {
  edited_drawing drawing;
  drawing.text->setContents(u"5.\ta\\P7.\tb");
  smart_edit& session = drawing.begin();
  EXPECT_EQ(session.editable().contentsText(), OdString(u"1.\ta\\P2.\tb"));
  session.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(drawing.text->contents(), OdString(u"5.\ta\\P7.\tb"));
  smart_edit& again = drawing.begin();
  drawing.type(u"x");
  again.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(drawing.text->contents(), OdString(u"1.\txa\\P2.\tb"));
}

TEST(Session, typing_and_taking_it_back_leaves_the_drawing_as_it_was) {
  edited_drawing drawing;
  drawing.text->setContents(u"{\\C1;{a}}b");
  const std::string before = drawing.bytes();
  smart_edit& session = drawing.begin();
  drawing.type(u"x");
  drawing.send({.number = WM_KEYDOWN, .code = VK_BACK});
  EXPECT_TRUE(session.finishEdit(/*accept=*/true, /*force=*/false));
  EXPECT_EQ(drawing.bytes(), before);
}

TEST(Session, an_emptied_text_is_not_accepted_and_stays) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  session.editable().selectRange(0, -1, false, false);
  drawing.send({.number = WM_KEYDOWN, .code = VK_DELETE});
  EXPECT_FALSE(session.finishEdit(/*accept=*/true, /*force=*/false));
  EXPECT_EQ(drawing.text->contents(), OdString(u"Hall"));
}

TEST(Session, an_emptied_text_is_written_when_forced) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  session.editable().selectRange(0, -1, false, false);
  drawing.send({.number = WM_KEYDOWN, .code = VK_DELETE});
  EXPECT_TRUE(session.finishEdit(/*accept=*/true, /*force=*/true));
  EXPECT_EQ(drawing.text->contents(), OdString(u""));
}

TEST(Session, finish_without_an_entity_returns_the_accept_value_unchanged) {
  edited_drawing drawing;
  smart_edit session(drawing.application.document());
  EXPECT_TRUE(session.finishEdit(true, false));
  EXPECT_FALSE(session.finishEdit(false, false));
}

TEST(Session, a_text_height_of_0_opens_the_session_with_0_2) {
  edited_drawing drawing;
  drawing.text->setTextHeight(0);
  EXPECT_DOUBLE_EQ(drawing.begin().editable().textHeight(), 0.2);
}

TEST(Session, a_text_of_height_0_that_was_changed_is_written_with_0_2) {
  edited_drawing drawing;
  drawing.text->setTextHeight(0);
  smart_edit& session = drawing.begin();
  drawing.type(u"My ");
  session.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_DOUBLE_EQ(drawing.text->textHeight(), 0.2);
}

TEST(Session, opens_with_the_entity_s_own_format) {
  edited_drawing drawing;
  EXPECT_EQ(drawing.begin().editable().defaultFormat(), mtext::default_mtext_format(drawing.text));
}

TEST(Session, typing_into_a_rotated_text_works_in_its_own_plane) {
  edited_drawing drawing;
  drawing.text->setRotation(std::numbers::pi / 2);
  smart_edit& session = drawing.begin();
  // Turned by a quarter, the line of the text runs up and its letters lie to the right of the location.
  const auto& text = session.editable().text();
  const double second_letter = text.parts[1].x + 0.01;
  const OdGePoint3d behind_first{10 + 1.0, 20 + second_letter, 0};
  drawing.send({.number = WM_LBUTTONDOWN, .point = behind_first});
  drawing.send({.number = WM_LBUTTONUP, .point = behind_first});
  drawing.type(u"x");
  session.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(drawing.text->contents(), OdString(u"Hxall"));
  EXPECT_NEAR(drawing.text->rotation(), std::numbers::pi / 2, 1e-12);
}

TEST(Session, a_rotated_text_that_was_changed_while_it_faced_the_screen_keeps_its_place) {
  edited_drawing drawing;
  drawing.application.profile().setNumber(u"Text", u"Rotate", 1);
  drawing.text->setRotation(std::numbers::pi / 2);
  const OdGePoint3d location = drawing.text->location();
  smart_edit& session = drawing.begin();
  drawing.type(u"My ");
  session.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(drawing.text->contents(), OdString(u"My Hall"));
  EXPECT_TRUE(drawing.text->direction().isEqualTo(OdGeVector3d::kYAxis));
  EXPECT_TRUE(drawing.text->location().isEqualTo(location));
}

TEST(Session, a_view_that_was_zoomed_out_stays_so_until_the_next_edit) {
  edited_drawing drawing;
  drawing.begin();
  drawing.type(u"a");
  OdGsView& view = drawing.application.document().view().gsView();
  const double wide = view.fieldWidth() * 1000;
  view.setView(view.position(), view.target(), view.upVector(), wide, view.fieldHeight() * 1000);
  drawing.send({.number = WM_MOUSEWHEEL});
  drawing.send({.number = WM_MOUSEMOVE, .point = {12, 19, 0}});
  EXPECT_EQ(view.fieldWidth(), wide);
  drawing.type(u"b");
  EXPECT_LT(view.fieldWidth(), wide);
}

TEST(Session, the_caret_begins_where_the_command_points) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin({.caret_at = OdGePoint3d{49, 19, 0}});
  EXPECT_EQ(session.editable().selections()[0].begin, 4U);
}

TEST(Session, a_facing_text_does_not_jump_at_the_first_key) {
  edited_drawing drawing;
  drawing.application.profile().setNumber(u"Text", u"Rotate", 1);
  drawing.application.document().view().gsView().setView({0, 15, 1}, {0, 15, 0}, {0, 1, 0}, 80, 60);
  drawing.text->setTextHeight(0.2);
  drawing.text->setWidth(3);
  drawing.text->setLocation({39.5, 20, 0});
  drawing.text->setRotation(std::numbers::pi);
  smart_edit& session = drawing.begin();
  const OdGePoint3d opened = session.worldPoint({0, 0});
  session.fitGadgets();
  drawing.send({.number = WM_KEYDOWN, .code = VK_RIGHT});
  EXPECT_TRUE(session.worldPoint({0, 0}).isEqualTo(opened));
}

TEST(Session, text_stands_in_the_editor_where_the_entity_has_it_for_every_attachment) {
  for (int attachment = 1; attachment <= 9; ++attachment) {
    for (const double height : {0.0, 30.0}) {
      edited_drawing drawing;
      drawing.text->setAttachment(static_cast<OdDb::AttachmentPoint>(attachment));
      drawing.text->setHeight(height);
      OdGeExtents3d entity;
      ASSERT_EQ(drawing.text->getGeomExtents(entity), eOk);
      smart_edit& session = drawing.begin();
      OdGeExtents3d edited = session.editable().textExtents();
      edited.transformBy(session.editable().frame().text_to_world());
      EXPECT_NEAR(edited.minPoint().x, entity.minPoint().x, 1e-9) << attachment;
      EXPECT_NEAR(edited.maxPoint().y, entity.maxPoint().y, 1e-9) << attachment;
      EXPECT_NEAR(edited.minPoint().y, entity.minPoint().y, 1e-9) << attachment;
    }
  }
}

TEST(Session, a_new_attachment_is_written_with_the_location) {
  edited_drawing drawing;
  smart_edit& session = drawing.begin();
  session.editable().setAttachment(4);
  session.finishEdit(/*accept=*/true, /*force=*/false);
  EXPECT_EQ(drawing.text->attachment(), OdDb::kMiddleCenter);
  EXPECT_EQ(drawing.text->contents(), OdString(u"Hall"));
}

TEST(Session, a_single_line_text_is_selected_whole_and_written_as_plain_text) {
  edited_drawing drawing;
  auto line = odNew<OdDbText>();
  line->setDatabaseDefaults(drawing.database.get());
  line->setTextString(u"Room {1}");
  line->setHeight(3);
  line->setPosition({5, 5, 0});
  smart_edit session(drawing.application.document());
  session.beginTextEdit(line);
  EXPECT_EQ(session.editable().selections()[0].end, 8U);
  drawing.send({.number = WM_KEYDOWN, .code = VK_END});
  drawing.send({.number = WM_KEYUP, .code = VK_END});
  drawing.type(u" a");
  EXPECT_TRUE(session.finishEdit(/*accept=*/true, /*force=*/false));
  EXPECT_EQ(line->textString(), OdString(u"Room {1} a"));
  EXPECT_EQ(line->visibility(), OdDb::kVisible);
}

TEST(Session, undo_keeps_the_width_factor_of_a_single_line_text) {
  edited_drawing drawing;
  auto line = odNew<OdDbText>();
  line->setDatabaseDefaults(drawing.database.get());
  line->setTextString(u"Room");
  line->setHeight(3);
  line->setWidthFactor(0.5);
  smart_edit session(drawing.application.document());
  session.beginTextEdit(line);
  drawing.type(u"x");
  session.undoStep();
  EXPECT_DOUBLE_EQ(session.editable().defaultFormat().width_factor, 0.5);
}

TEST(Session, the_baseline_of_a_single_line_text_stands_on_its_position) {
  edited_drawing drawing;
  auto line = odNew<OdDbText>();
  line->setDatabaseDefaults(drawing.database.get());
  line->setTextString(u"Room");
  line->setHeight(3);
  line->setPosition({5, 7, 0});
  smart_edit session(drawing.application.document());
  session.beginTextEdit(line);
  EXPECT_NEAR(session.editable().linePosition(0).y, 7, 1e-9);
}
