#pragma once

#include <vector>

#include "mtext/tab_stop.h"
#include "mtext/text_cursor.h"

namespace mtext::reading {

/// The list of tab stops behind the `t` of a paragraph code. A stop that is no stop ends the list and leaves
/// the cursor at its start.
std::vector<format::tab_stop> read_tabs(text_cursor& cursor);

}  // namespace mtext::reading
