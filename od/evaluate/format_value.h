#pragma once

#include "od/evaluate/OdFieldSource.h"

/// A value as text, by the format of a field's code. Without one a number is written in the units of the
/// drawing, a date as year, month and day. An empty value, or an empty text, shows "----".
OdString odFormatFieldValue(const OdFieldValue& value, std::u16string_view format, const OdFieldUnits& units);
