#include "desk/batch/text_filter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "od/db/OdDbDatabase.h"

namespace {

/// The texts of the sample that a filter means, in plain.
std::vector<std::u16string> meant(const TextFilterOptions& options) {
  static const OdDbDatabasePtr drawing = OdDbDatabase::readFile(SCRIBE_SOURCE_DIR "/samples/first-floor.dxf");
  const HostSelectionSet selected = TextFilter(options).selected(*drawing);
  std::vector<std::u16string> found;
  for (const DrawingText& text : textsOf(*drawing))
    if (selected.contains(text.id)) found.push_back(text.plain);
  return found;
}

bool has(const std::vector<std::u16string>& texts, std::u16string_view wanted) {
  return std::ranges::find(texts, wanted) != texts.end();
}

}  // namespace

TEST(TextFilter, without_a_word_means_all_texts_of_the_current_space) {
  const auto all = meant({});
  EXPECT_TRUE(has(all, u"Office"));
  EXPECT_TRUE(has(all, u"101"));
  EXPECT_TRUE(has(all, u"12000"));
}

TEST(TextFilter, takes_layers_by_name_and_by_pattern) {
  const auto notes = meant({.layers = {"notes"}});
  EXPECT_TRUE(has(notes, u"Table for 8\noak, 40 mm"));
  EXPECT_FALSE(has(notes, u"Office"));
  const auto more = meant({.layers = {"R*", "DIM?NSIONS"}});
  EXPECT_TRUE(has(more, u"Office"));
  EXPECT_TRUE(has(more, u"12000"));
  EXPECT_FALSE(has(more, u"Table for 8\noak, 40 mm"));
}

TEST(TextFilter, takes_kinds) {
  EXPECT_EQ(meant({.kinds = {TextKind::attribute}}),
            (std::vector<std::u16string>{u"101", u"102", u"103", u"104", u"105", u"106", u"107", u"108"}));
  const auto mtexts = meant({.kinds = {TextKind::mtext}});
  EXPECT_TRUE(has(mtexts, u"Street side\npublic footpath, keep free"));
  EXPECT_FALSE(has(mtexts, u"Office"));
}

TEST(TextFilter, finds_an_expression_anywhere_in_the_text_without_its_codes) {
  EXPECT_EQ(meant({.match = "^Table.*\\noak"}), std::vector<std::u16string>{u"Table for 8\noak, 40 mm"});
  EXPECT_EQ(meant({.match = "^Lob{1}by$"}), std::vector<std::u16string>{u"Lobby"});
  EXPECT_TRUE(meant({.match = "\\\\P"}).empty());
}

TEST(TextFilter, takes_what_meets_all_conditions) {
  EXPECT_EQ(meant({.layers = {"ROOMS"}, .kinds = {TextKind::text}, .match = "^Arch"}),
            std::vector<std::u16string>{u"Archive"});
  EXPECT_TRUE(meant({.layers = {"NOTES"}, .kinds = {TextKind::attribute}}).empty());
}

TEST(TextFilter, takes_text_styles) {
  EXPECT_EQ(meant({.styles = {"*"}}), meant({}));
  EXPECT_TRUE(meant({.styles = {"no such style"}}).empty());
}

TEST(TextFilter, takes_texts_of_other_blocks_when_all_are_asked_for) {
  EXPECT_TRUE(meant({.kinds = {TextKind::definition}}).empty());
  EXPECT_FALSE(meant({.kinds = {TextKind::definition}, .all_blocks = true}).empty());
}

TEST(TextFilter, refuses_what_is_no_expression) {
  EXPECT_THROW(TextFilter({.match = "(open"}), std::invalid_argument);
}
