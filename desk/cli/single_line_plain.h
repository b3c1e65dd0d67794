#pragma once

#include <string>
#include <string_view>

/// The characters that a single-line text shows: `%%d`, `%%p`, `%%c`, `%%nnn` and `\U+xxxx` become
/// characters, the switches `%%u`, `%%o` and `%%k` go, `%%%` is a per cent sign.
std::u16string singleLinePlain(std::u16string_view text);
