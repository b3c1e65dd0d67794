#include <gtest/gtest.h>

#include <numbers>

#include "editor/text_justify.h"
#include "host/key_code.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "tests/editor/edited_drawing.h"

namespace {

/// A session on a new single-line text, which is in no drawing yet.
struct new_lines : edited_drawing {
  new_lines() {
    source = odNew<OdDbText>();
    source->setDatabaseDefaults(database.get());
    source->setHeight(2.0);
    source->setPosition({10, 20, 0});
  }
  smart_edit& open() {
    session.emplace(application.document());
    session->beginTextEdit(source);
    return *session;
  }
  void key(unsigned code) {
    send({.number = WM_KEYDOWN, .code = code});
    send({.number = WM_KEYUP, .code = code});
  }
  /// Types lines, with Enter between them.
  void lines(std::initializer_list<std::u16string_view> texts) {
    for (const auto& each : texts) {
      if (&each != texts.begin()) key(VK_RETURN);
      type(each);
    }
  }
  /// Ends the session and gives the texts that it made.
  std::vector<OdDbTextPtr> finished(bool accept) {
    session->finishEdit(accept, /*force=*/false);
    std::vector<OdDbTextPtr> made;
    for (const OdDbObjectId id : session->writtenLines())
      made.push_back(odCast<OdDbText>(id.openObject(OdDb::kForWrite)));
    return made;
  }

  OdDbTextPtr source;
};

}  // namespace

TEST(SingleLineSession, a_new_single_line_text_accepted_with_nothing_typed_writes_no_entity) {
  new_lines drawing;
  const std::string before = drawing.bytes();
  drawing.open();
  EXPECT_TRUE(drawing.finished(/*accept=*/true).empty());
  EXPECT_EQ(drawing.bytes(), before);
}

TEST(SingleLineSession, each_line_of_a_new_text_becomes_an_entity_one_below_the_other) {
  new_lines drawing;
  drawing.open();
  drawing.lines({u"one", u"two", u"three"});
  const double pitch =
      drawing.session->editable().text().lines[0].y - drawing.session->editable().text().lines[1].y;
  const OdGePoint3d first = drawing.session->editable().linePosition(0);
  const auto made = drawing.finished(/*accept=*/true);
  ASSERT_EQ(made.size(), 3U);
  EXPECT_EQ(made[0]->textString(), OdString(u"one"));
  EXPECT_EQ(made[2]->textString(), OdString(u"three"));
  EXPECT_EQ(made[0]->position(), first);
  // The ink begins at the point, so the pen begins by the bearing of the first letter in front of it.
  EXPECT_NEAR(made[0]->position().x, 10, 0.2);
  EXPECT_NEAR(made[0]->position().y, 20, 1e-9);
  EXPECT_NEAR(made[1]->position().y, 20 - pitch, 1e-9);
  EXPECT_NEAR(made[2]->position().x, 10, 0.2);
  EXPECT_DOUBLE_EQ(made[1]->height(), 2.0);
  EXPECT_GT(pitch, 2.0);
}

TEST(SingleLineSession, empty_lines_are_skipped) {
  new_lines drawing;
  drawing.open();
  drawing.type(u"one");
  drawing.key(VK_RETURN);
  drawing.type(u"x");
  drawing.key(VK_BACK);
  drawing.send({.number = WM_CHAR, .code = u'\n'});
  drawing.type(u"three");
  const auto made = drawing.finished(/*accept=*/true);
  ASSERT_EQ(made.size(), 2U);
  EXPECT_EQ(made[1]->textString(), OdString(u"three"));
}

TEST(SingleLineSession, not_accepted_the_line_that_was_being_typed_is_given_up) {
  new_lines drawing;
  drawing.open();
  drawing.lines({u"one", u"two", u"thr"});
  const auto made = drawing.finished(/*accept=*/false);
  ASSERT_EQ(made.size(), 2U);
  EXPECT_EQ(made[1]->textString(), OdString(u"two"));
}

TEST(SingleLineSession, not_accepted_behind_an_enter_keeps_the_line_that_it_finished) {
  new_lines drawing;
  drawing.open();
  drawing.lines({u"one"});
  drawing.key(VK_RETURN);
  ASSERT_EQ(drawing.finished(/*accept=*/false).size(), 1U);
}

TEST(SingleLineSession, not_accepted_on_the_first_line_writes_nothing) {
  new_lines drawing;
  const std::string before = drawing.bytes();
  drawing.open();
  drawing.type(u"on");
  EXPECT_TRUE(drawing.finished(/*accept=*/false).empty());
  EXPECT_EQ(drawing.bytes(), before);
}

TEST(SingleLineSession, new_lines_have_the_style_with_its_slant_and_width) {
  new_lines drawing;
  const auto style =
      odCast<OdDbTextStyleTableRecord>(drawing.database->getTEXTSTYLE().openObject(OdDb::kForWrite));
  style->setXScale(0.8);
  style->setObliquingAngle(0.2);
  drawing.source->setTextStyle(style->objectId());
  drawing.open();
  drawing.lines({u"one"});
  const auto made = drawing.finished(/*accept=*/true);
  ASSERT_EQ(made.size(), 1U);
  EXPECT_EQ(made[0]->textStyle(), style->objectId());
  EXPECT_DOUBLE_EQ(made[0]->widthFactor(), 0.8);
  EXPECT_DOUBLE_EQ(made[0]->oblique(), 0.2);
}

TEST(SingleLineSession, new_lines_run_along_the_text_in_its_own_plane) {
  new_lines drawing;
  drawing.source->setNormal({0, 0, -1});
  drawing.source->setRotation(std::numbers::pi / 2);
  drawing.source->setPosition({10, 20, 0});
  drawing.open();
  drawing.lines({u"one", u"two"});
  const auto made = drawing.finished(/*accept=*/true);
  ASSERT_EQ(made.size(), 2U);
  EXPECT_EQ(made[1]->normal(), (OdGeVector3d{0, 0, -1}));
  EXPECT_NEAR(made[1]->rotation(), std::numbers::pi / 2, 1e-12);
  EXPECT_NEAR(made[0]->position().distanceTo({10, 20, 0}), 0, 0.2);
  // Seen from below, a text that runs upwards goes on to its left.
  EXPECT_NEAR(made[1]->position().y, 20, 0.2);
  EXPECT_LT(made[1]->position().x, 10 - 2.0);
}

TEST(SingleLineSession, new_lines_are_justified_as_the_text_that_was_begun) {
  new_lines drawing;
  drawing.source->setHorizontalMode(OdDb::kTextRight);
  drawing.source->setAlignmentPoint({10, 20, 0});
  drawing.source->adjustAlignment(drawing.database.get());
  drawing.open();
  drawing.lines({u"a", u"wider"});
  const auto made = drawing.finished(/*accept=*/true);
  ASSERT_EQ(made.size(), 2U);
  for (const auto& line : made) {
    EXPECT_EQ(line->horizontalMode(), OdDb::kTextRight);
    EXPECT_NEAR(line->alignmentPoint().x, 10, 0.3);
  }
  EXPECT_NEAR(made[0]->alignmentPoint().y, 20, 1e-9);
}

TEST(SingleLineSession, new_lines_go_into_the_space_that_is_worked_in) {
  new_lines drawing;
  drawing.database->setActiveSpaceId(drawing.database->getPaperSpaceId());
  drawing.open();
  drawing.lines({u"one"});
  const auto made = drawing.finished(/*accept=*/true);
  ASSERT_EQ(made.size(), 1U);
  const auto paper = odCast<OdDbBlockTableRecord>(drawing.database->getPaperSpaceId().openObject());
  ASSERT_FALSE(paper->entities().empty());
  EXPECT_EQ(paper->entities().back(), made[0]->objectId());
}

TEST(SingleLineSession, an_existing_text_is_written_in_place) {
  new_lines drawing;
  drawing.source->setTextString(u"old");
  const auto space =
      odCast<OdDbBlockTableRecord>(drawing.database->getModelSpaceId().openObject(OdDb::kForWrite));
  space->appendOdDbEntity(drawing.source.get());
  smart_edit& session = drawing.open();
  drawing.type(u"new");
  EXPECT_TRUE(session.finishEdit(/*accept=*/true, /*force=*/false));
  EXPECT_EQ(drawing.source->textString(), OdString(u"new"));
  EXPECT_TRUE(session.writtenLines().empty());
}

TEST(TextJustify, leaves_the_letters_where_they_are) {
  new_lines drawing;
  drawing.source->setTextString(u"Hall");
  const OdGePoint3d before = drawing.source->position();
  for (const auto& [h, v] :
       {std::pair(OdDb::kTextCenter, OdDb::kTextBase), std::pair(OdDb::kTextRight, OdDb::kTextTop),
        std::pair(OdDb::kTextFit, OdDb::kTextBase), std::pair(OdDb::kTextLeft, OdDb::kTextBase)}) {
    ApplyTextJustify(drawing.source, h, v);
    EXPECT_EQ(drawing.source->horizontalMode(), h);
    drawing.source->adjustAlignment();
    EXPECT_NEAR(drawing.source->position().distanceTo(before), 0, 1e-6) << h << v;
  }
}

TEST(TextJustify, knows_the_modes_with_two_points_and_the_point_that_a_text_hangs_on) {
  new_lines drawing;
  EXPECT_TRUE(alignOrFit(OdDb::kTextAlign) && alignOrFit(OdDb::kTextFit));
  EXPECT_FALSE(alignOrFit(OdDb::kTextMid));
  EXPECT_TRUE(isDefaultTextAlignment(drawing.source));
  EXPECT_EQ(TextPositionOrAlignmentPoint(drawing.source), drawing.source->position());
  drawing.source->setHorizontalMode(OdDb::kTextCenter);
  drawing.source->setAlignmentPoint({1, 2, 0});
  EXPECT_FALSE(isDefaultTextAlignment(drawing.source));
  EXPECT_EQ(TextPositionOrAlignmentPoint(drawing.source), (OdGePoint3d{1, 2, 0}));
}
