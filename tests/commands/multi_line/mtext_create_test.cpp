#include <gtest/gtest.h>

#include "commands/multi_line/mtext_create.h"
#include "commands/multi_line/preview_tracker.h"
#include "host/field_service.h"
#include "host/key_code.h"
#include "od/db/OdDbDrawing.h"
#include "od/db/OdDbTextStyleTableRecord.h"
#include "od/dxf/header_variables.h"
#include "od/gi/OdGsView.h"
#include "tests/commands/command_run.h"
#include "ui/resources/menus.h"

namespace {

constexpr HostHeldKeys::Keys kCtrl{.ctrl = true};

OdDbMTextPtr created(command_run& run) {
  const auto entities = run.entities();
  return entities.empty() ? OdDbMTextPtr() : odCast<OdDbMText>(entities.back().openObject());
}

}  // namespace

TEST(MTextCreate, makes_a_text_of_two_corners_and_what_is_typed) {
  command_run run;
  run.application.input().click({10, 20, 0});
  run.application.input().click({50, 5, 0});
  run.type(u"Hall");
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTCreateCmd>(), kCommandDone);
  const auto text = created(run);
  ASSERT_TRUE(text);
  EXPECT_EQ(text->contents(), OdString(u"Hall"));
  EXPECT_EQ(text->location(), (OdGePoint3d{10, 20, 0}));
  EXPECT_DOUBLE_EQ(text->width(), 40);
  EXPECT_DOUBLE_EQ(text->height(), 15);
  EXPECT_EQ(text->visibility(), OdDb::kVisible);
}

TEST(MTextCreate, writes_the_fields_of_the_new_text_as_fields) {
  command_run run;
  resources::register_menus();
  HostGivenFields fields;
  const host::OfferingFields offer(fields);
  fields.give(u"\\AcVar LUNITS");
  run.application.input().click({10, 20, 0});
  run.application.input().click({50, 5, 0});
  run.type(u"in ");
  run.application.window().choose(1049);
  run.application.input().message({.number = WM_RBUTTONUP, .point = {30, 10, 0}});
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTCreateCmd>(), kCommandDone);
  const auto text = created(run);
  ASSERT_TRUE(text);
  EXPECT_EQ(text->contents(), OdString(u"in 2"));
  const auto field = odCast<OdDbField>(text->getField(u"TEXT"));
  ASSERT_TRUE(field);
  EXPECT_EQ(field->getFieldCode(OdDbField::kAddMarkers), OdString(u"in %<\\AcVar LUNITS>%"));
}

TEST(MTextCreate, the_box_may_be_drawn_in_any_corner_order) {
  const OdGePoint3d a{10, 5, 0}, b{50, 20, 0}, c{10, 20, 0}, d{50, 5, 0};
  for (const auto& [first, opposite] : {std::pair{a, b}, std::pair{b, a}, std::pair{c, d}, std::pair{d, c}}) {
    command_run run;
    run.application.input().click(first);
    run.application.input().click(opposite);
    run.type(u"x");
    run.key(VK_RETURN, kCtrl);
    run.run<CMTCreateCmd>();
    ASSERT_TRUE(created(run));
    EXPECT_EQ(created(run)->location(), (OdGePoint3d{10, 20, 0}));
    EXPECT_DOUBLE_EQ(created(run)->width(), 40);
  }
}

TEST(MTextCreate, cancel_at_the_first_corner_has_status_1_and_creates_nothing) {
  command_run run;
  run.application.input().cancel();
  EXPECT_EQ(run.run<CMTCreateCmd>(), kCommandCancelled);
  EXPECT_TRUE(run.entities().empty());
}

TEST(MTextCreate, cancel_at_the_opposite_corner_creates_nothing) {
  command_run run;
  run.application.input().click({0, 0, 0});
  run.application.input().cancel();
  EXPECT_EQ(run.run<CMTCreateCmd>(), kCommandCancelled);
  EXPECT_TRUE(run.entities().empty());
}

TEST(MTextCreate, cancel_in_a_session_of_an_unchanged_new_text_drops_it_without_a_question) {
  command_run run;
  run.application.input().click({0, 0, 0});
  run.application.input().click({40, -10, 0});
  run.key(VK_ESCAPE);
  EXPECT_EQ(run.run<CMTCreateCmd>(), kCommandCancelled);
  EXPECT_TRUE(run.entities().empty());
  EXPECT_TRUE(run.application.events().shown().empty());
}

TEST(MTextCreate, a_text_accepted_with_nothing_typed_is_dropped) {
  command_run run;
  run.application.input().click({0, 0, 0});
  run.application.input().click({40, -10, 0});
  run.key(VK_RETURN, kCtrl);
  EXPECT_EQ(run.run<CMTCreateCmd>(), kCommandCancelled);
  EXPECT_TRUE(run.entities().empty());
}

TEST(MTextCreate, a_click_outside_accepts_and_is_the_end_point) {
  command_run run;
  run.application.input().click({0, 0, 0});
  run.application.input().click({40, -10, 0});
  run.type(u"x");
  run.application.input().click({90, 90, 0});
  new_mtext_outcome outcome;
  EXPECT_TRUE(newMText(run.application.document(), {}, outcome));
  EXPECT_EQ(outcome.end_point, (OdGePoint3d{90, 90, 0}));
  EXPECT_EQ(outcome.text->contents(), OdString(u"x"));
}

TEST(MTextCreate, a_width_asks_for_the_first_corner_alone_and_contents_are_the_beginning) {
  command_run run;
  run.application.input().click({5, 5, 0});
  run.key(VK_RETURN, kCtrl);
  new_mtext_outcome outcome;
  EXPECT_TRUE(newMText(run.application.document(), {.width = 30, .contents = OdString(u"\\C1;a")}, outcome));
  EXPECT_DOUBLE_EQ(outcome.text->width(), 30);
  EXPECT_EQ(outcome.text->contents(), OdString(u"{\\C1;a}"));
}

TEST(MTextCreate, dimscale_0_is_read_as_1) {
  command_run run;
  run.database->setSysVarDouble(u"DIMSCALE", 0);
  odCast<OdDbTextStyleTableRecord>(run.database->getTEXTSTYLE().openObject(OdDb::kForWrite))->setTextSize(3);
  run.application.input().click({0, 0, 0});
  run.application.input().click({40, -10, 0});
  run.type(u"x");
  run.key(VK_RETURN, kCtrl);
  run.run<CMTCreateCmd>();
  ASSERT_TRUE(created(run));
  EXPECT_DOUBLE_EQ(created(run)->textHeight(), 3);
  EXPECT_DOUBLE_EQ(run.database->getSysVarDouble(u"TEXTSIZE", 0), 3);
}

TEST(MTextCreate, the_height_is_textsize_where_the_style_has_none) {
  command_run run;
  run.database->setSysVarDouble(u"TEXTSIZE", 4);
  run.application.input().click({0, 0, 0});
  run.application.input().click({40, -10, 0});
  run.type(u"x");
  run.key(VK_RETURN, kCtrl);
  run.run<CMTCreateCmd>();
  EXPECT_DOUBLE_EQ(created(run)->textHeight(), 4);
}

TEST(PreviewTracker, shows_a_sample_at_the_cursor_then_a_box) {
  command_run run;
  auto text = odNew<OdDbMText>();
  text->setDatabaseDefaults(run.database.get());
  const OdGsView view;
  MTPreviewTracker tracker(text, view);
  EXPECT_EQ(text->contents(), OdString(u"ABC"));
  tracker.setPoint({3, 4, 0});
  EXPECT_EQ(text->location(), (OdGePoint3d{3, 4, 0}));
  EXPECT_EQ(tracker.drawables().size(), 1U);

  tracker.setFirstCorner({10, 10, 0});
  tracker.setPoint({4, 16, 0});
  ASSERT_EQ(tracker.drawables().size(), 2U);
  EXPECT_EQ(tracker.frame()->getPointAt(0), (OdGePoint2d{4, 16}));
  EXPECT_EQ(tracker.frame()->getPointAt(1), (OdGePoint2d{10, 16}));
  EXPECT_EQ(tracker.frame()->getPointAt(2), (OdGePoint2d{10, 10}));
  EXPECT_EQ(tracker.frame()->getPointAt(3), (OdGePoint2d{4, 10}));
  EXPECT_TRUE(tracker.frame()->isClosed());
  EXPECT_EQ(text->location(), (OdGePoint3d{4, 16, 0}));
  EXPECT_DOUBLE_EQ(text->width(), 6);
  EXPECT_DOUBLE_EQ(text->height(), 6);
}

TEST(MTextCreate, the_text_lies_in_the_user_s_coordinate_system) {
  command_run run;
  dxf::HeaderVariables header(run.database->drawing().file());
  header.set_point("$UCSXDIR", 10, {0, 1, 0});
  header.set_point("$UCSYDIR", 10, {-1, 0, 0});
  // Turned by a quarter to the left: along the text is up, and its top is to the left.
  run.application.input().click({10, 20, 0});
  run.application.input().click({25, 60, 0});
  run.type(u"x");
  run.key(VK_RETURN, kCtrl);
  run.run<CMTCreateCmd>();
  ASSERT_TRUE(created(run));
  EXPECT_NEAR(created(run)->direction().y, 1, 1e-12);
  EXPECT_EQ(created(run)->location(), (OdGePoint3d{10, 20, 0}));
  EXPECT_DOUBLE_EQ(created(run)->width(), 40);
  EXPECT_DOUBLE_EQ(created(run)->height(), 15);
}

TEST(MTextCreate, axes_of_the_user_that_span_no_plane_are_the_world_s) {
  command_run run;
  dxf::HeaderVariables(run.database->drawing().file()).set_point("$UCSYDIR", 10, {1, 0, 0});
  run.application.input().click({0, 10, 0});
  run.application.input().click({10, 0, 0});
  run.type(u"x");
  run.key(VK_RETURN, kCtrl);
  run.run<CMTCreateCmd>();
  ASSERT_TRUE(created(run));
  EXPECT_EQ(created(run)->direction(), OdGeVector3d::kXAxis);
  EXPECT_EQ(created(run)->normal(), OdGeVector3d::kZAxis);
}
