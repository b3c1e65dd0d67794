#include "tests/conformance/geom_json.h"
#include "tests/conformance/operations.h"
#include "tests/conformance/session_subject.h"
#include "ui/toolbar/columns_menu.h"

namespace conformance {

namespace {

json run_columns_menu(const json& in) {
  session_subject subject(in);
  ExMTextEditable& text = subject.text();
  text.endOfEdit(/*relayout=*/true);
  if (const auto change = toolbar::columns_change(in.at("command"), text)) change->run();
  return {{"columns", write_column_settings(text.text().info.columns)}};
}

}  // namespace

void add_columns_menu_operations(operation_table& table) { table["columns_menu"] = run_columns_menu; }

}  // namespace conformance
