#include <gtest/gtest.h>

#include "drawing_bytes.h"
#include "od/dxf/file.h"

namespace {

using dxf::File;
using dxf::Point;
using dxf::Record;

Record& entity(File& file) { return *file.records().first()->next(); }

TEST(RecordPoints, x_y_and_z_follow_each_other) {
  File file = File::read(drawing_of("  0\nX\n 10\n1.0\n 20\n2.0\n 30\n3.0\n"), "plan.dxf");
  EXPECT_EQ(entity(file).point_or(10, entity(file).body(), {}), (Point{1, 2, 3}));
  EXPECT_EQ(entity(file).point_or(11, entity(file).body(), {7, 8, 9}), (Point{7, 8, 9}));
}

TEST(RecordPoints, old_writers_put_all_x_first) {
  File file = File::read(drawing_of("  0\nLINE\n 10\n1.0\n 11\n5.0\n 20\n2.0\n 21\n6.0\n"), "plan.dxf");
  EXPECT_EQ(entity(file).point_or(10, entity(file).body(), {}), (Point{1, 2, 0}));
  EXPECT_EQ(entity(file).point_or(11, entity(file).body(), {}), (Point{5, 6, 0}));
}

TEST(RecordPoints, the_vertices_of_a_polyline_stay_apart) {
  File file = File::read(drawing_of("  0\nP\n 10\n1.0\n 20\n2.0\n 42\n0.5\n 10\n3.0\n 10\n4.0\n 20\n5.0\n"),
                         "plan.dxf");
  const Record& record = entity(file);
  EXPECT_EQ(record.get_point(1, record.size()), (Point{1, 2, 0}));
  EXPECT_EQ(record.get_point(4, record.size()), (Point{3, 0, 0}));
  EXPECT_EQ(record.get_point(5, record.size()), (Point{4, 5, 0}));
}

TEST(RecordPoints, only_the_coordinates_that_differ_are_written) {
  File file = File::read(drawing_of("  0\nX\n 10\n1.00\n 20\n2.00\n 30\n3.00\n"), "plan.dxf");
  entity(file).set_point(1, 4, {1, 2.5, 3});
  EXPECT_EQ(file.write(), drawing_of("  0\nX\n 10\n1.00\n 20\n2.5\n 30\n3.00\n"));
}

TEST(RecordPoints, a_missing_z_is_written_only_if_it_is_not_zero) {
  File file = File::read(drawing_of("  0\nX\n 10\n1.0\n 20\n2.0\n 40\n9.0\n"), "plan.dxf");
  entity(file).set_point(1, 4, {3, 4, 0});
  EXPECT_EQ(file.write(), drawing_of("  0\nX\n 10\n3.0\n 20\n4.0\n 40\n9.0\n"));
  entity(file).set_point(1, 4, {3, 4, 5});
  EXPECT_EQ(file.write(), drawing_of("  0\nX\n 10\n3.0\n 20\n4.0\n 30\n5.0\n 40\n9.0\n"));
}

TEST(RecordPoints, a_missing_y_is_inserted_behind_x) {
  File file = File::read(drawing_of("  0\nX\n 10\n1.0\n 40\n9.0\n"), "plan.dxf");
  entity(file).set_point(1, 3, {1, 4, 5});
  EXPECT_EQ(file.write(), drawing_of("  0\nX\n 10\n1.0\n 20\n4.0\n 30\n5.0\n 40\n9.0\n"));
}

TEST(RecordPoints, a_new_point_has_three_groups) {
  File file = File::read(drawing_of("  0\nX\n"), "plan.dxf");
  entity(file).insert_point(1, 10, {1, 2, 0});
  EXPECT_EQ(file.write(), drawing_of("  0\nX\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"));
}

}  // namespace
