#pragma once

#include <string>
#include <string_view>

namespace dxf {

/// ICU's name for a code page that $DWGCODEPAGE names, in any case; empty for a name that is not known, and
/// "johab" for the one that ICU does not have.
std::string icu_code_page_name(std::string_view drawing_name);

}  // namespace dxf
