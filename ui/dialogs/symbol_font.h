#pragma once

#include <memory>

#include "mtext/format_string.h"

class OdFont;

namespace dialogs {

/// The font of a format as the drawing that the user works on would have it. It comes from a library of its
/// own: what is only looked at is no font that the drawing lacks.
std::shared_ptr<const OdFont> font_to_look_at(const mtext::format::string& format);

}  // namespace dialogs
