#include "host/profile.h"

#include <gtest/gtest.h>

namespace {

TEST(Profile, a_number_is_read_back_and_what_is_none_gives_the_fallback) {
  HostMemoryProfile profile;
  EXPECT_EQ(profile.number(u"Text", u"Rotate", 1), 1);
  profile.setNumber(u"Text", u"Rotate", 0);
  EXPECT_EQ(profile.number(u"Text", u"Rotate", 1), 0);
  profile.setText(u"Text", u"Rotate", u"yes");
  EXPECT_EQ(profile.number(u"Text", u"Rotate", 1), 1);
}

TEST(Profile, a_name_stands_for_itself_in_each_section) {
  HostMemoryProfile profile;
  profile.setText(u"A", u"name", u"one");
  EXPECT_FALSE(profile.text(u"B", u"name"));
  EXPECT_EQ(profile.text(u"A", u"name"), u"one");
}

}  // namespace
