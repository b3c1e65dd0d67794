#pragma once

#include <cstddef>

#include "mtext/geom_multitext.h"

/// Where a caret that came to stand inside a solid range (a field, a list label) is put instead.
/// A position outside all solids is its own stop.
namespace editing {

/// The stop to the left. A label at the very start of the text has none, so the caret goes behind it.
std::size_t stop_before(const mtext::geom_multitext& text, std::size_t position);

/// The stop to the right.
std::size_t stop_behind(const mtext::geom_multitext& text, std::size_t position);

/// The nearer of both; at equal distance the right one.
std::size_t nearest_stop(const mtext::geom_multitext& text, std::size_t position);

/// The first solid that ends at `position` and covers the place before it, or null.
const mtext::marks::solid* solid_ending_at(const mtext::geom_multitext& text, std::size_t position);

/// The first solid that begins at `position` and is not empty, or null.
const mtext::marks::solid* solid_beginning_at(const mtext::geom_multitext& text, std::size_t position);

}  // namespace editing
