#include <stdexcept>

#include "desk/text_json/format_json.h"
#include "mtext/format.h"
#include "tests/conformance/operations.h"

namespace conformance {

namespace {

namespace format = mtext::format;

json apply_paragraph(const json& in) {
  auto paragraph = read_paragraph(in["p"]);
  apply_to(paragraph, read_paragraph_partial(in["q"]));
  return write_paragraph(paragraph);
}

json apply_paragraph_partial(const json& in) {
  auto partial = read_paragraph_partial(in["a"]);
  apply_to(partial, read_paragraph_partial(in["b"]));
  return write_paragraph(partial);
}

json merge_paragraph(const json& in) {
  return write_paragraph(merge(in["base"].get<double>(), read_paragraph(in["a"]), read_paragraph(in["b"])));
}

json intersect_paragraph_partial(const json& in) {
  return write_paragraph(intersection(read_paragraph_partial(in["a"]), read_paragraph_partial(in["b"])));
}

json clean_tabs(const json& in) {
  auto tabs = read_tabs(in["tabs"]);
  format::clean_tabs(tabs);
  return write_tabs(tabs);
}

const operation_table& calls() {
  static const operation_table table = {
      {"apply_string",
       [](const json& in) {
         return write_format(applied_to(read_format(in["s"]), read_string_partial(in["p"])));
       }},
      {"apply_partial",
       [](const json& in) {
         return write_format(applied_to(read_string_partial(in["a"]), read_string_partial(in["b"])));
       }},
      {"apply_paragraph", apply_paragraph},
      {"apply_paragraph_partial", apply_paragraph_partial},
      {"merge_string",
       [](const json& in) { return write_format(merge(read_format(in["a"]), read_format(in["b"]))); }},
      {"merge_paragraph", merge_paragraph},
      {"intersect_partial",
       [](const json& in) {
         return write_format(intersection(read_string_partial(in["a"]), read_string_partial(in["b"])));
       }},
      {"intersect_paragraph_partial", intersect_paragraph_partial},
      {"equal_string", [](const json& in) { return json(read_format(in["a"]) == read_format(in["b"])); }},
      {"equal_tabs",
       [](const json& in) { return json(format::equal_tabs(read_tabs(in["a"]), read_tabs(in["b"]))); }},
      {"is_default_format",
       [](const json& in) { return json(is_default_format(read_string_partial(in["p"]))); }},
      {"to_partial", [](const json& in) { return write_format(format::to_partial(read_format(in["s"]))); }},
      {"clean_tabs", clean_tabs},
  };
  return table;
}

json call_format(const json& in) {
  auto name = in.at("call").get<std::string>();
  auto call = calls().find(name);
  if (call == calls().end()) throw std::runtime_error("call not available: " + name);
  return {{"value", call->second(in)}};
}

}  // namespace

void add_format_operations(operation_table& table) { table["format"] = call_format; }

}  // namespace conformance
