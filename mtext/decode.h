#pragma once

#include <string>

#include "mtext/geom_multitext.h"
#include "mtext/parse.h"
#include "od/base/export.h"

namespace mtext {

/// Reads a format-code string and lays it out within the frame `info`. `base` is the format of text without
/// codes; `fields` binds field objects to their markers.
SCRIBE_EXPORT geom_multitext decode(const std::u16string& text, const format::string& base,
                                    const convert_info& info, const string_size_finder& finder,
                                    const fields_map& fields);

/// Writes a laid-out text as a format-code string, against the format `base` and the base height of the
/// entity.
SCRIBE_EXPORT std::u16string encode(const geom_multitext& text, const format::string& base,
                                    double base_height);

}  // namespace mtext
