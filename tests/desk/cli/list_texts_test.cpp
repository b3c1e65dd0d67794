#include "desk/cli/list_texts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/desk/cli/program.h"

using testing::HasSubstr;

TEST(ListTexts, a_line_holds_handle_kind_layer_and_text) {
  sampleCopy();
  const ProgramRun run = runProgram("text sample.dxf");
  EXPECT_EQ(run.exit_code, 0);
  EXPECT_THAT(run.out, HasSubstr("EE\tMTEXT\tNOTES\tTable for 8\\noak, 40 mm\n"));
}

TEST(ListTexts, json_holds_every_text_with_its_block_and_its_line_ends) {
  sampleCopy();
  const auto list = nlohmann::json::parse(runProgram("text sample.dxf --json").out);
  const auto found =
      std::find_if(list.begin(), list.end(), [](const auto& each) { return each["handle"] == "EE"; });
  ASSERT_NE(found, list.end());
  EXPECT_EQ((*found)["kind"], "MTEXT");
  EXPECT_EQ((*found)["layer"], "NOTES");
  EXPECT_EQ((*found)["text"], "Table for 8\noak, 40 mm");
}

TEST(ListTexts, texts_of_blocks_and_attributes_are_among_them) {
  sampleCopy();
  const std::string out = runProgram("text sample.dxf").out;
  EXPECT_THAT(out, HasSubstr("\tATTRIB\t"));
  EXPECT_THAT(out, HasSubstr("\tATTDEF\t"));
}
