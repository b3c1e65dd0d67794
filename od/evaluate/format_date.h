#pragma once

#include <string>
#include <string_view>

#include "od/field/OdFieldValue.h"

/// A moment by the usual letters: `d dd ddd dddd`, `M MM MMM MMMM`, `y yy yyyy`, `h hh H HH`, `m mm`, `s ss`,
/// `t tt`. Text in single quotes stands for itself, as does every other character. `%c`, `%x`, `%X`, with `#`
/// behind the sign for the long form, are date and time, date, and time. Names are English.
std::u16string odFormatDate(const OdFieldDate& date, std::u16string_view format);
