#pragma once

#include <memory>

#include "od/dxf/code_page.h"

namespace dxf {

/// Code page 1361 (KS X 1001:1992, annex 3): syllables are composed of three fields of five bits, all other
/// characters stand in the order of KS X 1001, which `wansung` (code page 949) gives.
std::shared_ptr<const CodePage> make_johab(const CodePage& wansung);

}  // namespace dxf
