#pragma once

#include "mtext/format.h"
#include "od/gi/OdGiTextStyle.h"

class OdGiFontContext;

namespace mtext {

/// The drawing style of a character format with its font found: font, size and width factor, upright and
/// without a big font. The height has to be in drawing units.
OdGiTextStyle text_style(const format::string& format, const OdGiFontContext& fonts);

}  // namespace mtext
