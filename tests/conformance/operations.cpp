#include "tests/conformance/operations.h"

namespace conformance {

namespace {

operation_table all_operations() {
  operation_table table;
  add_format_operations(table);
  add_parse_operations(table);
  add_serialize_operations(table);
  add_escape_operations(table);
  add_geom_operations(table);
  add_session_operations(table);
  add_gadget_operations(table);
  add_dialog_operations(table);
  add_columns_menu_operations(table);
  add_spin_operations(table);
  add_case_operations(table);
  return table;
}

}  // namespace

const operation_table& operations() {
  static const operation_table table = all_operations();
  return table;
}

}  // namespace conformance
