#include "editor/gadget_tree.h"

#include <algorithm>

#include "editor/editable.h"
#include "micui/pixel_size.h"

namespace {

constexpr std::uint32_t kMiddle = 1;

/// How far a text that is attached by its middle hangs above its origin for want of a height. Under one that
/// is attached by its bottom the ruler stands below anyway.
double rise_above_origin(const mtext::geom_multitext& text) {
  const auto& heights = text.info.columns.heights;
  if (text.info.vertical != kMiddle ||
      std::any_of(heights.begin(), heights.end(), [](double height) { return height != 0; }))
    return 0;
  double rise = 0;
  for (const mtext::geom_column& column : text.columns) rise = std::max(rise, column.y);
  return rise;
}

}  // namespace

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
  lift_to_text();
  return *m_root;
}

void gadget_tree::lift_to_text() const {
  const double rise = rise_above_origin(m_text->text());
  m_root->y = rise;
  for (const auto& child : m_root->children)
    if (child->name == u"column extents") child->y -= rise;
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
  fit(micui::pixel_size(draw));
  micui::draw_tree(refreshed(), draw);
  geometry.popModelTransform();
  geometry.traits() = before;
}

micui::extents gadget_tree::reach() const { return is_open() ? m_root->parent_extents() : micui::extents(); }
