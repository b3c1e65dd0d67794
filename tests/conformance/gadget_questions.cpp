#include <map>

#include "desk/text_json/format_json.h"
#include "editor/gadgets/tabulation.h"
#include "micui/hit_path.h"
#include "micui/rhomb.h"
#include "micui/sizer.h"
#include "micui/triangle.h"
#include "tests/conformance/gadget_subject.h"
#include "tests/conformance/geom_json.h"

// The steps that only ask.

namespace conformance {
namespace {

json extra_of(const micui::control& control) {
  if (const auto* triangle = dynamic_cast<const micui::triangle*>(&control)) return triangle->direction;
  if (const auto* rhomb = dynamic_cast<const micui::rhomb*>(&control)) return rhomb->vertical ? 1 : 0;
  if (const auto* sizer = dynamic_cast<const micui::sizer*>(&control)) return sizer->corner;
  if (const auto* glyph = dynamic_cast<const mtext::tabulation*>(&control)) return glyph->kind;
  return nullptr;
}

void list_tree(const micui::control& control, int depth, json& rows) {
  rows.push_back({depth, write_text(control.name), control.x, control.y, control.width, control.height,
                  control.rotation, extra_of(control)});
  for (const auto& child : control.children) list_tree(*child, depth + 1, rows);
}

json tree(gadget_subject& subject, const json&) {
  json rows = json::array();
  list_tree(subject.root(), 0, rows);
  return rows;
}

json hit(gadget_subject& subject, const json& in) {
  json names = json::array();
  for (const auto& each : micui::hit_path(subject.root(), {in.at("x"), in.at("y")}))
    names.push_back(write_text(each->name));
  return names;
}

json cursor(gadget_subject& subject, const json& in) {
  static const std::map<HostCursor, std::string> names{
      {IDC_IBEAM, "ibeam"},    {IDC_ARROW, "arrow"},        {IDC_SIZENS, "size_ns"},
      {IDC_SIZEWE, "size_we"}, {IDC_SIZENWSE, "size_nwse"}, {IDC_SIZENESW, "size_nesw"}};
  return names.at(subject.session().gadgetMouse().cursor({in.at("x"), in.at("y")}));
}

json settings(gadget_subject& subject, const json&) {
  return write_column_settings(subject.text().text().info.columns);
}

json location(gadget_subject& subject, const json&) {
  const OdGeVector3d moved = subject.moved();
  return {moved.x, moved.y};
}

json paragraphs(gadget_subject& subject, const json&) {
  json all = json::array();
  for (const auto* each : subject.text().allParagraphs()) all.push_back(write_paragraph(*each));
  return all;
}

json guide(gadget_subject& subject, const json&) {
  const auto& shown = subject.root().guide;
  if (!shown) return nullptr;
  return {{"stop", write_tabs({shown->stop}).at(0)}, {"column", shown->column}};
}

json undo_depth(gadget_subject& subject, const json&) { return subject.session().undo().undo_count(); }

}  // namespace

gadget_step find_gadget_question(const std::string& name) {
  static const std::map<std::string, gadget_step> steps{{"tree", tree},         {"hit", hit},
                                                        {"cursor", cursor},     {"settings", settings},
                                                        {"location", location}, {"paragraphs", paragraphs},
                                                        {"guide", guide},       {"undo_depth", undo_depth}};
  const auto found = steps.find(name);
  return found == steps.end() ? nullptr : found->second;
}

}  // namespace conformance
