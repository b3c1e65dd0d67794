#pragma once

#include "editor/gadgets/editor.h"

/// A text of columns as layout leaves them, without a letter in it, and the root of the gadgets around it.
struct laid_out {
  /// `count` columns of `width`, each `column_height` deep in text. The root is attached by `attachment` and
  /// has been laid out twice, as it is at the first press.
  laid_out(std::size_t count, mtext::column_settings settings, double column_height, int attachment = 0) {
    text.info.columns = settings;
    text.info.height = 2.5;
    for (std::size_t i = 0; i < count; ++i) {
      mtext::geom_column column;
      column.width = settings.width;
      column.height = column_height;
      text.columns.push_back(column);
    }
    root->create_children();
    root->text = &text;
    root->text_height = 2.5;
    root->settings = settings;
    root->attach(attachment);
    root->scale = 0.5;
    root->layout();
    root->layout();
  }
  laid_out(const laid_out&) = delete;
  laid_out& operator=(const laid_out&) = delete;

  /// All children of the root with that name.
  std::vector<micui::control_ptr> named(std::u16string_view name) const {
    std::vector<micui::control_ptr> found;
    for (const auto& each : root->children)
      if (each->name == name) found.push_back(each);
    return found;
  }

  mtext::geom_multitext text;
  OdSmartPtr<mtext::editor> root = odNew<mtext::editor>();
};

inline mtext::column_settings fixed_columns(std::size_t count, double width, double gutter, double height) {
  return {.width = width, .gutter = gutter, .kind = 0, .heights = std::vector<double>(count, height)};
}
