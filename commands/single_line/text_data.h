#pragma once

#include "host/document_data.h"
#include "od/db/OdDbObjectId.h"

/// What the commands for new single-line texts remember of a document.
struct TextData {
  double rotation = 0;     ///< radians
  OdDbObjectId last_text;  ///< the text made last; null before the first
  int justify = 0;         ///< place in `justify_rows`
};

/// The memory of every open document.
HostApDataManager<TextData>& text_data();
