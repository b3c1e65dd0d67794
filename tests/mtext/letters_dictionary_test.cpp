#include "mtext/letters_dictionary.h"

#include <gtest/gtest.h>

#include <boost/property_tree/exceptions.hpp>
#include <boost/property_tree/json_parser/error.hpp>

#include "tests/mtext/small_stack.h"

namespace mtext::marks {
namespace {

using boost::property_tree::json_parser::json_parser_error;
using boost::property_tree::ptree_bad_path;

letters_dictionary read(std::string_view text) { return letters_dictionary::from_json(text); }

TEST(DefaultLetters, are_the_english_ones) {
  EXPECT_EQ(default_letters(), (letters_dictionary{{u"eng", u"English", u"abcdefghijklmnopqrstuvwxyz",
                                                    u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"}}));
}

TEST(FromJson, a_member_is_an_alphabet_and_its_name_the_key) {
  EXPECT_EQ(read(R"({ "eng": { "name": "English", "lower": "abc", "upper": "ABC" } })"),
            (letters_dictionary{{u"eng", u"English", u"abc", u"ABC"}}));
}

TEST(FromJson, an_empty_object_gives_an_empty_dictionary) { EXPECT_TRUE(read("{}").empty()); }

TEST(FromJson, alphabets_come_in_the_order_of_the_document) {
  const letters_dictionary letters = read(R"({"rus": {"lower": "", "upper": "", "name": ""},
                                              "eng": {"name": "", "upper": "", "lower": ""}})");
  ASSERT_EQ(letters.size(), 2u);
  EXPECT_EQ(letters[0].key, u"rus");
  EXPECT_EQ(letters[1].key, u"eng");
}

TEST(FromJson, reads_utf_8_and_escapes) {
  const letters_dictionary letters = read(
      "{\"ell\": {\"name\": \"\u0395\u03bb\", \"lower\": \"\\u03b1\u03b2\", \"upper\": \"\\ud835\\udd38\"}}");
  EXPECT_EQ(letters[0].name, u"\u0395\u03bb");
  EXPECT_EQ(letters[0].lower, u"\u03b1\u03b2");
  EXPECT_EQ(letters[0].upper, u"\U0001d538");
}

TEST(FromJson, a_missing_member_is_no_such_node) {
  for (const char* missing : {"upper", "lower", "name"}) {
    std::string text = R"({"eng": {"upper": "A", "lower": "a", "name": "E"}})";
    text.replace(text.find(missing), 1, "_");
    try {
      read(text);
      FAIL() << "nothing was thrown without " << missing;
    } catch (const ptree_bad_path& error) {
      EXPECT_EQ(std::string(error.what()), "No such node (" + std::string(missing) + ")");
    }
  }
}

TEST(FromJson, what_is_no_json_is_an_error_of_the_parser) {
  for (const char* text :
       {"", "{", "{\"eng\"}", "{} x", "{\"eng\": {\"name\": \"E}}", "nonsense", "{\"a\": \"\xff\"}"}) {
    EXPECT_THROW(read(text), json_parser_error) << text;
  }
}

TEST(FromJson, an_alphabet_that_is_no_object_has_no_members) {
  EXPECT_THROW(read(R"({"eng": "abc"})"), ptree_bad_path);
  EXPECT_THROW(read(R"({"eng": null})"), ptree_bad_path);
}

TEST(FromJson, deep_nesting_is_refused_with_its_line_and_costs_no_stack) {
  mtext_test::on_small_stack([] {
    for (const std::string& opening : {std::string("["), std::string("{\"a\":")}) {
      std::string text = "{\"eng\":\n";
      for (int i = 0; i < 1'000'000; ++i) text += opening;
      try {
        read(text);
        FAIL() << "nothing was thrown";
      } catch (const json_parser_error& error) {
        EXPECT_EQ(error.message(), "nested deeper than 100");
        EXPECT_EQ(error.line(), 2u);
      }
    }
  });
}

TEST(FromJson, brackets_in_strings_are_letters_and_do_not_nest) {
  const std::string brackets(1000, '[');
  const letters_dictionary letters =
      read("{\"x\": {\"name\": \"\\\"" + brackets + "\", \"lower\": \"\\\\\", \"upper\": \"{\"}}");
  EXPECT_EQ(letters[0].name.size(), 1001u);
  EXPECT_EQ(letters[0].lower, u"\\");
}

TEST(FromJson, nesting_up_to_the_limit_is_read) {
  const auto nested = [](int depth) {
    return "{\"eng\": {\"upper\": \"A\", \"lower\": \"a\", \"name\": \"E\", \"more\": " +
           std::string(depth - 2, '[') + std::string(depth - 2, ']') + "}}";
  };
  EXPECT_EQ(read(nested(100)).size(), 1u);
  EXPECT_THROW(read(nested(101)), json_parser_error);
}

TEST(FromJson, a_huge_document_is_read_in_one_go) {
  std::string text = "{";
  for (int i = 0; i < 50'000; ++i) {
    if (i > 0) text += ',';
    text += "\"" + std::to_string(i) + R"(": {"upper": "ABC", "lower": "abc", "name": "E"})";
  }
  text +=
      ", \"long\": {\"upper\": \"A\", \"lower\": \"" + std::string(5'000'000, 'a') + "\", \"name\": \"\"}}";
  const letters_dictionary letters = read(text);
  ASSERT_EQ(letters.size(), 50'001u);
  EXPECT_EQ(letters.back().lower.size(), 5'000'000u);
}

}  // namespace
}  // namespace mtext::marks
