#include "host/command_input.h"

#include <gtest/gtest.h>

namespace {

std::u16string line_of(const std::optional<HostInput>& input) {
  const auto* line = input ? std::get_if<HostTypedLine>(&*input) : nullptr;
  return line ? line->text : u"(no line)";
}

TEST(CommandInput, characters_wait_for_the_end_of_their_line) {
  HostCommandInput input;
  input.type(u"Sa");
  EXPECT_FALSE(input.take());
  EXPECT_EQ(input.unfinished(), u"Sa");
  input.type(u"ve^M");
  EXPECT_EQ(line_of(input.take()), u"Save");
}

TEST(CommandInput, a_line_feed_ends_a_line_as_the_enter_sign_does) {
  HostCommandInput input;
  input.type(u"Zoom\nExtents^M");
  EXPECT_EQ(line_of(input.take()), u"Zoom");
  EXPECT_EQ(line_of(input.take()), u"Extents");
  EXPECT_FALSE(input.take());
}

TEST(CommandInput, the_cancel_sign_drops_the_line_and_cancels) {
  HostCommandInput input;
  input.type(u"Sav^C");
  const auto taken = input.take();
  ASSERT_TRUE(taken);
  EXPECT_TRUE(std::holds_alternative<HostCancel>(*taken));
  EXPECT_EQ(input.unfinished(), u"");
}

TEST(CommandInput, a_typed_caret_stands_for_itself) {
  HostCommandInput input;
  input.typeCharacter(u'^');
  input.typeCharacter(u'M');
  EXPECT_FALSE(input.take());
  input.eraseLast();
  input.endLine();
  EXPECT_EQ(line_of(input.take()), u"^");
}

}  // namespace
