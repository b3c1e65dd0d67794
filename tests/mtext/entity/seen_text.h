#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "mtext/format_paragraph.h"
#include "mtext/format_string.h"

/// A text as it is seen, for tests of what different codes have in common.
namespace mtext_test {

/// A part of one letter, or one that has none.
struct letter {
  std::uint32_t type = 0;
  std::u16string text;
  mtext::format::string look;
};

/// Each letter, and each paragraph with the number of its first letter.
struct seen {
  std::vector<letter> letters;
  std::vector<std::pair<std::size_t, mtext::format::paragraph>> paragraphs;
  bool ends_paragraph = true;
};

seen seen_in(const std::u16string& codes, const mtext::format::string& base = {});

/// Fails the test unless both look alike, but for what codes round.
void expect_alike(const seen& one, const seen& other);

}  // namespace mtext_test
