#include "host/clipboard.h"

#include <gtest/gtest.h>

namespace {

TEST(Clipboard, a_private_format_has_the_same_number_for_the_same_name) {
  HostMemoryClipboard clipboard;
  const unsigned mtext = clipboard.registerFormat(u"MText");
  EXPECT_NE(mtext, 0u);
  EXPECT_NE(mtext, CF_UNICODETEXT);
  EXPECT_EQ(clipboard.registerFormat(u"MText"), mtext);
  EXPECT_NE(clipboard.registerFormat(u"Other"), mtext);
}

TEST(Clipboard, formats_stand_beside_each_other_until_it_is_emptied) {
  HostMemoryClipboard clipboard;
  const unsigned mtext = clipboard.registerFormat(u"MText");
  clipboard.empty();
  clipboard.set(CF_UNICODETEXT, u"plain");
  clipboard.set(mtext, u"{\\Lcoded}");
  EXPECT_EQ(clipboard.get(CF_UNICODETEXT), u"plain");
  EXPECT_EQ(clipboard.get(mtext), u"{\\Lcoded}");
  clipboard.empty();
  EXPECT_FALSE(clipboard.has(mtext));
  EXPECT_FALSE(clipboard.get(CF_UNICODETEXT));
}

TEST(Clipboard, an_empty_text_is_a_text) {
  HostMemoryClipboard clipboard;
  clipboard.set(CF_UNICODETEXT, u"");
  EXPECT_TRUE(clipboard.has(CF_UNICODETEXT));
}

}  // namespace
