#pragma once

#include <string_view>

#include "od/field/OdDbField.h"

namespace field_code {

/// See `OdDbField::createFromCode`. Where markers do not pair, the whole is one field without children. Depth
/// costs heap.
OdDbFieldPtr read(std::u16string_view code);

}  // namespace field_code
