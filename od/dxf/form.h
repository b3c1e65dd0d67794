#pragma once

namespace dxf {

/// The two forms in which a drawing is stored.
enum class Form { ascii, binary };

}  // namespace dxf
