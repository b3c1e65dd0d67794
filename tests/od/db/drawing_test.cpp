#include <gtest/gtest.h>

#include <numbers>

#include "od/db/OdDbArc.h"
#include "od/db/OdDbBlockReference.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbCircle.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbLine.h"
#include "od/db/OdDbPolyline.h"
#include "od/db/OdGiContextForDbDatabase.h"
#include "od/gi/OdGiRecorder.h"

namespace {

std::string pictureOf(OdDbEntity& entity) {
  OdGiRecorder recorder;
  recorder.record(entity);
  return recorder.describe();
}

/// Draws the first entity of the model; groups are separated by blanks.
std::string pictureOf(const std::string& groups) {
  std::string lines = groups + " 0 EOF";
  for (char& c : lines) {
    if (c == ' ') c = '\n';
  }
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(lines + "\n", "test");
  const OdGiContextForDbDatabase context(database.get());
  OdGiRecorder recorder;
  const auto ids = odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->entities();
  recorder.record(*odOpen<OdDbEntity>(ids.at(0)), context);
  return recorder.describe();
}

const std::string kEntities = "0 SECTION 2 ENTITIES ";

}  // namespace

TEST(Drawing, a_line_is_a_polyline_of_two_points) {
  const auto line = odNew<OdDbLine>(OdGePoint3d{0, 0, 0}, OdGePoint3d{2, 1, 0});
  line->setColorIndex(3);
  EXPECT_EQ(pictureOf(*line), "polyline (0,0) (2,1) color 3\n");
}

TEST(Drawing, a_circle_is_a_circle) {
  EXPECT_EQ(pictureOf(*odNew<OdDbCircle>(OdGePoint3d{1, 1, 0}, 2)), "circle (1,1) r 2\n");
}

TEST(Drawing, an_arc_runs_counter_clockwise_over_the_zero_direction) {
  const auto arc = odNew<OdDbArc>();
  arc->setRadius(1);
  arc->setStartAngle(1.5 * std::numbers::pi);
  arc->setEndAngle(0.5 * std::numbers::pi);
  OdGiRecorder recorder;
  recorder.record(*arc);
  ASSERT_EQ(recorder.count(OdGiPrimitive::kArc), 1);
  EXPECT_NEAR(recorder.primitives()[0].sweep, std::numbers::pi, 1e-12);
  EXPECT_NEAR(recorder.primitives()[0].startVector.y, -1, 1e-12);
}

TEST(Drawing, a_polyline_is_divided_at_its_arcs) {
  const auto line = odNew<OdDbPolyline>();
  line->addVertexAt(0, {0, 0});
  line->addVertexAt(1, {4, 0}, 1);  // half a circle, counter-clockwise
  line->addVertexAt(2, {4, 2});
  line->addVertexAt(3, {0, 2});
  line->setClosed(true);
  OdGiRecorder recorder;
  recorder.record(*line);
  ASSERT_EQ(recorder.primitives().size(), 3u);
  const OdGiPrimitive& arc = recorder.primitives()[1];
  EXPECT_EQ(arc.kind, OdGiPrimitive::kArc);
  EXPECT_NEAR(arc.center.x, 4, 1e-12);
  EXPECT_NEAR(arc.center.y, 1, 1e-12);
  EXPECT_NEAR(arc.sweep, std::numbers::pi, 1e-12);
  EXPECT_EQ(recorder.primitives()[2].contours[0].size(), 3u);
}

TEST(Drawing, a_solid_fills_its_corners_in_the_order_of_a_z) {
  EXPECT_EQ(
      pictureOf(kEntities + "0 SOLID 8 0 10 0.0 20 0.0 11 1.0 21 0.0 12 0.0 22 1.0 13 1.0 23 1.0 0 ENDSEC"),
      "polygon (0,0) (1,0) (1,1) (0,1)\n");
}

TEST(Drawing, a_solid_hatch_fills_all_its_paths_at_once) {
  EXPECT_EQ(
      pictureOf(kEntities + "0 HATCH 8 0 10 0.0 20 0.0 30 0.0 2 SOLID 70 1 71 0 91 2 "
                            "92 2 72 0 73 1 93 3 10 0.0 20 0.0 10 9.0 20 0.0 10 9.0 20 9.0 97 0 "
                            "92 0 93 2 72 1 10 5.0 20 1.0 11 6.0 21 1.0 72 1 10 6.0 20 1.0 11 6.0 21 2.0 "
                            "97 1 330 2A 75 0 76 1 98 0 0 ENDSEC"),
      "polygon (0,0) (9,0) (9,9) | (5,1) (6,1) (6,1) (6,2)\n");
}

TEST(Drawing, a_hatch_edge_that_runs_clockwise_has_its_angles_negated) {
  std::string lines = kEntities +
                      "0 HATCH 8 0 10 0.0 20 0.0 2 SOLID 70 1 91 1 92 0 93 1 72 2 10 0.0 20 0.0 40 2.0 "
                      "50 270.0 51 360.0 73 0 97 0 0 ENDSEC 0 EOF";
  for (char& c : lines) {
    if (c == ' ') c = '\n';
  }
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(lines + "\n", "test");
  OdGeExtents3d extents;
  const auto ids = odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->entities();
  ASSERT_EQ(odOpen<OdDbEntity>(ids.at(0))->getGeomExtents(extents), eOk);
  EXPECT_NEAR(extents.minPoint().y, 0, 1e-9);
  EXPECT_NEAR(extents.maxPoint().y, 2, 1e-9);
}

TEST(Drawing, a_face_draws_the_edges_that_are_not_hidden) {
  EXPECT_EQ(pictureOf(kEntities +
                      "0 3DFACE 8 0 10 0.0 20 0.0 11 1.0 21 0.0 12 1.0 22 1.0 13 0.0 23 1.0 70 2 0 ENDSEC"),
            "polyline (0,0) (1,0)\npolyline (1,1) (0,1)\npolyline (0,1) (0,0)\n");
}

TEST(Drawing, a_spline_of_the_first_degree_is_its_control_points) {
  const auto extents = [](const std::string& groups) {
    const std::string picture = pictureOf(kEntities + "0 SPLINE 8 0 " + groups + " 0 ENDSEC");
    return std::pair(picture.substr(0, picture.find(')') + 1), picture.substr(picture.rfind('(')));
  };
  const auto [first, last] =
      extents("71 1 40 0.0 40 0.0 40 1.0 40 2.0 40 2.0 10 0.0 20 0.0 10 4.0 20 0.0 10 4.0 20 3.0");
  EXPECT_EQ(first, "polyline (0,0)");
  EXPECT_EQ(last, "(4,3)\n");
}

TEST(Drawing, a_quadratic_spline_passes_half_way_between_chord_and_control_point) {
  const std::string picture = pictureOf(kEntities +
                                        "0 SPLINE 8 0 71 2 40 0.0 40 0.0 40 0.0 40 1.0 40 1.0 40 1.0 10 0.0 "
                                        "20 0.0 10 2.0 20 4.0 10 4.0 20 0.0 0 ENDSEC");
  EXPECT_NE(picture.find(" (2,2) "), std::string::npos) << picture;
}

TEST(Drawing, an_ellipse_reaches_its_axes) {
  std::string lines =
      kEntities +
      "0 ELLIPSE 8 0 10 1.0 20 1.0 11 0.0 21 3.0 40 0.5 41 0.0 42 6.283185307179586 0 ENDSEC 0 EOF";
  for (char& c : lines) {
    if (c == ' ') c = '\n';
  }
  const OdDbDatabasePtr database = OdDbDatabase::readBytes(lines + "\n", "test");
  OdGeExtents3d extents;
  const auto ids = odOpen<OdDbBlockTableRecord>(database->getModelSpaceId())->entities();
  ASSERT_EQ(odOpen<OdDbEntity>(ids.at(0))->getGeomExtents(extents), eOk);
  EXPECT_NEAR(extents.maxPoint().y, 4, 0.01);
  EXPECT_NEAR(extents.maxPoint().x, 2.5, 0.01);
  EXPECT_NEAR(extents.minPoint().x, -0.5, 0.01);
}

TEST(Drawing, an_old_polyline_draws_its_vertices) {
  EXPECT_EQ(
      pictureOf(kEntities + "0 POLYLINE 8 0 66 1 70 1 0 VERTEX 8 0 10 0.0 20 0.0 0 VERTEX 8 0 10 3.0 20 0.0 "
                            "0 VERTEX 8 0 10 3.0 20 4.0 0 SEQEND 8 0 0 ENDSEC"),
      "polyline (0,0) (3,0) (3,4) (0,0)\n");
}

TEST(Drawing, an_insert_scales_turns_and_moves_its_block) {
  EXPECT_EQ(pictureOf("0 SECTION 2 BLOCKS 0 BLOCK 8 0 2 B 70 0 10 1.0 20 0.0 "
                      "0 LINE 8 0 10 1.0 20 0.0 11 2.0 21 0.0 0 ENDBLK 8 0 0 ENDSEC " +
                      kEntities + "0 INSERT 8 0 2 b 10 10.0 20 5.0 41 2.0 50 90.0 0 ENDSEC"),
            "polyline (10,5) (10,7)\n");
}

TEST(Drawing, an_array_of_inserts_is_spaced_without_its_scale) {
  EXPECT_EQ(
      pictureOf("0 SECTION 2 BLOCKS 0 BLOCK 8 0 2 B 70 0 10 0.0 20 0.0 "
                "0 LINE 8 0 10 0.0 20 0.0 11 1.0 21 0.0 0 ENDBLK 8 0 0 ENDSEC " +
                kEntities + "0 INSERT 8 0 2 B 10 0.0 20 0.0 41 2.0 70 2 71 2 44 10.0 45 20.0 0 ENDSEC"),
      "polyline (0,0) (2,0)\npolyline (10,0) (12,0)\npolyline (0,20) (2,20)\npolyline (10,20) (12,20)\n");
}

TEST(Drawing, by_block_takes_the_colour_of_the_insert_through_all_levels) {
  EXPECT_EQ(
      pictureOf(
          "0 SECTION 2 BLOCKS 0 BLOCK 8 0 2 A 70 0 10 0.0 20 0.0 "
          "0 LINE 8 0 62 0 10 0.0 20 0.0 11 1.0 21 0.0 0 ENDBLK 8 0 "
          "0 BLOCK 8 0 2 B 70 0 10 0.0 20 0.0 0 INSERT 8 0 62 0 2 A 10 0.0 20 0.0 0 ENDBLK 8 0 0 ENDSEC " +
          kEntities + "0 INSERT 8 0 62 5 2 B 10 0.0 20 0.0 0 ENDSEC"),
      "polyline (0,0) (1,0) color 5\n");
}

TEST(Drawing, layer_zero_inside_a_block_is_the_layer_of_the_insert) {
  const std::string picture = pictureOf(
      "0 SECTION 2 BLOCKS 0 BLOCK 8 0 2 A 70 0 10 0.0 20 0.0 "
      "0 LINE 8 0 10 0.0 20 0.0 11 1.0 21 0.0 0 ENDBLK 8 0 0 ENDSEC " +
      kEntities + "0 INSERT 8 doors 2 A 10 0.0 20 0.0 0 ENDSEC");
  EXPECT_NE(picture.find("doors"), std::string::npos) << picture;
}

TEST(Drawing, what_is_off_frozen_or_invisible_is_left_out) {
  const std::string table =
      "0 SECTION 2 TABLES 0 TABLE 2 LAYER 0 LAYER 2 off 70 0 62 -7 0 LAYER 2 cold 70 1 62 7 0 ENDTAB 0 "
      "ENDSEC ";
  EXPECT_EQ(pictureOf(table + kEntities + "0 CIRCLE 8 OFF 10 0.0 20 0.0 40 1.0 0 ENDSEC"), "");
  EXPECT_EQ(pictureOf(table + kEntities + "0 CIRCLE 8 cold 10 0.0 20 0.0 40 1.0 0 ENDSEC"), "");
  EXPECT_EQ(pictureOf(table + kEntities + "0 CIRCLE 8 0 60 1 10 0.0 20 0.0 40 1.0 0 ENDSEC"), "");
  EXPECT_EQ(pictureOf(table + kEntities + "0 CIRCLE 8 0 10 0.0 20 0.0 40 1.0 0 ENDSEC"),
            "circle (0,0) r 1\n");
}

TEST(Drawing, an_insert_of_a_missing_block_draws_nothing) {
  EXPECT_EQ(pictureOf(kEntities + "0 INSERT 8 0 2 ghost 10 0.0 20 0.0 0 ENDSEC"), "");
}

TEST(Drawing, extents_go_round_the_geometry) {
  OdGeExtents3d extents;
  ASSERT_EQ(odNew<OdDbLine>(OdGePoint3d{1, 2, 0}, OdGePoint3d{5, -2, 0})->getGeomExtents(extents), eOk);
  EXPECT_EQ(extents.minPoint(), (OdGePoint3d{1, -2, 0}));
  EXPECT_EQ(extents.maxPoint(), (OdGePoint3d{5, 2, 0}));
}
