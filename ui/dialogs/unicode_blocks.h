#pragma once

#include <string>
#include <vector>

/// A range of characters that belong together.
struct unicode_block {
  std::u16string name;  ///< in English
  char32_t first;       ///< the first that can be seen
  char32_t last;        ///< the last that can be seen
};

namespace dialogs {

/// Every block that has characters to see, in the order of their numbers.
const std::vector<unicode_block>& unicode_blocks();

/// The characters of a block that can be seen.
std::vector<char32_t> characters_of(const unicode_block& block);

}  // namespace dialogs
