#include "host/profile_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace {

class ProfileFile : public testing::Test {
 protected:
  void SetUp() override { std::filesystem::remove_all(folder); }
  void TearDown() override { std::filesystem::remove_all(folder); }

  const std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("scribe_profile_" + std::to_string(getpid()));
  const std::filesystem::path file = folder / "deep" / "profile.ini";
};

TEST_F(ProfileFile, what_is_set_is_there_in_the_next_run) {
  HostProfileFile(file).setNumber(u"SCRIBE", u"ptpos.x", 120);
  HostProfileFile(file).setText(u"Text", u"Name", u"Übung = 1");
  const HostProfileFile next(file);
  EXPECT_EQ(next.number(u"SCRIBE", u"ptpos.x", 0), 120);
  EXPECT_EQ(next.text(u"Text", u"Name"), u"Übung = 1");
}

TEST_F(ProfileFile, ends_of_lines_and_backslashes_survive) {
  HostProfileFile(file).setText(u"a", u"b", u"one\ntwo\r\\n");
  EXPECT_EQ(HostProfileFile(file).text(u"a", u"b"), u"one\ntwo\r\\n");
}

TEST_F(ProfileFile, a_name_may_hold_any_sign) {
  HostProfileFile(file).setText(u"[a]", u"[b=c", u"d");
  EXPECT_EQ(HostProfileFile(file).text(u"[a]", u"[b=c"), u"d");
}

TEST_F(ProfileFile, a_file_that_is_not_there_is_empty) {
  EXPECT_FALSE(HostProfileFile(file).text(u"a", u"b"));
  EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ProfileFile, a_place_that_cannot_be_written_is_named) {
  std::filesystem::create_directories(file);
  std::string told;
  try {
    HostProfileFile(folder / "deep").setText(u"a", u"b", u"c");
  } catch (const std::runtime_error& error) {
    told = error.what();
  }
  EXPECT_THAT(told, testing::HasSubstr((folder / "deep").string()));
}

}  // namespace
