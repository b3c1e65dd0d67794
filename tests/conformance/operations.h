#pragma once

#include <map>
#include <string>

#include "tests/conformance/text_json.h"

namespace conformance {

/// An operation takes the `in` of a request and gives the `out` of its answer; what it throws is the answer's
/// error.
using operation = json (*)(const json& in);
using operation_table = std::map<std::string, operation>;

/// All operations that this driver knows, by name.
const operation_table& operations();

// One family each, defined in the file of its name.
void add_format_operations(operation_table& table);
void add_parse_operations(operation_table& table);
void add_serialize_operations(operation_table& table);
void add_escape_operations(operation_table& table);
void add_geom_operations(operation_table& table);
void add_session_operations(operation_table& table);
void add_gadget_operations(operation_table& table);
void add_dialog_operations(operation_table& table);
void add_columns_menu_operations(operation_table& table);
void add_spin_operations(operation_table& table);
void add_case_operations(operation_table& table);

}  // namespace conformance
