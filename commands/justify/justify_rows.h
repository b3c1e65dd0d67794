#pragma once

#include <span>

#include "od/db/OdDbMText.h"

/// A justification for both kinds of text.
struct justify_row {
  OdDb::TextHorzMode horizontal;
  OdDb::TextVertMode vertical;
  OdDb::AttachmentPoint attachment;  ///< what a multi-line text has for it
};

/// The justifications of the text commands, in the order of their keywords: Left Align Fit Center Middle
/// Right TL TC TR ML MC MR BL BC BR. TJust has a list and a mapping of its own.
std::span<const justify_row> justify_rows();

/// The place in `justify_rows` of the modes of a single-line text.
int justify_index(OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical);

/// Justifies a multi-line text by the modes of a single-line one and leaves its letters where they are.
void ApplyMTextJustify(const OdDbMTextPtr& text, OdDb::TextHorzMode horizontal, OdDb::TextVertMode vertical);
