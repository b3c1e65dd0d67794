#include "od/dxf/atomic_save.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <functional>
#include <vector>

#include "od/dxf/error.h"

namespace {

namespace fs = std::filesystem;

class AtomicSave : public ::testing::Test {
 protected:
  AtomicSave() {
    std::string name = (fs::temp_directory_path() / "scribe-save-test-XXXXXX").string();
    folder = ::mkdtemp(name.data());
    drawing = folder / "plan.dxf";
  }
  ~AtomicSave() override { fs::remove_all(folder); }

  static void put(const fs::path& path, std::string_view bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }

  std::vector<std::string> names() const {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder)) found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
  }

  static std::string message_of(const std::function<void()>& action) {
    try {
      action();
    } catch (const dxf::Error& error) {
      return error.what();
    }
    return "no error";
  }

  fs::path folder;
  fs::path drawing;
};

using Names = std::vector<std::string>;

TEST_F(AtomicSave, a_new_file_is_written_alone) {
  dxf::atomic_save(drawing, "new");
  EXPECT_EQ(dxf::load_bytes(drawing), "new");
  EXPECT_EQ(names(), (Names{"plan.dxf"}));
}

TEST_F(AtomicSave, the_old_file_is_kept_as_a_backup) {
  put(drawing, "first");
  dxf::atomic_save(drawing, "second");
  dxf::atomic_save(drawing, "third");
  EXPECT_EQ(dxf::load_bytes(drawing), "third");
  EXPECT_EQ(dxf::load_bytes(folder / "plan.dxf.bak"), "second");
  EXPECT_EQ(names(), (Names{"plan.dxf", "plan.dxf.bak"}));
}

TEST_F(AtomicSave, permissions_stay) {
  put(drawing, "old");
  fs::permissions(drawing, fs::perms(0640));
  dxf::atomic_save(drawing, "new");
  EXPECT_EQ(fs::status(drawing).permissions(), fs::perms(0640));
}

TEST_F(AtomicSave, a_new_file_has_the_usual_permissions) {
  const mode_t before = ::umask(027);
  dxf::atomic_save(drawing, "new");
  ::umask(before);
  EXPECT_EQ(fs::status(drawing).permissions(), fs::perms(0640));
}

TEST_F(AtomicSave, a_symbolic_link_stays_and_its_file_is_written) {
  fs::create_directory(folder / "store");
  put(folder / "store" / "real.dxf", "old");
  fs::create_symlink("store/real.dxf", drawing);
  dxf::atomic_save(drawing, "new");
  EXPECT_TRUE(fs::is_symlink(drawing));
  EXPECT_EQ(dxf::load_bytes(folder / "store" / "real.dxf"), "new");
  EXPECT_EQ(dxf::load_bytes(folder / "store" / "real.dxf.bak"), "old");
}

TEST_F(AtomicSave, a_link_to_nothing_makes_the_file_it_names) {
  fs::create_symlink("later.dxf", drawing);
  dxf::atomic_save(drawing, "new");
  EXPECT_EQ(dxf::load_bytes(folder / "later.dxf"), "new");
}

TEST_F(AtomicSave, a_path_without_a_folder_means_the_current_one) {
  const fs::path before = fs::current_path();
  fs::current_path(folder);
  dxf::atomic_save("plan.dxf", "new");
  fs::current_path(before);
  EXPECT_EQ(dxf::load_bytes(drawing), "new");
}

TEST_F(AtomicSave, a_missing_folder_is_one_sentence) {
  const std::string message = message_of([&] { dxf::atomic_save(folder / "none" / "plan.dxf", "new"); });
  EXPECT_EQ(message, (folder / "none/plan.dxf").string() +
                         ": the folder cannot be written to (No such file or directory).");
}

TEST_F(AtomicSave, a_folder_is_no_target) {
  const std::string message = message_of([&] { dxf::atomic_save(folder, "new"); });
  EXPECT_EQ(message, folder.string() + ": this is no file that can be written to.");
}

TEST_F(AtomicSave, a_backup_that_cannot_be_made_leaves_everything_as_it_was) {
  put(drawing, "old");
  fs::create_directory(folder / "plan.dxf.bak");
  EXPECT_NE(message_of([&] { dxf::atomic_save(drawing, "new"); }).find("the backup cannot be made"),
            std::string::npos);
  EXPECT_EQ(dxf::load_bytes(drawing), "old");
  EXPECT_EQ(names(), (Names{"plan.dxf", "plan.dxf.bak"}));
}

TEST_F(AtomicSave, a_full_disk_leaves_everything_as_it_was) {
  put(drawing, "old");
  struct rlimit before {};
  ::getrlimit(RLIMIT_FSIZE, &before);
  struct rlimit small = before;
  small.rlim_cur = 1000;
  ::signal(SIGXFSZ, SIG_IGN);
  ::setrlimit(RLIMIT_FSIZE, &small);
  const std::string message = message_of([&] { dxf::atomic_save(drawing, std::string(5000, 'x')); });
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(message, drawing.string() + ": the drawing cannot be written (File too large).");
  EXPECT_EQ(dxf::load_bytes(drawing), "old");
  EXPECT_EQ(names(), (Names{"plan.dxf"}));
}

TEST_F(AtomicSave, loading_says_what_is_wrong) {
  EXPECT_EQ(message_of([&] { dxf::load_bytes(folder); }),
            folder.string() + ": this is a folder, not a drawing.");
  EXPECT_EQ(message_of([&] { dxf::load_bytes("/dev/zero"); }), "/dev/zero: this is a device, not a drawing.");
  EXPECT_EQ(message_of([&] { dxf::load_bytes(drawing); }),
            drawing.string() + ": the file cannot be opened (No such file or directory).");
}

}  // namespace
