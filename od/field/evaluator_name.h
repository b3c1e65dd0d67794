#pragma once

#include <string_view>

#include "od/base/export.h"

namespace field_code {

/// The evaluator that a code asks for: `AcVar` of `\AcVar.17.0 Lisp.x`; empty where the code names none.
SCRIBE_EXPORT std::u16string_view evaluatorOf(std::u16string_view code);

}  // namespace field_code
