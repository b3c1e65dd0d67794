#pragma once

#include "editor/gadgets/editor.h"
#include "od/ge/OdGeExtents3d.h"

class ExMTextEditable;

/// The gadgets around the text of a session: none until a multi-line session opens them.
class gadget_tree {
 public:
  /// Puts ruler and handles around `text`, which has to outlive them, for a view with pixels of this length.
  void open(const ExMTextEditable& text, double units_per_pixel);
  bool is_open() const { return !m_root.isNull(); }

  /// The root. Only while open.
  mtext::editor& root() const { return *m_root; }
  /// Takes the text's column settings and attachment over. Only while open.
  void read_settings() const;
  /// The same, and lays the gadgets out: the tree is up to date for what comes next.
  mtext::editor& refreshed() const;
  /// Lays the gadgets out for pixels of another length, if it is another. Only while open.
  void fit(double units_per_pixel) const;
  /// Draws the gadgets as they now have to be, in the text's plane; nothing while not open.
  void draw(OdGiViewportDraw& draw) const;
  /// Box of the text and all gadgets in text coordinates, as they would be for pixels of this length. Only
  /// while open.
  OdGeExtents3d reach(double units_per_pixel) const;

 private:
  const ExMTextEditable* m_text = nullptr;
  OdSmartPtr<mtext::editor> m_root;
};
