#include "od/dxf/staged_save.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>

#include "od/dxf/atomic_save.h"
#include "od/dxf/error.h"

namespace {

namespace fs = std::filesystem;

class StagedSave : public ::testing::Test {
 protected:
  StagedSave() {
    std::string name = (fs::temp_directory_path() / "scribe-staged-test-XXXXXX").string();
    folder = ::mkdtemp(name.data());
    drawing = folder / "plan.dxf";
    std::ofstream(drawing, std::ios::binary) << "old";
  }
  ~StagedSave() override { fs::remove_all(folder); }

  fs::path folder;
  fs::path drawing;
};

TEST_F(StagedSave, what_is_staged_lies_beside_and_the_drawing_stays_as_it_was) {
  dxf::stage_save(drawing, "new");
  EXPECT_EQ(dxf::load_bytes(drawing), "old");
  EXPECT_EQ(dxf::load_bytes(dxf::staged_path(drawing)), "new");
  EXPECT_EQ(dxf::staged_path(drawing).parent_path(), folder);
  EXPECT_FALSE(fs::exists(folder / "plan.dxf.bak"));
}

TEST_F(StagedSave, the_second_step_puts_it_in_place_and_keeps_a_backup) {
  dxf::stage_save(drawing, "new");
  dxf::finish_save(drawing);
  EXPECT_EQ(dxf::load_bytes(drawing), "new");
  EXPECT_EQ(dxf::load_bytes(folder / "plan.dxf.bak"), "old");
  EXPECT_FALSE(fs::exists(dxf::staged_path(drawing)));
}

TEST_F(StagedSave, staging_anew_takes_the_name_from_whoever_still_writes_there) {
  std::ofstream left_behind(dxf::staged_path(drawing), std::ios::binary);
  dxf::stage_save(drawing, "new");
  left_behind << "half of somethi" << std::flush;
  EXPECT_EQ(dxf::load_bytes(dxf::staged_path(drawing)), "new");
}

TEST_F(StagedSave, what_is_dropped_leaves_nothing_behind) {
  dxf::stage_save(drawing, "new");
  dxf::drop_save(drawing);
  EXPECT_FALSE(fs::exists(dxf::staged_path(drawing)));
  EXPECT_EQ(dxf::load_bytes(drawing), "old");
}

TEST_F(StagedSave, a_symbolic_link_stages_beside_the_file_it_points_to) {
  fs::create_directory(folder / "store");
  fs::rename(drawing, folder / "store" / "real.dxf");
  fs::create_symlink("store/real.dxf", drawing);
  dxf::stage_save(drawing, "new");
  EXPECT_EQ(dxf::staged_path(drawing).parent_path(), folder / "store");
  dxf::finish_save(drawing);
  EXPECT_TRUE(fs::is_symlink(drawing));
  EXPECT_EQ(dxf::load_bytes(folder / "store" / "real.dxf"), "new");
}

TEST_F(StagedSave, finishing_without_anything_staged_is_an_error_and_changes_nothing) {
  EXPECT_THROW(dxf::finish_save(drawing), dxf::Error);
  EXPECT_EQ(dxf::load_bytes(drawing), "old");
}

}  // namespace
