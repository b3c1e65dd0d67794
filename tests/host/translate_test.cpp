#include "host/translate.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <stdexcept>
#include <string>

#include "ui/resources/strings.h"

namespace {

TEST(Translate, a_text_without_a_translation_stays_itself) {
  EXPECT_EQ(Supp_Translate(u"Layer locked"), u"Layer locked");
}

TEST(Translate, a_string_is_found_by_its_number_and_translated) {
  constexpr auto table = std::to_array<ResourceString>({{90001, u"one"}, {90002, u"two"}});
  constexpr auto german = std::to_array<TranslatedText>({{u"two", u"zwei"}});
  host::register_strings(table);
  host::set_translations(german);
  EXPECT_EQ(host::resource_string(90001), u"one");
  EXPECT_EQ(host::resource_string(90002), u"zwei");
  host::set_translations({});
  EXPECT_EQ(host::resource_string(90002), u"two");
}

TEST(Translate, a_number_that_no_table_has_is_an_error_that_names_it) {
  try {
    host::resource_string(99999);
    FAIL() << "a string was found";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "resource_string: there is no string 99999");
  }
}

TEST(Translate, a_number_cannot_have_two_texts) {
  constexpr auto first = std::to_array<ResourceString>({{90003, u"one"}});
  constexpr auto second = std::to_array<ResourceString>({{90003, u"another"}});
  host::register_strings(first);
  EXPECT_NO_THROW(host::register_strings(first));
  EXPECT_THROW(host::register_strings(second), std::invalid_argument);
}

TEST(ResourceStrings, every_row_has_a_number_of_its_own_in_ascending_order_and_a_text) {
  int before = 0;
  for (const ResourceString& row : resources::string_table()) {
    EXPECT_GT(row.number, before);
    EXPECT_FALSE(std::u16string(row.text).empty()) << row.number;
    before = row.number;
  }
}

TEST(ResourceStrings, every_row_is_found_at_the_host_under_its_number) {
  resources::register_strings();
  for (const ResourceString& row : resources::string_table())
    EXPECT_EQ(host::resource_string(row.number), row.text) << row.number;
}

TEST(ResourceStrings, the_strings_of_session_and_commands_are_there) {
  std::set<int> numbers;
  for (const ResourceString& row : resources::string_table()) numbers.insert(row.number);
  for (const int number : {237, 1030, 1031, 1033, 1034, 1035, 1036, 1037, 1065})
    EXPECT_TRUE(numbers.contains(number)) << number;
}

}  // namespace
