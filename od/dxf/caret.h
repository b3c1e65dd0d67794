#pragma once

#include <string>

namespace dxf {

/// Replaces, in place, `^` and a character by the control character they stand for, and `^` and a blank by
/// `^`. Other characters up to U+007F give their lowest five bits; a `^` in front of anything else stays.
void decode_carets(std::u16string& text);

/// Appends a control character, or `^`, as `^` and the character that stands for it. Always true.
bool append_caret(char character, std::string& bytes);

}  // namespace dxf
