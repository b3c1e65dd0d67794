#include "tests/conformance/geom_json.h"

#include <memory>

#include "desk/text_json/format_json.h"
#include "desk/text_json/layout_json.h"

namespace conformance {
namespace {

using namespace mtext;

std::u16string stack_text(const stack& part) {
  constexpr char16_t separators[] = u"/^#";
  return part.numerator + separators[part.kind] + part.denominator;
}

std::u16string text_of(const geom_part& element) {
  switch (element.type()) {
    case part_string:
      return static_cast<const string&>(element.part()).text;
    case part_spaces:
      return u" ";
    case part_tab:
      return u"\t";
    case part_new_line:
      return u"\n";
    case part_stack:
      return stack_text(static_cast<const stack&>(element.part()));
    default:
      return static_cast<const new_paragraph&>(element.part()).column_break ? u"\\N" : u"\\P";
  }
}

std::vector<marks::index> read_indices(const json& in) {
  std::vector<marks::index> indices;
  for (const json& each : in) indices.push_back({each.at(0), each.at(1), each.at(2)});
  return indices;
}

json write_indices(const std::vector<marks::index>& indices) {
  json out = json::array();
  for (const marks::index& each : indices) out.push_back({each.value, each.kind, each.alphabet});
  return out;
}

std::unique_ptr<marks::mark> read_plain_mark(const json& in) {
  const std::size_t begin = in.at("begin");
  const std::size_t end = in.at("end");
  const std::string kind = in.at("kind");
  if (kind == "selection") {
    auto selection = std::make_unique<marks::selection>(begin, end);
    selection->caret_at_begin = in.value("caret_at_begin", false);
    selection->at_line_end = in.value("at_line_end", false);
    return selection;
  }
  if (kind == "solid") return std::make_unique<marks::solid>(begin, end, true);
  if (kind == "field")
    return std::make_unique<marks::field>(begin, end, read_text(in.value("code", json(""))));
  if (kind == "numbering") {
    return std::make_unique<marks::numbering>(begin, end, read_indices(in.value("indices", json::array())));
  }
  return std::make_unique<marks::mark>(begin, end);
}

}  // namespace

json write_column_settings(const column_settings& columns) {
  return {{"width", columns.width},
          {"gutter", columns.gutter},
          {"kind", columns.kind},
          {"heights", columns.heights}};
}

convert_info read_info(const json& in) {
  convert_info info;
  const json columns = in.value("columns", json::object());
  info.columns.width = columns.value("width", info.columns.width);
  info.columns.gutter = columns.value("gutter", info.columns.gutter);
  info.columns.kind = columns.value("kind", info.columns.kind);
  info.columns.heights = columns.value("heights", info.columns.heights);
  info.height = in.value("height", info.height);
  info.alignment = in.value("alignment", info.alignment);
  info.vertical = in.value("vertical", info.vertical);
  if (in.contains("spacing")) info.spacing = read_spacing(in.at("spacing"));
  info.extents_mode = in.value("extents_mode", info.extents_mode);
  return info;
}

marks::mark* read_mark(const json& in) {
  std::unique_ptr<marks::mark> mark = read_plain_mark(in);
  if (auto* solid = dynamic_cast<marks::solid*>(mark.get())) {
    solid->include_begin = in.value("include_begin", solid->include_begin);
  }
  return mark.release();
}

json write_mark(const marks::mark& mark) {
  json out{{"kind", "mark"}, {"begin", mark.begin}, {"end", mark.end}};
  if (const auto* selection = dynamic_cast<const marks::selection*>(&mark)) {
    out["kind"] = "selection";
    out["caret_at_begin"] = selection->caret_at_begin;
    out["at_line_end"] = selection->at_line_end;
  }
  if (const auto* solid = dynamic_cast<const marks::solid*>(&mark)) {
    out["kind"] = "solid";
    out["include_begin"] = solid->include_begin;
  }
  if (const auto* field = dynamic_cast<const marks::field*>(&mark)) {
    out["kind"] = "field";
    out["code"] = write_text(field->code);
  }
  if (const auto* numbering = dynamic_cast<const marks::numbering*>(&mark)) {
    out["kind"] = "numbering";
    out["indices"] = write_indices(numbering->indices);
  }
  return out;
}

json write_marks(const marks::mark_list& marks) {
  json out = json::array();
  for (const marks::mark& each : marks) out.push_back(write_mark(each));
  return out;
}

json write_geom(const geom_multitext& text) {
  json out{{"format", write_paragraph(text.format)}, {"marks", write_marks(text.marks)}};
  json& parts = out["parts"] = json::array();
  for (const geom_part& each : text.parts) {
    parts.push_back({each.type(), write_text(text_of(each)), each.x, each.y, each.size.advance});
  }
  out["lines"] = write_lines(text);
  out["columns"] = write_columns(text);
  return out;
}

}  // namespace conformance
