#include "ui/resources/languages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "host/events.h"
#include "host/keyword_list.h"
#include "host/menu.h"
#include "host/translate.h"
#include "od/base/unicode.h"
#include "ui/resources/menus.h"
#include "ui/resources/message_format.h"
#include "ui/resources/strings.h"

namespace {

using Texts = std::map<int, std::u16string>;

Texts texts_of(const resources::Language& language) {
  Texts texts;
  for (const ResourceString& row : language.strings) texts.emplace(row.number, row.text);
  return texts;
}

const resources::Language& language(std::u16string_view key) {
  return *std::ranges::find(resources::languages(), key, &resources::Language::key);
}

/// The languages that English is translated into.
class Translation : public testing::TestWithParam<std::u16string> {
 protected:
  Texts m_english = texts_of(language(u"eng"));
  Texts m_texts = texts_of(language(GetParam()));
};

INSTANTIATE_TEST_SUITE_P(Languages, Translation, testing::Values(u"deu", u"rus"),
                         [](const auto& each) { return odToUtf8(each.param); });

TEST_P(Translation, every_number_stands_in_it_and_no_other) {
  for (const auto& [number, text] : m_english) EXPECT_TRUE(m_texts.contains(number)) << number;
  for (const auto& [number, text] : m_texts) EXPECT_TRUE(m_english.contains(number)) << number;
}

TEST_P(Translation, its_numbers_ascend) {
  int before = 0;
  for (const ResourceString& row : language(GetParam()).strings) {
    EXPECT_GT(row.number, before);
    before = row.number;
  }
}

TEST_P(Translation, placeholders_agree) {
  for (const auto& [number, text] : m_english)
    EXPECT_EQ(resources::placeholders(m_texts[number]), resources::placeholders(text)) << number;
}

TEST_P(Translation, help_keys_agree) {
  for (const auto& [number, text] : m_english)
    EXPECT_EQ(splitBoxText(m_texts[number]).help_key, splitBoxText(text).help_key) << number;
}

TEST_P(Translation, texts_that_go_on_go_on) {
  for (const auto& [number, text] : m_english) {
    EXPECT_FALSE(m_texts[number].empty()) << number;
    EXPECT_EQ(m_texts[number].ends_with(u"..."), text.ends_with(u"...")) << number;
    EXPECT_EQ(m_texts[number].ends_with(u":"), text.ends_with(u":")) << number;
  }
}

TEST_P(Translation, equal_texts_have_equal_translations) {
  std::map<std::u16string, std::u16string> by_text;
  for (const auto& [number, text] : m_english)
    EXPECT_EQ(by_text.try_emplace(text, m_texts[number]).first->second, m_texts[number]) << number;
}

bool is_keyword_list(const std::u16string& text) {
  return text.find(u" TL ") != text.npos || text.find(u" *TL ") != text.npos;
}

TEST_P(Translation, keywords_keep_their_english_names_behind_the_mark) {
  int lists = 0;
  for (const auto& [number, text] : m_english) {
    if (!is_keyword_list(text)) continue;
    ++lists;
    const HostKeywordList english(text), own(m_texts[number]);
    ASSERT_EQ(own.size(), english.size()) << number;
    for (std::size_t i = 0; i < english.size(); ++i) {
      EXPECT_EQ(own.globalName(i), english.globalName(i)) << number;
      EXPECT_EQ(own.find(own.name(i)), static_cast<int>(i)) << number << odToUtf8(own.name(i));
      EXPECT_EQ(own.find(u"_" + english.name(i)), static_cast<int>(i)) << number;
    }
    EXPECT_EQ(std::ranges::count(own.shown(), u'/'), std::ranges::count(english.shown(), u'/')) << number;
  }
  EXPECT_EQ(lists, 4);
}

TEST_P(Translation, every_text_is_translated_but_those_that_are_the_same) {
  const std::map<std::u16string, std::set<int>> same = {
      {u"deu", {1020, 1031, 1204, 1206, 1304, 1332, 1400, 1406, 1600, 1601, 1728, 1735, 1736, 1805, 1807}},
      {u"rus", {1020, 1460, 1461, 1462, 1463, 1464, 1465, 1466, 1467, 1468, 1469, 1470}}};
  for (const auto& [number, text] : m_english)
    EXPECT_EQ(m_texts[number] == text, same.at(GetParam()).contains(number)) << number;
}

TEST_P(Translation, is_what_the_host_says_in_that_language) {
  resources::register_strings();
  resources::speak(GetParam());
  for (const auto& [number, text] : m_texts) EXPECT_EQ(host::resource_string(number), text) << number;
  resources::speak(u"eng");
  for (const auto& [number, text] : m_english) EXPECT_EQ(host::resource_string(number), text) << number;
}

TEST(Languages, one_that_has_no_table_is_english) {
  resources::register_strings();
  resources::speak(u"deu");
  resources::speak(u"fra");
  EXPECT_EQ(host::resource_string(1040), u"Bold");
  resources::speak(u"");
  EXPECT_EQ(host::resource_string(1040), u"Bold");
}

TEST(Languages, russian_lists_have_the_letters_that_lists_are_lettered_with) {
  const Texts russian = texts_of(language(u"rus"));
  EXPECT_EQ(russian.at(1600).size(), russian.at(1601).size());
  EXPECT_EQ(russian.at(1600).front(), u'\u0430');
  for (const char16_t unusual : {u'\u0451', u'\u0439', u'\u044A', u'\u044B', u'\u044C'})
    EXPECT_EQ(russian.at(1600).find(unusual), std::u16string::npos);
}

std::set<std::u16string> english_texts() {
  std::set<std::u16string> texts;
  for (const ResourceString& row : resources::string_table()) texts.insert(row.text);
  return texts;
}

bool has_letters(const std::u16string& text) {
  return std::ranges::any_of(text,
                             [](char16_t unit) { return (unit | 0x20) >= u'a' && (unit | 0x20) <= u'z'; });
}

TEST(Languages, every_menu_row_is_a_text_that_is_translated) {
  const auto known = english_texts();
  for (const ResourceMenu& menu : resources::menu_table()) {
    for (const ResourceMenuRow& row : menu.rows) {
      for (const std::u16string text : {row.text, row.hint})
        EXPECT_TRUE(!has_letters(text) || known.contains(text)) << menu.number << ' ' << odToUtf8(text);
    }
  }
}

/// The texts that a source file has translated, as they stand between the quotation marks.
std::vector<std::string> translated_literals(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file).rdbuf();
  const std::string source = text.str();
  static const std::regex call(R"re((?:Supp_Translate\(|wanted = |reading_of\(request, )u"([^"]*)")re");
  std::vector<std::string> found;
  for (std::sregex_iterator at(source.begin(), source.end(), call), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

TEST(Languages, every_text_that_the_sources_have_translated_is_in_the_table) {
  const auto known = english_texts();
  std::size_t found = 0;
  for (const char* folder : {"host", "editor", "ui", "commands", "desk"}) {
    const std::filesystem::path root = std::filesystem::path(SCRIBE_SOURCE_DIR) / folder;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
      if (entry.path().extension() != ".cpp") continue;
      for (const std::string& text : translated_literals(entry.path())) {
        ++found;
        EXPECT_TRUE(known.contains(odToUtf16(text))) << entry.path() << ": " << text;
      }
    }
  }
  EXPECT_GT(found, 10u);
}

}  // namespace
