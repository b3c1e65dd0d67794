#pragma once

#include "mtext/geom_multitext.h"
#include "tests/conformance/text_json.h"

/// The JSON forms of laid-out text and its marks.
namespace conformance {

mtext::convert_info read_info(const json& in);

/// A mark of the class that its `kind` names, owned by the caller.
mtext::marks::mark* read_mark(const json& in);

json write_column_settings(const mtext::column_settings& columns);
json write_mark(const mtext::marks::mark& mark);
json write_marks(const mtext::marks::mark_list& marks);
json write_geom(const mtext::geom_multitext& text);

}  // namespace conformance
