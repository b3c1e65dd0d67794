#include "editor/gadget_tree.h"

#include "editor/editable.h"

void gadget_tree::open(const ExMTextEditable& text, double units_per_pixel) {
  m_text = &text;
  m_root = odNew<mtext::editor>();
  m_root->create_children();
  m_root->text = &text.text();
  m_root->text_height = text.textHeight();
  m_root->attach(text.attachment());
  m_root->scale = units_per_pixel;
  refreshed();
}

void gadget_tree::read_settings() const {
  m_root->settings = m_text->text().info.columns;
  m_root->attach(m_text->attachment());
}

mtext::editor& gadget_tree::refreshed() const {
  read_settings();
  m_root->layout();
  return *m_root;
}

void gadget_tree::fit(double units_per_pixel) const {
  if (micui::nearly_equal(m_root->scale, units_per_pixel)) return;
  m_root->scale = units_per_pixel;
  refreshed();
}

void gadget_tree::draw(OdGiViewportDraw& draw) const {
  if (!is_open()) return;
  OdGiGeometry& geometry = draw.geometry();
  const OdGiSubEntityTraits before = geometry.traits();
  geometry.pushModelTransform(OdGeMatrix3d::planeToWorld(m_text->plane()));
  micui::draw_tree(refreshed(), draw);
  geometry.popModelTransform();
  geometry.traits() = before;
}

OdGeExtents3d gadget_tree::reach(double units_per_pixel) const {
  const double shown_at = m_root->scale;
  fit(units_per_pixel);
  const micui::extents box = m_root->parent_extents();
  fit(shown_at);
  return OdGeExtents3d({box.min_x, box.min_y, 0}, {box.max_x, box.max_y, 0});
}
