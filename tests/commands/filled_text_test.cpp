#include "commands/filled_text.h"

#include <gtest/gtest.h>

#include <stdexcept>

TEST(FilledText, each_place_takes_its_text) {
  EXPECT_EQ(filled_text(u"%s, %s.", {u"one", u"%s"}), u"one, %s.");
  EXPECT_EQ(filled_text(u"none", {}), u"none");
}

TEST(FilledText, places_and_texts_have_to_be_as_many) {
  EXPECT_THROW(filled_text(u"%s", {}), std::invalid_argument);
  EXPECT_THROW(filled_text(u"", {u"one"}), std::invalid_argument);
}
