#include "host/picking.h"

#include <gtest/gtest.h>

#include <numbers>

#include "host/command_factory.h"
#include "host/command_loop.h"
#include "host/selection_box_tracker.h"
#include "host/windowless/application.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbMText.h"
#include "od/gi/OdGiRecorder.h"

namespace {

constexpr double kAperture = 0.5;

/// Lays every text out as a box of 40 by 10 drawing units; a centred one begins left of its point, and the
/// last line's letters reach below its baseline.
class FixedBox : public OdDbMTextLayout {
 public:
  OdDbMTextMeasure measure(const OdDbMText& text) override {
    const double left = text.attachment() == OdDb::kTopCenter ? -30 : 0;
    return {.width = 40, .height = 10, .minimum = {left, -12}, .maximum = {left + 40, 0}};
  }
  std::vector<OdString> columnContents(const OdDbMText&, Spelling) override { return {}; }
  void draw(const OdDbMText&, OdGiWorldDraw&) override {}
};

class Picking : public testing::Test {
 protected:
  Picking() { application.document().database().setTextLayout(std::make_shared<FixedBox>()); }

  OdDbObjectId append(OdDbEntity& entity) {
    OdDbDatabase& database = application.document().database();
    const auto space = odCast<OdDbBlockTableRecord>(database.getActiveSpaceId().openObject(OdDb::kForWrite));
    return space->appendOdDbEntity(&entity);
  }
  OdDbObjectId text(const OdGePoint3d& location, double rotation = 0) {
    const auto entity = odNew<OdDbMText>();
    entity->setDatabaseDefaults(&application.document().database());
    entity->setContents(OdString(u"Office"));
    entity->setLocation(location);
    entity->setRotation(rotation);
    return append(*entity);
  }
  OdDbObjectId line(const OdGePoint3d& from, const OdGePoint3d& to) {
    const auto entity = odNew<OdDbLine>();
    entity->setStartPoint(from);
    entity->setEndPoint(to);
    return append(*entity);
  }
  OdDbObjectId at(double x, double y) { return application.document().picking().pick({x, y, 0}, kAperture); }

  WindowlessApplication application{OdDbDatabase::createEmpty()};
};

TEST_F(Picking, a_line_is_hit_within_the_aperture) {
  const OdDbObjectId id = line({0, 0, 0}, {100, 0, 0});
  EXPECT_EQ(at(50, 0.4), id);
  EXPECT_TRUE(at(50, 0.6).isNull());
  EXPECT_EQ(at(100.4, 0), id);
}

TEST_F(Picking, a_circle_is_hit_at_its_rim_and_not_inside) {
  const auto circle = odNew<OdDbCircle>();
  circle->setRadius(10);
  const OdDbObjectId id = append(*circle);
  EXPECT_EQ(at(0, 10.3), id);
  EXPECT_TRUE(at(0, 0).isNull());
}

TEST_F(Picking, a_text_is_hit_anywhere_in_its_box) {
  const OdDbObjectId id = text({100, 100, 0});
  EXPECT_EQ(at(120, 95), id);
  EXPECT_EQ(at(140.4, 87.6), id);
  EXPECT_TRUE(at(120, 101).isNull());
  EXPECT_TRUE(at(141, 95).isNull());
}

TEST_F(Picking, a_text_is_hit_where_its_lines_stand_whatever_its_attachment) {
  const OdDbObjectId id = text({100, 100, 0});
  odCast<OdDbMText>(id.openObject(OdDb::kForWrite))->setAttachment(OdDb::kTopCenter);
  EXPECT_EQ(at(71, 95), id);
  EXPECT_TRUE(at(111, 95).isNull());
}

TEST_F(Picking, the_letters_below_the_last_baseline_are_hit) {
  const OdDbObjectId id = text({100, 100, 0});
  EXPECT_EQ(at(120, 88.5), id);
}

TEST_F(Picking, the_box_of_a_text_turns_with_it) {
  const OdDbObjectId id = text({100, 100, 0}, std::numbers::pi / 2);
  EXPECT_EQ(at(105, 120), id);
  EXPECT_TRUE(at(120, 95).isNull());
}

TEST_F(Picking, the_topmost_of_two_is_hit) {
  line({0, 0, 0}, {100, 0, 0});
  const OdDbObjectId upper = line({50, -50, 0}, {50, 50, 0});
  EXPECT_EQ(at(50, 0), upper);
}

TEST_F(Picking, what_is_hidden_or_erased_is_not_hit) {
  const OdDbObjectId hidden = line({0, 0, 0}, {100, 0, 0});
  odCast<OdDbEntity>(hidden.openObject(OdDb::kForWrite))->setVisibility(OdDb::kInvisible);
  const OdDbObjectId erased = line({0, 5, 0}, {100, 5, 0});
  erased.openObject(OdDb::kForWrite)->erase();
  EXPECT_TRUE(at(50, 0).isNull());
  EXPECT_TRUE(at(50, 5).isNull());
}

TEST_F(Picking, a_prompt_for_one_entity_takes_the_one_under_a_press_and_asks_again_beside_it) {
  const OdDbObjectId id = text({100, 100, 0});
  HostSelectionSet picked;
  application.input().click({0, 0, 0});
  application.input().click({120, 95, 0});
  EXPECT_EQ(application.document().prompt().select(u"Select MText object", kSelectOne, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), std::vector{id});
}

TEST_F(Picking, the_word_last_and_a_typed_point_select_too) {
  const OdDbObjectId first = line({0, 0, 0}, {100, 0, 0});
  const OdDbObjectId newest = text({100, 100, 0});
  HostSelectionSet picked;
  for (const char16_t* answer : {u"last", u"50,0", u""}) application.input().line(answer);
  EXPECT_EQ(application.document().prompt().select(u"Select", kSelectMany, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), (std::vector{newest, first}));
}

TEST_F(Picking, an_empty_line_at_first_selects_nothing) {
  HostSelectionSet picked;
  application.input().line(u"");
  EXPECT_EQ(application.document().prompt().select(u"Select", kSelectOne, picked), kAnswerNothing);
  EXPECT_TRUE(picked.isEmpty());
}

class Idle : public Picking {
 protected:
  /// Runs the loop over the given input and returns what is selected when the last line comes.
  std::vector<OdDbObjectId> selectedBehind() {
    std::vector<OdDbObjectId> seen;
    application.commandFactory().registerCommand(
        u"TestSelected",
        [&]() -> OdSmartPtr<ICmdProcess> {
          seen = application.document().pickFirst().ids();
          return nullptr;
        },
        u"TEST", kCommandUsesPickFirst);
    application.input().line(u"TestSelected");
    HostCommandLoop(application, application.document()).runUntilEnd();
    return seen;
  }
};

TEST_F(Idle, a_click_selects_and_another_adds) {
  const OdDbObjectId first = line({0, 0, 0}, {100, 0, 0});
  const OdDbObjectId second = text({100, 100, 0});
  application.input().click({50, 0, 0});
  application.input().click({120, 95, 0});
  EXPECT_EQ(selectedBehind(), (std::vector{first, second}));
}

TEST_F(Idle, a_click_on_nothing_and_escape_clear_the_selection) {
  line({0, 0, 0}, {100, 0, 0});
  application.input().click({50, 0, 0});
  application.input().click({50, 300, 0});
  EXPECT_TRUE(selectedBehind().empty());
  application.input().click({50, 0, 0});
  application.input().cancel();
  EXPECT_TRUE(selectedBehind().empty());
}

TEST_F(Idle, a_click_with_shift_takes_an_entity_out) {
  line({0, 0, 0}, {100, 0, 0});
  application.input().click({50, 0, 0});
  application.input().message({.number = WM_LBUTTONDOWN, .point = {50, 0, 0}, .shift = true});
  EXPECT_TRUE(selectedBehind().empty());
}

TEST_F(Idle, a_double_click_on_a_multi_line_text_edits_it) {
  const OdDbObjectId id = text({100, 100, 0});
  std::vector<OdDbObjectId> edited;
  application.commandFactory().registerCommand(
      u"MTextEdit",
      [&]() -> OdSmartPtr<ICmdProcess> {
        edited = application.document().pickFirst().ids();
        return nullptr;
      },
      u"HOST", kCommandUsesPickFirst);
  application.input().click({120, 95, 0});
  application.input().message({.number = WM_LBUTTONDBLCLK, .point = {120, 95, 0}});
  HostCommandLoop(application, application.document()).runUntilEnd();
  EXPECT_EQ(edited, std::vector{id});
}

}  // namespace

TEST_F(Idle, a_double_click_on_a_multi_line_text_forgets_half_a_command) {
  text({100, 100, 0});
  int runs = 0;
  application.commandFactory().registerCommand(
      u"MTextEdit",
      [&runs]() -> OdSmartPtr<ICmdProcess> {
        ++runs;
        return nullptr;
      },
      u"HOST", kCommandUsesPickFirst);
  application.input().message({.number = WM_CHAR, .code = u'S'});
  application.input().message({.number = WM_LBUTTONDBLCLK, .point = {120, 95, 0}});
  HostCommandLoop(application, application.document()).runUntilEnd();
  EXPECT_EQ(runs, 1);
}

TEST_F(Picking, a_press_on_nothing_begins_a_rectangle_that_selects) {
  const OdDbObjectId inside = text({0, 0, 0});
  const OdDbObjectId touched = line({-50, -5, 0}, {50, -5, 0});
  HostSelectionSet picked;
  application.input().click({-20, 20, 0});
  application.input().click({60, -20, 0});
  application.input().line(u"");
  EXPECT_EQ(application.document().prompt().select(u"Select", kSelectMany, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), std::vector{inside});
  application.input().click({60, 20, 0});
  application.input().click({-20, -20, 0});
  application.input().line(u"");
  EXPECT_EQ(application.document().prompt().select(u"Select", kSelectMany, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), (std::vector{inside, touched}));
  EXPECT_EQ(application.log().lines().back(), u"Select:");
}

TEST_F(Picking, the_rectangle_follows_the_cursor) {
  HostSelectionBoxTracker tracker({-20, 20, 0});
  tracker.setPoint({60, -20, 0});
  OdGiRecorder recorder;
  recorder.record(*tracker.drawables().front());
  EXPECT_EQ(recorder.describe(), "polyline (-20,20) (60,20) (60,-20) (-20,-20) (-20,20) color 5\n");
}

TEST_F(Picking, all_selects_what_can_be_picked) {
  const std::vector ids{text({0, 0, 0}), line({0, 0, 0}, {1, 0, 0})};
  HostSelectionSet picked;
  application.input().line(u"all");
  application.input().line(u"");
  EXPECT_EQ(application.document().prompt().select(u"Select", kSelectMany, picked), kAnswerValue);
  EXPECT_EQ(picked.ids(), ids);
}

TEST_F(Picking, an_empty_line_gives_a_rectangle_up) {
  HostSelectionSet picked;
  application.input().click({-20, 20, 0});
  application.input().line(u"");
  application.input().line(u"");
  EXPECT_EQ(application.document().prompt().select(u"Select", kSelectMany, picked), kAnswerNothing);
}
