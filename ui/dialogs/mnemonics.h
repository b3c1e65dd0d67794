#pragma once

#include <string>
#include <vector>

namespace dialogs {

/// Labels with an "&" before the letter that, with Alt, leads to each: none twice, in whatever language. The
/// beginnings of words are taken first. A label for which no letter is left stays as it is; an "&" of its own
/// is doubled.
std::vector<std::u16string> with_mnemonics(std::vector<std::u16string> labels);

}  // namespace dialogs
