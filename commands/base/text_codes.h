#pragma once

#include <string>

#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

// The codes of texts that commands change without a session. Fields stand in them as markers.

/// What a text consists of. Where it has fields, each stands as the marker "%<\_FldIdx n>%".
std::u16string codes_of(const OdDbMText& text);
std::u16string codes_of(const OdDbText& text);

/// Gives a text other codes. The fields whose markers stand in them stay what they are. A text that is
/// justified stays on its point.
void set_codes(OdDbMText& text, const std::u16string& codes);
void set_codes(OdDbText& text, const std::u16string& codes);
