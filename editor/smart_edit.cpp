#include "editor/smart_edit.h"

#include "editor/background.h"
#include "editor/caret_draw.h"
#include "editor/highlight.h"
#include "host/application.h"
#include "host/command_input.h"
#include "host/exports.h"
#include "host/view.h"
#include "host/view_overlay.h"
#include "od/ge/OdGeLine3d.h"
#include "od/gi/OdGsView.h"

namespace {

constexpr int kFilterLevel = 2;

}  // namespace

smart_edit::smart_edit(EditHost& host)
    : m_host(host),
      m_editable(ExMTextEditable::createObject()),
      m_mouse(*m_editable),
      m_layers(host.view().overlay(), {.text = [this](OdGiWorldDraw& draw) { drawText(draw); },
                                       .caret = [this](OdGiViewportDraw& draw) { drawCaret(draw); },
                                       .gadgets = [this](OdGiViewportDraw& draw) { drawGadgets(draw); }}),
      m_redraw(host.view().overlay(), m_layers.gadgets(), m_layers.text()),
      m_filter(*this) {
  m_view_policy.begin(host.view().gsView());
  m_editable->addWatcher(*this);
  m_host.messages().pushFilter(m_filter, kFilterLevel);
  if (HostWindow* drawing_window = window()) drawing_window->setComposer(&m_composer);
  if (HostApplication* application = host::application())
    m_blink.emplace(application->ticks(), [this] {
      m_host.view().overlay().invalidate(m_layers.caret());
      m_host.view().overlay().update();
    });
}

smart_edit::~smart_edit() {
  HostWindow* const drawing_window = window();
  if (drawing_window && drawing_window->composer() == &m_composer) drawing_window->setComposer(nullptr);
  m_blink.reset();
  m_host.messages().popFilter(m_filter);
  m_editable->removeWatcher(*this);
  showSource();
}

void smart_edit::tellToolbar(toolbar_undo_change change) const {
  if (m_toolbar) m_toolbar(kToolbarUndoChanged, change);
}

void smart_edit::pushUndoStep(int kind) {
  m_undo.push(kind, *m_editable);
  tellToolbar(kUndoButtonsChanged);
}

void smart_edit::undoStep() {
  forgetPress();
  if (m_undo.undo(*m_editable)) showRestored();
}

void smart_edit::redoStep() {
  forgetPress();
  if (m_undo.redo(*m_editable)) showRestored();
}

void smart_edit::showRestored() {
  repaint(redraw_request::kGadgets | redraw_request::kText);
  tellToolbar(kTextRestored);
}

void smart_edit::endUndoRun() {
  m_undo.start_move();
  tellToolbar(kUndoButtonsChanged);
}

void smart_edit::openGadgets() { m_gadgets.open(*m_editable, m_host.view().unitsPerPixel()); }

void smart_edit::fitGadgets() {
  const double magnified = (m_view_policy.edit_transform() * m_editable->direction()).length();
  m_gadgets.fit(m_host.view().unitsPerPixel() / magnified);
}

void smart_edit::forgetPress() {
  m_mouse.forget();
  m_gadget_mouse.forget();
}

void smart_edit::accept() { m_host.commandInput().type(u"^M"); }

void smart_edit::cancel() { m_host.commandInput().type(u"^C"); }

void smart_edit::exitAt(const OdGePoint3d& point) {
  m_exit_point = point;
  accept();
}

void smart_edit::repaint(unsigned layers) {
  m_redraw.set(layers);
  m_redraw.flush();
}

std::optional<OdGePoint2d> smart_edit::textPoint(const OdGePoint3d& world) const {
  const OdGeMatrix3d to_drawing = m_view_policy.edit_transform().inverse();
  const OdGePlane plane = m_editable->plane();
  const OdGeLine3d sight(to_drawing * world, (to_drawing * m_host.view().gsView().viewDir()).normal());
  OdGePoint3d at;
  if (!sight.intersectWith(plane, at)) return std::nullopt;
  return plane.paramOf(at);
}

OdGePoint3d smart_edit::worldPoint(const OdGePoint2d& at) const {
  return m_view_policy.edit_transform() * (m_editable->frame().text_to_world() * OdGePoint3d{at.x, at.y, 0});
}

void smart_edit::onChanged() {
  m_redraw.set(redraw_request::kGadgets);
  placeInView();
}

HostWindow* smart_edit::window() {
  HostApplication* application = host::application();
  return application ? &application->window() : nullptr;
}

std::vector<editing::text_box> smart_edit::backgroundBoxes() const {
  if (!m_line_frame.is_open()) return editing::background_boxes(*m_editable);
  const micui::extents frame = m_line_frame.refreshed().parent_extents();
  return {{frame.min_x, frame.min_y, frame.max_x, frame.max_y}};
}

void smart_edit::drawText(OdGiWorldDraw& draw) {
  OdGiGeometry& geometry = draw.geometry();
  geometry.pushModelTransform(m_view_policy.edit_transform());
  editing::draw_background(*m_editable, backgroundBoxes(), m_host.view().gsView().backgroundColor(),
                           geometry);
  m_editable->worldDraw(draw);
  geometry.popModelTransform();
}

void smart_edit::drawCaret(OdGiViewportDraw& draw) {
  if (m_blink) m_blink->set_painted();
  const bool shown = !m_blink || m_blink->is_visible() || m_key_down;
  if (!shown) return;
  draw.geometry().pushModelTransform(m_view_policy.edit_transform());
  editing::draw_carets(*m_editable, draw.geometry());
  draw.geometry().popModelTransform();
}

void smart_edit::drawGadgets(OdGiViewportDraw& draw) {
  draw.geometry().pushModelTransform(m_view_policy.edit_transform());
  m_gadgets.draw(draw);
  editing::draw_highlights(*m_editable, draw.geometry());
  draw.geometry().popModelTransform();
}
