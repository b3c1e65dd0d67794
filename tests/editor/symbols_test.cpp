#include "editor/symbols.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

TEST(Symbols, every_command_from_1007_to_1024_has_its_character) {
  const std::map<int, char16_t> characters{
      {1007, 0x00B0}, {1008, 0x00B1}, {1009, 0x00D8}, {1010, 0x2248}, {1011, 0x2220}, {1012, 0xE100},
      {1013, 0x2104}, {1014, 0x0394}, {1015, 0x0278}, {1016, 0xE101}, {1017, 0x2261}, {1018, 0xE102},
      {1019, 0x2260}, {1020, 0x2126}, {1021, 0x03A9}, {1022, 0x214A}, {1023, 0x2082}, {1024, 0x00B2}};
  for (int command = 1007; command <= 1024; ++command)
    EXPECT_EQ(editing::symbol_of(command), characters.at(command)) << command;
}

TEST(Symbols, other_commands_insert_nothing) {
  for (const int command : {0, 1001, 1006, 1025, 1049, -1}) EXPECT_FALSE(editing::symbol_of(command));
}

TEST(Symbols, the_rows_stand_in_the_order_of_their_commands_but_for_the_last) {
  const auto rows = editing::symbol_table();
  ASSERT_EQ(rows.size(), 19u);
  for (std::size_t i = 0; i < 18; ++i) EXPECT_EQ(rows[i].command, 1007 + static_cast<int>(i));
}

TEST(Symbols, the_last_row_is_never_reached_since_an_earlier_one_has_its_command) {
  const auto last = editing::symbol_table().back();
  EXPECT_EQ(last.command, 1015);
  EXPECT_EQ(last.character, u' ');
  EXPECT_EQ(editing::symbol_of(1015), u'\u0278');
}
