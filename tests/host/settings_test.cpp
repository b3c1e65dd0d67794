#include "host/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

TEST(Settings, children_are_named_in_the_order_in_which_they_were_made) {
  HostSettings root;
  root.make(u"second");
  root.make(u"first");
  root.make(u"second");
  EXPECT_THAT(root.childNames(), testing::ElementsAre(u"second", u"first"));
}

TEST(Settings, a_value_is_read_back_from_the_node_that_has_it) {
  HostSettings root;
  root.make(u"NamedListAlphabet").make(u"0").setValue(u"upper", u"ABC");
  const IParam& tree = root;
  EXPECT_EQ(tree.child(u"NamedListAlphabet")->child(u"0")->value(u"upper"), u"ABC");
  EXPECT_FALSE(tree.value(u"upper"));
  EXPECT_EQ(tree.child(u"nothing"), nullptr);
}

}  // namespace
