#pragma once

namespace editing {

/// The height that a text is opened with: its own, or a small one for a text that has none.
double usable_height(double height);

}  // namespace editing
