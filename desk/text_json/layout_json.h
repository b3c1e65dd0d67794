#pragma once

#include "desk/text_json/text_json.h"
#include "mtext/geom_multitext.h"

namespace text_json {

json write_line(const mtext::geom_line& line);
json write_lines(const mtext::geom_multitext& text);

json write_column(const mtext::geom_column& column);
json write_columns(const mtext::geom_multitext& text);

}  // namespace text_json
