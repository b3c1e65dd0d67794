#pragma once

#include <string>

#include "mtext/multitext.h"

/// Logical texts as short strings, so that a test shows what it expects.
namespace mtext_test {

/// The parts between blanks: a word as `[word]`, a run of n blanks as `_n`, `tab`, `line`, a stack as
/// `<numerator/denominator>` with its separator, `P` or `N` for a paragraph or column end, a field as
/// `%code%` or `%code=value%`.
std::string outline(const mtext::multitext& text);

/// The text read in the base format, with neighbours joined.
mtext::multitext read(const std::u16string& text, const mtext::format::string& base = {});

/// `outline` of `read`.
std::string outline_of(const std::u16string& text);

/// The part at `index` of the class `Part`; throws `std::bad_cast` when it is of another.
template <typename Part>
const Part& part_at(const mtext::multitext& text, std::size_t index) {
  return dynamic_cast<const Part&>(text.parts.at(index));
}

}  // namespace mtext_test
