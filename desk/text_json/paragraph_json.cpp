#include "desk/text_json/format_json.h"

namespace text_json {

using mtext::format::line_spacing;
using mtext::format::paragraph;
using mtext::format::paragraph_partial;
using mtext::format::tab_stop;

namespace {

tab_stop read_tab(const json& value) {
  tab_stop stop;
  stop.position = member_or(value, "position", stop.position);
  stop.kind = member_or(value, "kind", stop.kind);
  auto separator = text_member(value, "decimal_char");
  if (!separator.empty()) stop.decimal_char = separator[0];
  return stop;
}

}  // namespace

line_spacing read_spacing(const json& value) {
  line_spacing spacing;
  spacing.style = member_or(value, "style", spacing.style);
  spacing.value = member_or(value, "value", spacing.value);
  return spacing;
}

json write_spacing(const line_spacing& spacing) {
  return {{"style", spacing.style}, {"value", spacing.value}};
}

std::vector<tab_stop> read_tabs(const json& value) {
  std::vector<tab_stop> tabs;
  for (const auto& stop : value) tabs.push_back(read_tab(stop));
  return tabs;
}

json write_tabs(const std::vector<tab_stop>& tabs) {
  json list = json::array();
  for (const auto& stop : tabs) {
    list.push_back({{"position", stop.position},
                    {"kind", stop.kind},
                    {"decimal_char", write_text(std::u16string(1, stop.decimal_char))}});
  }
  return list;
}

paragraph read_paragraph(const json& value) {
  paragraph result;
  result.relative = member_or(value, "relative", result.relative);
  result.indent = member_or(value, "indent", result.indent);
  result.left = member_or(value, "left", result.left);
  result.right = member_or(value, "right", result.right);
  result.before = member_or(value, "before", result.before);
  result.after = member_or(value, "after", result.after);
  result.alignment = member_or(value, "alignment", result.alignment);
  result.spacing = read_spacing(object_member(value, "spacing"));
  result.tabs = read_tabs(object_member(value, "tabs"));
  return result;
}

json write_paragraph(const paragraph& p) {
  return {{"relative", p.relative},
          {"indent", p.indent},
          {"left", p.left},
          {"right", p.right},
          {"before", p.before},
          {"after", p.after},
          {"alignment", p.alignment},
          {"spacing", write_spacing(p.spacing)},
          {"tabs", write_tabs(p.tabs)}};
}

paragraph_partial read_paragraph_partial(const json& value) {
  paragraph_partial partial;
  read(value, "indent", partial.indent);
  read(value, "left", partial.left);
  read(value, "right", partial.right);
  read(value, "before", partial.before);
  read(value, "after", partial.after);
  read(value, "alignment", partial.alignment);
  if (value.contains("spacing")) partial.spacing = read_spacing(value["spacing"]);
  if (value.contains("tabs")) partial.tabs = read_tabs(value["tabs"]);
  return partial;
}

json write_paragraph(const paragraph_partial& partial) {
  json value = json::object();
  write(value, "indent", partial.indent);
  write(value, "left", partial.left);
  write(value, "right", partial.right);
  write(value, "before", partial.before);
  write(value, "after", partial.after);
  write(value, "alignment", partial.alignment);
  if (partial.spacing) value["spacing"] = write_spacing(*partial.spacing);
  if (partial.tabs) value["tabs"] = write_tabs(*partial.tabs);
  return value;
}

}  // namespace text_json
