#pragma once

#include <string_view>

#include "desk/script/script_step.h"

/// Reads what stands behind the `@` of a script line: a verb and its argument, such as `drag Shift+3,4`.
/// Throws std::invalid_argument with a sentence for the user.
decltype(ScriptStep::what) readVerb(std::u16string_view text);
