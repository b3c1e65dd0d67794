#include "ui/controls/CComboBoxT.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

struct owned_names {
  owned_names() {
    box.setRows({{u"Arial", 1}, {u"Arial Narrow", 2}, {u"Times", 3}});
    box.changed = [this](const CComboBoxT<int>::Row& row) {
      given.push_back(row.item);
      return takes;
    };
  }
  void confirm(std::u16string_view text) {
    box.edit().type(text);
    box.edit().enter();
  }

  CComboBoxT<int> box;
  std::vector<int> given;
  bool takes = true;
};

}  // namespace

TEST(ComboBoxT, a_whole_name_is_found_without_its_case) {
  owned_names names;
  EXPECT_EQ(names.box.find(u"ARIAL NARROW"), 1U);
  EXPECT_FALSE(names.box.find(u"Ari"));
}

TEST(ComboBoxT, typing_a_name_chooses_it_and_the_beginning_of_one_the_first_that_begins_so) {
  owned_names names;
  names.confirm(u"times");
  names.confirm(u"ari");
  EXPECT_THAT(names.given, ElementsAre(3, 1));
  EXPECT_EQ(names.box.edit().text(), u"Arial");
}

TEST(ComboBoxT, a_text_that_finds_nothing_stays_and_changes_nothing) {
  owned_names names;
  names.confirm(u"Helvetica");
  names.box.edit().leave();
  EXPECT_THAT(names.given, IsEmpty());
  EXPECT_EQ(names.box.edit().text(), u"Helvetica");
  names.confirm(u"");
  EXPECT_THAT(names.given, IsEmpty());
}

TEST(ComboBoxT, what_the_program_selects_is_not_given_to_the_owner) {
  owned_names names;
  names.box.select(2);
  EXPECT_EQ(names.box.edit().text(), u"Times");
  names.box.select({});
  EXPECT_EQ(names.box.edit().text(), u"");
  names.box.edit().leave();
  EXPECT_THAT(names.given, IsEmpty());
}

TEST(ComboBoxT, a_row_that_the_owner_refuses_gives_way_to_the_one_before) {
  owned_names names;
  names.box.select(2);
  names.takes = false;
  names.box.choose(0);
  EXPECT_EQ(names.box.selected(), 2U);
  EXPECT_EQ(names.box.edit().text(), u"Times");
}

TEST(ComboBoxT, an_added_row_stands_at_the_end) {
  owned_names names;
  EXPECT_EQ(names.box.addRow({u"Gone", 4}), 3U);
  names.box.choose(3);
  EXPECT_THAT(names.given, ElementsAre(4));
}
