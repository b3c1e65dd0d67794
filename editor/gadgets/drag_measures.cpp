#include "editor/gadgets/drag_measures.h"

#include <cmath>

#include "editor/gadgets/column.h"
#include "micui/hit_path.h"

namespace mtext {

namespace {

std::vector<drag_measure> overall_width(const editor& root) {
  std::vector<drag_measure> found{{u"Width", root.total_width}};
  if (root.column_count > 1) found.push_back({u"Gutter", root.gutter});
  return found;
}

/// The height that a drag sets, which may be less than what the text in the column needs.
drag_measure height_of(const editor& root, const column& dragged) {
  const std::size_t index = root.settings.kind == 1 ? dragged.index : 0;
  return {u"Height", index < root.settings.heights.size() ? root.settings.heights[index] : 0};
}

/// The first of the paragraphs stands for all.
std::vector<drag_measure> indent_length(const editor& root, indent_kind kind, const indent_drag& drag) {
  if (drag.paragraphs.empty()) return {};
  const format::paragraph& paragraph = *drag.paragraphs.front();
  const double unit = paragraph.relative ? root.text_height : 1;
  switch (kind) {
    case indent_kind::first_line:
      return {{u"First line", (paragraph.left + paragraph.indent) * unit}};
    case indent_kind::left:
      return {{u"Left indent", paragraph.left * unit}};
    case indent_kind::right:
      return {{u"Right indent", paragraph.right * unit}};
  }
  return {};
}

std::vector<drag_measure> column_handle(const editor& root, const micui::control_path& path) {
  const auto* dragged = dynamic_cast<const column*>(micui::path_find(path, u"column").get());
  if (!dragged) return {};
  if (micui::path_find(path, u"sizer")) return {{u"Width", root.column_width}, height_of(root, *dragged)};
  if (micui::path_find(path, u"height sizer") || micui::path_find(path, u"height edge"))
    return {height_of(root, *dragged)};
  return {};
}

}  // namespace

std::vector<drag_measure> drag_measures(const editor& root, const micui::control_path& path,
                                        const tab_drag* tab, const indent_drag* indent) {
  if (micui::path_find(path, u"width sizer")) return overall_width(root);
  if (micui::path_find(path, u"dot")) return {{u"Column width", root.column_width}};
  for (const micui::control_ptr& each : path)
    if (const auto kind = indent_named(each->name); kind && indent)
      return indent_length(root, *kind, *indent);
  if (micui::path_find(path, u"tab area") && tab)
    return {{u"Tab stop", tab->stop.position * root.text_height}};
  return column_handle(root, path);
}

}  // namespace mtext
