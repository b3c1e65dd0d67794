#include <gtest/gtest.h>

#include <algorithm>

#include "mtext/dispose.h"
#include "mtext/to_geom.h"
#include "tests/mtext/decoded.h"
#include "tests/mtext/generated_text.h"

// Laying out behind an edit has to give what laying out all of the text gives, to the last bit.

namespace mtext {
namespace {

void expect_same_layout(const geom_multitext& again, const geom_multitext& fresh, const std::string& what) {
  ASSERT_EQ(lines_of(again), lines_of(fresh)) << what;
  for (std::size_t i = 0; i < fresh.parts.size(); ++i) {
    ASSERT_EQ(again.parts[i].x, fresh.parts[i].x) << what << " part " << i;
    ASSERT_EQ(again.parts[i].y, fresh.parts[i].y) << what << " part " << i;
    ASSERT_EQ(again.parts[i].size.advance, fresh.parts[i].size.advance) << what << " part " << i;
  }
  for (std::size_t i = 0; i < fresh.lines.size(); ++i) {
    const geom_line& a = again.lines[i];
    const geom_line& b = fresh.lines[i];
    ASSERT_EQ(a.x, b.x) << what << " line " << i;
    ASSERT_EQ(a.y, b.y) << what << " line " << i;
    ASSERT_EQ(a.size.above, b.size.above) << what << " line " << i;
    ASSERT_EQ(a.size.advance, b.size.advance) << what << " line " << i;
    ASSERT_EQ(a.size.ink_top, b.size.ink_top) << what << " line " << i;
  }
  ASSERT_EQ(columns_of(again), columns_of(fresh)) << what;
  for (std::size_t i = 0; i < fresh.columns.size(); ++i) {
    ASSERT_EQ(again.columns[i].height, fresh.columns[i].height) << what;
    ASSERT_EQ(again.columns[i].y, fresh.columns[i].y) << what;
  }
}

bool is_paragraph_end(const geom_part& part) { return part.type() == part_new_paragraph; }

/// Replaces a stretch of a text at random, and tells what stayed.
text_edit edit_at_random(geom_multitext& text, text_generator& random) {
  const std::size_t first = random.below(text.parts.size() + 1);
  const std::size_t most = std::min<std::size_t>(text.parts.size() - first, 6);
  const std::size_t count = random.below(most + 1);
  const geom_multitext inserted = random.text(random.below(3));
  text_edit edit{first, text.parts.size() - first - count, false};
  const auto begin = text.parts.begin() + static_cast<std::ptrdiff_t>(first);
  edit.paragraph_ends = std::any_of(begin, begin + static_cast<std::ptrdiff_t>(count), is_paragraph_end) ||
                        std::any_of(inserted.parts.begin(), inserted.parts.end(), is_paragraph_end);
  text.erase(first, count, /*drop_empty=*/true);
  text.insert(first, inserted);
  return edit;
}

TEST(DisposeAgain, any_edit_gives_what_laying_out_all_of_the_text_gives) {
  text_generator random(7);
  for (int round = 0; round < 600; ++round) {
    geom_multitext text = random.text(80);
    for (int edits = 0; edits < 5; ++edits) {
      const text_edit edit = edit_at_random(text, random);
      geom_multitext fresh = text;
      dispose(fresh);
      dispose(text, edit);
      expect_same_layout(text, fresh, "round " + std::to_string(round));
    }
  }
}

TEST(DisposeAgain, any_edit_of_a_text_in_one_column_gives_what_laying_out_all_of_it_gives) {
  text_generator random(8);
  for (int round = 0; round < 600; ++round) {
    geom_multitext text = random.text(120);
    text.info.columns = {.width = 60, .heights = {0}};
    text.info.vertical = 0;
    text.info.extents_mode = static_cast<std::uint32_t>(random.below(2)) * 2;
    dispose(text);
    for (int edits = 0; edits < 5; ++edits) {
      const text_edit edit = edit_at_random(text, random);
      geom_multitext fresh = text;
      dispose(fresh);
      dispose(text, edit);
      expect_same_layout(text, fresh, "round " + std::to_string(round));
    }
  }
}

/// Moves a part out of the place that it was given, so that one sees whether layout touches it.
constexpr double elsewhere = 12345;

TEST(DisposeAgain, lines_that_an_edit_leaves_alone_are_not_touched) {
  geom_multitext text = decoded(u"aaaa bbbb cccc dddd eeee ffff gggg hhhh iiii jjjj", frame(30));
  ASSERT_EQ(text.lines.size(), 10U);
  text.parts[0].x = elsewhere;
  text.parts[48].x = elsewhere;
  text.insert(26, to_geom(u'x', format::string{.height = 10, .height_kind = 0}, 10, stub_finder()));
  dispose(text, text_edit{26, 23});
  EXPECT_EQ(text.parts[0].x, elsewhere);
  EXPECT_EQ(text.parts[49].x, elsewhere);
}

TEST(DisposeAgain, of_a_text_that_was_empty_lays_all_of_it_out) {
  geom_multitext text = decoded(u"");
  text.insert(0, to_geom(u"ab cd", format::string{.height = 10, .height_kind = 0}, 10, stub_finder()));
  dispose(text, text_edit{});
  EXPECT_EQ(lines_of(text), texts{"ab cd"});
}

TEST(DisposeAgain, a_text_that_became_empty_has_no_lines) {
  geom_multitext text = decoded(u"ab cd");
  text.erase(0, 5, /*drop_empty=*/true);
  dispose(text, text_edit{});
  EXPECT_TRUE(text.lines.empty());
  EXPECT_EQ(text.columns.size(), 1U);
}

}  // namespace
}  // namespace mtext
