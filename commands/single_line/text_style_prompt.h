#pragma once

#include "od/db/OdDbObjectId.h"

class HostDocument;

/// Asks for a text style until one is named that the drawing has, and makes it the current one. An empty line
/// keeps the present style, "?" lists all. False when the prompt was cancelled.
bool ask_text_style(HostDocument& document);
