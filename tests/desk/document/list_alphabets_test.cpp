#include "desk/document/list_alphabets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/settings.h"

namespace {

TEST(ListAlphabets, stand_in_the_settings_english_first) {
  HostSettings settings;
  addListAlphabets(settings);
  const HostSettings* alphabets = settings.child(u"NamedListAlphabet");
  ASSERT_NE(alphabets, nullptr);
  EXPECT_THAT(alphabets->childNames(), testing::ElementsAre(u"eng", u"rus"));
}

TEST(ListAlphabets, have_as_many_capitals_as_small_letters) {
  HostSettings settings;
  addListAlphabets(settings);
  for (const char16_t* key : {u"eng", u"rus"}) {
    const HostSettings* each = settings.child(u"NamedListAlphabet")->child(key);
    EXPECT_EQ(each->value(u"lower")->size(), each->value(u"upper")->size());
    EXPECT_FALSE(each->value(u"name")->empty());
  }
}

}  // namespace
