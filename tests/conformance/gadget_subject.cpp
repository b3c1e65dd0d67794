#include "tests/conformance/gadget_subject.h"

#include "mtext/entity/mtext_layout.h"
#include "od/gi/OdGiContext.h"
#include "od/gi/OdGiRecorder.h"

namespace conformance {

gadget_subject::gadget_subject(const json& in) : m_session(in) {
  const OdGeVector2d box = mtext::column_box(text().text());
  text().setFrame({.width = box.x, .height = box.y, .attachment = in.at("attachment")});
  text().layOut();
  text().endOfEdit(/*relayout=*/true);
  m_origin = text().origin();
  zoom(in.at("scale"));
  session().openGadgets();
}

void gadget_subject::zoom(double units_per_pixel) {
  OdGsView& view = m_session.view();
  const OdGsDeviceRect& screen = view.deviceRect();
  view.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, screen.width() * units_per_pixel,
               screen.height() * units_per_pixel);
}

void gadget_subject::draw_at(double units_per_pixel) {
  zoom(units_per_pixel);
  OdGiRecorder pen;
  const OdGiDefaultContext context;
  OdGiViewportDraw draw(pen, context, m_session.view());
  micui::draw_tree(root(), draw);
}

}  // namespace conformance
