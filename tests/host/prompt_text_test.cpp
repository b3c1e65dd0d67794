#include "host/prompt_text.h"

#include <gtest/gtest.h>

#include "host/prompt.h"

namespace {

TEST(PromptText, a_default_stands_in_angle_brackets) {
  EXPECT_EQ(host::prompt_text({.prompt = u"Specify height", .default_answer = u"2.5"}),
            u"Specify height <2.5>:");
}

TEST(PromptText, keywords_stand_in_square_brackets_before_the_default) {
  EXPECT_EQ(host::prompt_text({.prompt = u"Save", .keywords = u"Yes No", .default_answer = u"Yes"}),
            u"Save [Yes/No] <Yes>:");
}

TEST(PromptText, a_prompt_that_ends_its_sentence_gets_no_colon) {
  EXPECT_EQ(host::prompt_text({.prompt = u"Type the text..."}), u"Type the text...");
  EXPECT_EQ(host::prompt_text({.prompt = u"Really?"}), u"Really?");
  EXPECT_EQ(host::prompt_text({.prompt = u"Command"}), u"Command:");
}

TEST(PromptText, hidden_keywords_are_not_shown) {
  EXPECT_EQ(host::prompt_text({.prompt = u"Origin", .keywords = u"Justify *TL"}), u"Origin [Justify]:");
}

TEST(PromptText, a_question_that_tells_its_keywords_is_left_as_it_is) {
  EXPECT_EQ(host::prompt_text({.prompt = u"Select mode [A/B]", .keywords = u"A B"}), u"Select mode [A/B]:");
}

}  // namespace
