#pragma once

#include "mtext/geom_multitext.h"
#include "mtext/letters_dictionary.h"
#include "od/base/export.h"

/// Lists. A text knows no lists: an item is a paragraph that begins with a label and a tab. The label is
/// marked by a `marks::numbering` when a text is opened, and is written anew from the mark's levels from then
/// on.
///
/// A `mark` here is one of the marks of `text`, a `paragraph` the one that the label opens (`paragraph_at`
/// its begin). A mark outside the text, and a label outside the alphabets of `dictionary`, throws what the
/// text and the counters throw.
namespace mtext {

/// Forgets all labels and marks those that the text has: characters alone, from the start of a paragraph up
/// to a tab, that are a label from first to last.
SCRIBE_EXPORT void mark_numberings(geom_multitext& text, const marks::letters_dictionary& dictionary);

namespace marks {

/// Counts the items in the order of `marks`, and sets the numbers of all levels of every label. The labels
/// are not written; `update_numbering` does it.
SCRIBE_EXPORT void update_numberings(mark_list& marks, const letters_dictionary& dictionary);

}  // namespace marks

/// Writes one label anew, in the format of what stands behind it but without lines under and over it. Does
/// nothing for an empty mark. Whatever lay in the label stands behind it afterwards.
SCRIBE_EXPORT void update_numbering(geom_multitext& text, marks::numbering& mark,
                                    const string_size_finder& finder,
                                    const marks::letters_dictionary& dictionary);

/// Writes every label anew, as `update_numbering` for one after the other does. For labels as
/// `mark_numberings` leaves them it takes n log n time together, and a label that cannot be written leaves
/// the text as it was.
SCRIBE_EXPORT void update_every_numbering(geom_multitext& text, const string_size_finder& finder,
                                          const marks::letters_dictionary& dictionary);

/// Puts an item one level deeper, or one level up; an item of the first level that goes up ends as a plain
/// paragraph. A level is three text heights deep, with the label hanging two to the left of the text.
SCRIBE_EXPORT void indent_numbering(geom_multitext& text, marks::numbering& mark,
                                    format::paragraph& paragraph, const string_size_finder& finder,
                                    bool deeper, const marks::letters_dictionary& dictionary);

/// Erases the label and takes indents and tabs from the paragraph. The mark stays, empty.
SCRIBE_EXPORT void clear_numbering(geom_multitext& text, marks::numbering& mark,
                                   format::paragraph& paragraph);

/// Takes the underline from a label and puts its bullets back into their font, after a format was applied to
/// all of a text. Sizes are stale until `geom_part::update`.
SCRIBE_EXPORT void clean_numbering_format(geom_multitext& text, marks::numbering& mark);

}  // namespace mtext
