#pragma once

#include <string_view>

#include "mtext/geom_multitext.h"
#include "mtext/multitext.h"
#include "od/base/export.h"

namespace mtext {

/// Turns logical text into measured elements, one for each character. The results have parts and marks, but
/// no lines before `dispose`. `height` is the base height in drawing units, of which relative heights are
/// factors.

/// A whole text. Its paragraph lengths become relative.
SCRIBE_EXPORT geom_multitext to_geom(const multitext& text, double height, const string_size_finder& finder);

/// One part; of a field, the characters of its value ("----" without one) under a `marks::field`.
SCRIBE_EXPORT geom_multitext to_geom(const part& part, double height, const string_size_finder& finder);

/// Typed text: 9 is a tab, 10 a line end, 32 a blank, and 13 is dropped.
SCRIBE_EXPORT geom_multitext to_geom(std::u16string_view text, const format::string& format, double height,
                                     const string_size_finder& finder);

/// One typed character.
SCRIBE_EXPORT geom_multitext to_geom(char16_t character, const format::string& format, double height,
                                     const string_size_finder& finder);

/// Turns the five lengths and the tab positions of a paragraph in drawing units into multiples of `height`.
/// Does nothing if they are so already.
SCRIBE_EXPORT void make_relative(format::paragraph& paragraph, double height);

}  // namespace mtext
