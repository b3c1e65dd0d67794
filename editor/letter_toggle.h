#pragma once

#include <boost/logic/tribool.hpp>

#include "mtext/format_string.h"

class ExMTextEditable;

namespace editing {

/// What letters are or are not, whatever else they look like.
enum class letter_toggle { bold, italic, underline, overline };

/// Whether a format has it; indeterminate where only a part of the letters does.
boost::logic::tribool state_of(const mtext::format::string_partial& format, letter_toggle which);

/// Takes it from the selected letters, and from what is typed at the carets, if all have it; gives it to all
/// otherwise. Returns whether they have it now.
bool toggle(ExMTextEditable& text, letter_toggle which);

}  // namespace editing
