#pragma once

#include "desk/text_json/text_json.h"
#include "mtext/format.h"

namespace text_json {

mtext::format::string read_format(const json& value);
json write_format(const mtext::format::string& format);

/// In partial records an unset member is absent.
mtext::format::string_partial read_string_partial(const json& value);
json write_format(const mtext::format::string_partial& partial);

mtext::format::paragraph read_paragraph(const json& value);
json write_paragraph(const mtext::format::paragraph& paragraph);

/// In partial records an unset member is absent.
mtext::format::paragraph_partial read_paragraph_partial(const json& value);
json write_paragraph(const mtext::format::paragraph_partial& partial);

mtext::format::line_spacing read_spacing(const json& value);
json write_spacing(const mtext::format::line_spacing& spacing);

std::vector<mtext::format::tab_stop> read_tabs(const json& value);
json write_tabs(const std::vector<mtext::format::tab_stop>& tabs);

}  // namespace text_json
