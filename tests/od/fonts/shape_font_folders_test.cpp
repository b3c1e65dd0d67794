#include "od/fonts/shape_font_folders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace {

class ShapeFontFolders : public testing::Test {
 protected:
  void SetUp() override {
    setenv("HOME", "/home-of-a-test", 1);
    unsetenv("XDG_DATA_HOME");
    unsetenv("XDG_DATA_DIRS");
  }
};

TEST_F(ShapeFontFolders, are_those_of_the_user_and_of_the_system) {
  EXPECT_THAT(odShapeFontFolders(),
              testing::ElementsAre("/home-of-a-test/.local/share/fonts",
                                   "/home-of-a-test/.local/share/fonts/shx", "/usr/local/share/fonts",
                                   "/usr/local/share/fonts/shx", "/usr/share/fonts", "/usr/share/fonts/shx"));
}

TEST_F(ShapeFontFolders, follow_the_variables_for_shared_data) {
  setenv("XDG_DATA_HOME", "/a", 1);
  setenv("XDG_DATA_DIRS", "/b::/c", 1);
  EXPECT_THAT(odShapeFontFolders(), testing::ElementsAre("/a/fonts", "/a/fonts/shx", "/b/fonts",
                                                         "/b/fonts/shx", "/c/fonts", "/c/fonts/shx"));
}

}  // namespace
