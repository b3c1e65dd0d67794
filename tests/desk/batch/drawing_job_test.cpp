#include "desk/batch/drawing_job.h"

#include <gmock/gmock.h>

#include "desk/batch/batch_options.h"
#include "desk/program/usage_error.h"
#include "tests/desk/batch/scratch_folder.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;

class PlanJobs : public ScratchFolder {
 protected:
  std::vector<fs::path> targets() const {
    std::vector<fs::path> found;
    for (const DrawingJob& job : planJobs(options)) found.push_back(job.target.lexically_relative(folder));
    return found;
  }
  std::string refusal() const {
    try {
      planJobs(options);
    } catch (const UsageError& error) {
      return error.what();
    }
    return "no refusal";
  }

  BatchOptions options;
};

TEST_F(PlanJobs, drawings_keep_the_order_in_which_they_are_named) {
  options.files = {put("b.dxf", "12345"), put("a.dxf")};
  EXPECT_THAT(targets(), ElementsAre("b.dxf", "a.dxf"));
  EXPECT_EQ(planJobs(options).front().size, 5U);
}

TEST_F(PlanJobs, a_folder_stands_for_its_drawings_and_those_below) {
  put("plans/c.DXF");
  put("plans/notes.txt");
  put("plans/.c.DXF.scribe-staged");
  put("plans/north/a.dxf");
  options.files = {folder / "plans"};
  EXPECT_THAT(targets(), ElementsAre("plans/c.DXF", "plans/north/a.dxf"));
}

TEST_F(PlanJobs, a_drawing_that_is_named_twice_is_done_once) {
  const fs::path drawing = put("plans/a.dxf");
  fs::create_symlink(drawing, folder / "link.dxf");
  options.files = {drawing, folder / "plans", folder / "link.dxf"};
  EXPECT_THAT(targets(), ElementsAre("plans/a.dxf"));
}

TEST_F(PlanJobs, new_drawings_keep_their_names_and_their_places_below_a_folder) {
  options.out = folder / "new";
  options.files = {put("x/a.dxf"), folder / "plans"};
  put("plans/north/b.dxf");
  EXPECT_THAT(targets(), ElementsAre("new/a.dxf", "new/north/b.dxf"));
}

TEST_F(PlanJobs, what_came_out_of_an_earlier_batch_is_not_taken_in) {
  put("a.dxf");
  put("new/a.dxf");
  options.out = folder / "new";
  options.files = {folder};
  EXPECT_THAT(targets(), ElementsAre("new/a.dxf"));
}

TEST_F(PlanJobs, two_new_drawings_of_one_name_are_refused) {
  options.out = folder / "new";
  options.files = {put("x/a.dxf"), put("y/a.dxf")};
  EXPECT_THAT(refusal(), HasSubstr("x/a.dxf and "));
  EXPECT_THAT(refusal(), HasSubstr("would both be written to"));
}

TEST_F(PlanJobs, a_new_drawing_in_the_place_of_one_that_is_read_is_refused) {
  options.out = folder / "x";
  options.files = {put("x/a.dxf")};
  EXPECT_THAT(refusal(), HasSubstr("x/a.dxf is read itself"));
}

TEST_F(PlanJobs, a_missing_file_and_a_folder_without_drawings_are_refused) {
  options.files = {folder / "none.dxf"};
  EXPECT_THAT(refusal(), HasSubstr("There is no file "));
  options.files = {folder};
  EXPECT_EQ(refusal(), "There are no drawings to work on.");
}

}  // namespace
