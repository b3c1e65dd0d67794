#pragma once

#include "mtext/geom_part.h"
#include "od/base/export.h"

/// The operations on format records that run over a range of elements. The iterators are those of
/// `geom_multitext::parts`.
namespace mtext::format {

/// Applies `change` to the format of every element. Sizes are stale until `geom_part::update`.
SCRIBE_EXPORT void apply_to(geom_parts::iterator first, geom_parts::iterator last,
                            const string_partial& change);

/// Applies `change`, without its tabs, to `current` and to the paragraph of every paragraph end in the range.
SCRIBE_EXPORT void apply_to(paragraph& current, geom_parts::iterator first, geom_parts::iterator last,
                            const paragraph_partial& change);

/// What the formats of all elements have in common. The range must not be empty.
SCRIBE_EXPORT string_partial intersection(geom_parts::const_iterator first, geom_parts::const_iterator last);

/// What `current` and the paragraphs of all paragraph ends in the range have in common; the tabs are the last
/// one's.
SCRIBE_EXPORT paragraph_partial intersection(const paragraph& current, geom_parts::const_iterator first,
                                             geom_parts::const_iterator last);

}  // namespace mtext::format
