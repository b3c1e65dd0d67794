#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>

#include "mtext/decode.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbDatabase.h"
#include "tests/editor/edited_text.h"
#include "tests/mtext/stub_finder.h"

// What a key costs: how much is measured, and how often all of the text is read.

namespace {

/// Counts what it measures.
struct counting_finder : mtext::stub_finder {
  mtext::font_metrics font_metrics(const mtext::format::string& format) const override {
    ++asked;
    return stub_finder::font_metrics(format);
  }
  mtext::string_metrics measure(const mtext::format::string& format,
                                std::u16string_view text) const override {
    ++measured;
    return stub_finder::measure(format, text);
  }
  mutable int measured = 0;
  mutable int asked = 0;
};

/// A text whose finder counts, with the caret in its middle.
struct costed_text : edited_text {
  explicit costed_text(const std::string& drawn) : edited_text(drawn, wrapping(200)) {
    text().setFinder(finder);
    const std::size_t middle = text().text().parts.size() / 2;
    text().setSelections({mtext::marks::selection(middle)});
    keys("Left");
  }

  struct cost {
    int measured;
    unsigned layouts;
    unsigned numberings;
  };
  /// What one key costs, behind the first of its run.
  cost of(std::string_view key) {
    const ExMTextEditable::costs before = text().costsSoFar();
    finder->measured = 0;
    keys(key);
    return {finder->measured, text().costsSoFar().layouts - before.layouts,
            text().costsSoFar().numberings - before.numberings};
  }

  std::shared_ptr<counting_finder> finder = std::make_shared<counting_finder>();
};

std::string paragraphs(std::size_t characters) {
  std::string text;
  for (std::size_t i = 0; text.size() < characters; ++i) text += i % 40 == 39 ? "word¶" : "word ";
  return text;
}

std::string items(int count) {
  std::string text = "1.→item";
  for (int i = 2; i <= count; ++i) text += "¶" + std::to_string(i) + ".→item";
  return text;
}

}  // namespace

TEST(KeyCost, a_key_in_100000_characters_measures_what_it_types_and_nothing_else) {
  costed_text text(paragraphs(100000) + "|");
  EXPECT_LE(text.of("x").measured, 2);
  EXPECT_LE(text.of("Space").measured, 2);
  EXPECT_LE(text.of("Tab").measured, 2);
  EXPECT_LE(text.of("Enter").measured, 2);
  EXPECT_LE(text.of("Shift+Enter").measured, 2);
  EXPECT_LE(text.of("Ctrl+Shift+Space").measured, 2);
  for (const char* key : {"Backspace", "Delete", "Ctrl+Backspace", "Left", "Down", "Shift+Home", "Ctrl+z"})
    EXPECT_EQ(text.of(key).measured, 0) << key;
}

TEST(KeyCost, an_edit_lays_the_text_out_once_and_counts_its_lists_once) {
  for (const char* key : {"x", "Space", "Tab", "Backspace", "Delete", "Ctrl+Backspace", "x*3", "Backspace*3",
                          "Shift+Delete", "Shift+Insert"}) {
    costed_text text("ab cd ef| gh ij¶kl mn");
    text.application().clipboard().set(CF_UNICODETEXT, u"pq");
    text.keys("Shift+Left");
    const auto cost = text.of(key);
    EXPECT_EQ(cost.layouts, 1U) << key;
    EXPECT_LE(cost.numberings, 1U) << key;
  }
}

TEST(KeyCost, enter_lays_the_text_out_once_and_counts_no_lists) {
  for (const char* key : {"Enter", "Enter*3", "Ctrl+t"}) {
    costed_text text("ab cd|");
    const auto cost = text.of(key);
    EXPECT_EQ(cost.layouts, 1U) << key;
    EXPECT_EQ(cost.numberings, 0U) << key;
  }
}

TEST(KeyCost, several_carets_lay_the_text_out_once) {
  for (const char* key : {"x", "Backspace", "Delete", "Enter", "Ctrl+Backspace", "Tab"}) {
    costed_text text("ab cd¶ef gh¶ij kl");
    text.keys("Ctrl+Alt+Down Ctrl+Alt+Up");
    ASSERT_GT(text.text().selectionCount(), 1U);
    EXPECT_EQ(text.of(key).layouts, 1U) << key;
  }
}

TEST(KeyCost, moving_selecting_and_copying_read_the_text_not_once) {
  for (const char* key : {"Left", "Shift+Right", "Up", "Ctrl+Alt+Down", "Home", "End", "PageDown", "Ctrl+a",
                          "Ctrl+c", "Ctrl+Left"}) {
    costed_text text("ab cd¶ef| gh¶ij kl");
    const auto cost = text.of(key);
    EXPECT_EQ(cost.layouts, 0U) << key;
    EXPECT_EQ(cost.numberings, 0U) << key;
    EXPECT_EQ(cost.measured, 0) << key;
  }
}

TEST(KeyCost, undo_and_redo_measure_nothing) {
  costed_text text("ab cd¶ef| gh¶ij kl");
  text.keys("x Left Backspace");
  EXPECT_EQ(text.of("Ctrl+z Ctrl+z Ctrl+y").measured, 0);
}

TEST(KeyCost, a_key_in_a_list_of_1000_items_measures_no_label_whose_number_stays) {
  costed_text text(items(1000) + "|");
  EXPECT_LE(text.of("x").measured, 16);
}

namespace {

/// Seconds that this thread has worked, whatever else the machine does.
double worked() {
  timespec time;
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// What `work` takes, the middle one of several times.
template <class Work>
double seconds(int times, const Work& work) {
  std::vector<double> all;
  for (int i = 0; i < times; ++i) {
    const double before = worked();
    work();
    all.push_back(worked() - before);
  }
  std::nth_element(all.begin(), all.begin() + times / 2, all.end());
  return all[static_cast<std::size_t>(times) / 2];
}

}  // namespace

TEST(KeyCost, a_key_in_100000_characters_takes_less_than_a_tenth_of_laying_them_out_from_their_string) {
  edited_text text(paragraphs(100000) + "|", wrapping(200));
  auto finder =
      std::make_shared<mtext::mtext_size_finder>(OdDbDatabasePtr(&text.application().document().database()));
  text.text().setFinder(finder);
  text.text().setDefaultFormat({.height = 2.5, .height_kind = 0, .font = u"Liberation Sans"});
  text.text().load();
  text.text().setSelections({mtext::marks::selection(text.text().text().parts.size() / 2)});
  text.keys("x");
  const std::u16string codes = text.text().contentsText().str();
  const double whole = seconds(
      5, [&] { mtext::decode(codes, text.text().defaultFormat(), text.text().text().info, *finder, {}); });
  const double key = seconds(25, [&] { text.keys("x"); });
  RecordProperty("whole_microseconds", static_cast<int>(whole * 1e6));
  RecordProperty("key_microseconds", static_cast<int>(key * 1e6));
  EXPECT_LT(key, whole / 10) << key << " of " << whole << " seconds";
}
