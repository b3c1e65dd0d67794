#include "tests/editor/random_pointer.h"

#include <cmath>

#include "host/key_code.h"
#include "od/gi/OdGiRecorder.h"

namespace {

constexpr double kSmallestPixel = 0.01, kLargestPixel = 1;

/// The types of columns that a drawing knows, by the number of the seed.
void set_columns(OdDbMText& text, unsigned kind) {
  text.setColumnType(static_cast<OdDb::ColumnType>(kind == 0 ? 0 : kind == 1 ? 1 : 2));
  if (kind == 0) return;
  text.setColumnCount(3);
  text.setColumnWidth(20);
  text.setColumnGutterWidth(4);
  text.setColumnAutoHeight(kind == 3);
  text.setHeight(12);
  if (kind == 2)
    for (int i = 0; i < 3; ++i) text.setColumnHeight(i, 10 + 4 * i);
}

/// Every gadget with the place of its origin in the coordinates of the text.
void collect(const micui::control& control, OdGePoint2d origin,
             std::vector<std::pair<const micui::control*, OdGePoint2d>>& found) {
  origin = {origin.x + control.x, origin.y + control.y};
  found.emplace_back(&control, origin);
  for (const micui::control_ptr& each : control.children) collect(*each, origin, found);
}

}  // namespace

random_pointer::random_pointer(unsigned seed) : m_random(seed) {
  m_drawing.text->setContents(
      u"Hall and stairs\\P\\pi-3,l3,t3;1.\tup to the {\\H1.5x;roof}\\P2.\tdown to the cellar\\P"
      u"\\pi0,l0,tz;with \\S1/2; a word that wraps and {\\C1;wraps} and wraps again");
  set_columns(*m_drawing.text, seed % 4);
  m_drawing.text->setAttachment(static_cast<OdDb::AttachmentPoint>(seed / 4 % 9 + 1));
  m_drawing.begin();
}

double random_pointer::between(double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(m_random);
}

OdGePoint2d random_pointer::in_gadget() {
  std::vector<std::pair<const micui::control*, OdGePoint2d>> gadgets;
  collect(session().gadgets().root(), {}, gadgets);
  const auto& [gadget, origin] = gadgets[below(gadgets.size())];
  return {origin.x + gadget->width * between(0, 1), origin.y + gadget->height * between(0, 1)};
}

OdGePoint2d random_pointer::somewhere() {
  return below(3) != 0 ? in_gadget() : OdGePoint2d{between(-30, 100), between(-60, 20)};
}

void random_pointer::mouse(unsigned number) {
  const OdGePoint2d at = somewhere();
  m_drawing.send(
      {.number = number, .point = session().worldPoint(at), .shift = below(8) == 0, .ctrl = below(8) == 0});
}

/// A turn of the wheel about any point, within bounds that keep the text at a size one can see.
void random_pointer::zoom() {
  OdGsView& view = m_drawing.application.document().view().gsView();
  const double pixel =
      std::clamp(view.pixelSize() * (below(2) == 0 ? 1.25 : 0.8), kSmallestPixel, kLargestPixel);
  const double factor = pixel / view.pixelSize();
  const OdGePoint2d at = somewhere();
  const OdGePoint3d target = view.target() + (session().worldPoint(at) - view.target()) * (1 - factor);
  view.setView(target + view.viewDir(), target, view.upVector(), view.fieldWidth() * factor,
               view.fieldHeight() * factor);
}

void random_pointer::paint() {
  const OdGsView& view = m_drawing.application.document().view().gsView();
  OdGiRecorder recorder;
  for (const auto& layer : m_drawing.application.document().view().overlay().layers())
    recorder.record(*layer.drawable, OdGiDefaultContext(), &view);
}

void random_pointer::key() {
  static constexpr unsigned kKeys[] = {VK_LEFT, VK_DOWN, VK_END, VK_DELETE, VK_RETURN, VK_BACK};
  switch (below(4)) {
    case 0:
      return session().undoStep();
    case 1:
      return session().redoStep();
    case 2:
      return m_drawing.type(u"x");
    default:
      const unsigned code = kKeys[below(std::size(kKeys))];
      m_drawing.send({.number = WM_KEYDOWN, .code = code});
      m_drawing.send({.number = WM_KEYUP, .code = code});
  }
}

void random_pointer::event() {
  static constexpr unsigned kMouse[] = {WM_LBUTTONDOWN, WM_LBUTTONDOWN,  WM_MOUSEMOVE, WM_MOUSEMOVE,
                                        WM_MOUSEMOVE,   WM_MOUSEMOVE,    WM_LBUTTONUP, WM_LBUTTONUP,
                                        WM_SETCURSOR,   WM_LBUTTONDBLCLK};
  const std::size_t kind = below(100);
  if (kind < 86)
    mouse(kMouse[below(std::size(kMouse))]);
  else if (kind < 94)
    zoom();
  else if (kind < 97)
    paint();
  else
    key();
}

void random_pointer::undo_all() {
  while (!session().undo().is_empty()) session().undoStep();
}
