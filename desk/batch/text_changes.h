#pragma once

#include <nlohmann/json_fwd.hpp>
#include <vector>

#include "desk/texts/drawing_texts.h"

/// The texts that differ, in the order of the drawing, those that are gone last: a JSON object each with
/// handle, kind, layer, and contents and plain text before and after, which are null for a text that is new
/// or gone. A text that only looks different now, by its place or format, is among them, too.
///
/// `before` was read from the drawing when it had been opened, `after` just now.
nlohmann::ordered_json textChanges(const std::vector<DrawingText>& before,
                                   const std::vector<DrawingText>& after);
