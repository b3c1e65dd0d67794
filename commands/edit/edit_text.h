#pragma once

#include <optional>

#include "od/db/OdDbText.h"

class HostDocument;

/// Edits a single-line text in place; it is open for reading before and afterwards. A cancel leaves it as it
/// was, without a question. Returns the answer of the prompt that waited. Throws when somebody else writes to
/// the text.
int editText(const OdDbTextPtr& text, HostDocument& document);

/// Edits an entity in the manner of its class: single-line texts and texts of inserts in place, multi-line
/// texts in place with the caret at `pressed`, attribute definitions in the dialog of the optional library.
/// What is no text, or lies on a locked layer, is refused at the prompt.
void edit_any_text(HostDocument& document, const OdDbObjectId& id, const std::optional<OdGePoint3d>& pressed);
