#pragma once

#include <vector>

#include "mtext/geom_multitext.h"

namespace mtext {

/// The format of every paragraph of `text`, in text order. They stay the text's own, and are gone when their
/// paragraph is.
std::vector<format::paragraph*> all_paragraphs(geom_multitext& text);

/// The same of those paragraphs alone that a selection of the text touches: the one that its begin stands in,
/// and those that begin behind a paragraph end within it.
std::vector<format::paragraph*> touched_paragraphs(geom_multitext& text);

}  // namespace mtext
