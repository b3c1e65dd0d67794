#include "benchmarks/sample_text.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "mtext/parse.h"

namespace benchmarks {
namespace {

mtext::multitext read(const sample_text& text) {
  mtext::multitext logical;
  mtext::parse(text.codes, {.font = u"Liberation Sans", .pitch = 34}, logical, {});
  return logical;
}

std::u16string letters_of(const mtext::part& part) {
  switch (part.type()) {
    case mtext::part_string:
      return static_cast<const mtext::string&>(part).text;
    case mtext::part_spaces:
      return std::u16string(static_cast<const mtext::spaces&>(part).count, u' ');
    case mtext::part_new_paragraph:
      return u"\n";
    default:
      return u"?";
  }
}

std::u16string letters_of(const mtext::multitext& text) {
  std::u16string letters;
  for (const mtext::part& each : text.parts) letters += letters_of(each);
  return letters;
}

look look_of(const mtext::format::string& format) {
  if (format.color.kind == 0) return look::red;
  if (format.flags & mtext::format::flag_bold) return look::bold;
  return format.height == higher_factor ? look::higher : look::base;
}

/// The look of every letter, as the runs tell it.
std::vector<look> told_looks(const sample_text& text) {
  std::vector<look> looks(text.letters.size(), look::base);
  for (const look_run& run : text.runs)
    std::fill(looks.begin() + run.begin, looks.begin() + run.end, run.shown);
  return looks;
}

std::vector<look> read_looks(const mtext::multitext& text) {
  std::vector<look> looks;
  for (const mtext::part& each : text.parts) {
    looks.insert(looks.end(), letters_of(each).size(), look_of(each.format));
  }
  return looks;
}

constexpr density densities[] = {density::plain, density::typical, density::dense};

TEST(SampleText, has_exactly_the_letters_that_are_asked_for) {
  for (density each : densities) EXPECT_EQ(make_sample_text(1000, each).letters.size(), 1000u);
}

TEST(SampleText, shows_the_peers_the_letters_that_its_codes_mean) {
  for (density each : densities) {
    const sample_text text = make_sample_text(10'000, each);
    EXPECT_EQ(letters_of(read(text)), text.letters);
  }
}

TEST(SampleText, shows_the_peers_the_looks_that_its_codes_mean) {
  for (density each : densities) {
    const sample_text text = make_sample_text(10'000, each);
    EXPECT_EQ(read_looks(read(text)), told_looks(text));
  }
}

TEST(SampleText, changes_its_look_every_60_or_every_8_letters_or_never) {
  EXPECT_EQ(make_sample_text(6000, density::plain).runs.size(), 0u);
  EXPECT_EQ(make_sample_text(6000, density::typical).runs.size(), 100u);
  EXPECT_EQ(make_sample_text(6000, density::dense).runs.size(), 750u);
}

TEST(SampleText, is_the_same_each_time) {
  EXPECT_EQ(make_sample_text(5000, density::dense).codes, make_sample_text(5000, density::dense).codes);
}

TEST(SampleText, has_a_paragraph_about_every_400_letters) {
  const std::u16string letters = make_sample_text(100'000, density::plain).letters;
  const auto count = std::count(letters.begin(), letters.end(), u'\n');
  EXPECT_GE(count, 235);
  EXPECT_LE(count, 250);
}

}  // namespace
}  // namespace benchmarks
