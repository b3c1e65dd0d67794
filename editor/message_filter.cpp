#include "editor/message_filter.h"

#include "editor/column_boxes.h"
#include "editor/held_keys.h"
#include "editor/popup_menu.h"
#include "editor/session_keys.h"
#include "editor/smart_edit.h"
#include "host/exports.h"
#include "host/window.h"
#include "micui/hit_path.h"

namespace {

/// Whether a press at a point of the text's plane goes into the text.
bool is_over_text(smart_edit& session, const OdGePoint2d& at) {
  if (session.gadgets().is_open()) return session.gadgetMouse().is_over_text(at);
  if (session.lineFrame().is_open()) return !micui::hit_path(session.lineFrame().refreshed(), at).empty();
  return editing::is_in_text(session.editable().text(), at);
}

/// Where in the text a world point lies; nothing when it lies beside it, or cannot be found in its plane.
std::optional<OdGePoint2d> point_in_text(smart_edit& session, const OdGePoint3d& world) {
  const auto at = session.textPoint(world);
  return at && is_over_text(session, *at) ? at : std::nullopt;
}

/// A press on the text or on a gadget around it; false if it lies outside both.
bool press_at(smart_edit& session, const OdGePoint2d& at, const held_keys& held) {
  if (session.gadgets().is_open()) {
    session.fitGadgets();
    return session.gadgetMouse().press(at, held.shift, held.ctrl);
  }
  if (!is_over_text(session, at)) return false;
  session.mouse().press(at, held.shift, held.ctrl);
  return true;
}

}  // namespace

bool session_filter::filterMessage(const HostWindowMessage& message, const OdGePoint3d& point) {
  const unsigned steps_before = m_session.undo().undo_count();
  try {
    return handle(message, point);
  } catch (const std::exception& error) {
    m_session.recover(steps_before, error);
    return true;
  }
}

bool session_filter::handle(const HostWindowMessage& message, const OdGePoint3d& point) {
  switch (message.number) {
    case WM_SETCURSOR:
      setCursor(point);
      return true;
    case WM_LBUTTONDOWN:
      press(message, point);
      return true;
    case WM_LBUTTONUP:
      release(point);
      return true;
    case WM_LBUTTONDBLCLK:
      selectWord(point);
      return true;
    case WM_MOUSEMOVE:
      drag(point);
      return false;  // the host goes on to track and pan
    case WM_RBUTTONDOWN:
      return true;
    case WM_RBUTTONUP:
      editing::show_popup_menu(m_session, message, point);
      return true;
    case WM_KEYDOWN:
      editing::handle_key_down(m_session, message);
      return true;
    case WM_KEYUP:
      m_session.setKeyDown(false);
      return true;
    case WM_CHAR:
      editing::handle_character(m_session, message);
      return true;
    default:
      return false;
  }
}

void session_filter::press(const HostWindowMessage& message, const OdGePoint3d& point) {
  m_session.typed().forget();
  const auto at = m_session.textPoint(point);
  if (!at) return;
  if (!press_at(m_session, *at, keys_held(message))) return m_session.exitAt(point);
  if (HostWindow* window = m_session.window()) window->captureMouse();
  m_session.repaint(redraw_request::kGadgets);
}

void session_filter::drag(const OdGePoint3d& point) {
  const bool is_pressed = m_session.mouse().is_pressed() || m_session.gadgetMouse().is_pressed();
  const auto at = is_pressed ? m_session.textPoint(point) : std::nullopt;
  if (!at) return;
  if (m_session.gadgets().is_open()) return m_session.gadgetMouse().drag(*at);
  m_session.mouse().drag(*at);
  m_session.repaint(redraw_request::kGadgets);
}

void session_filter::release(const OdGePoint3d& point) {
  if (HostWindow* window = m_session.window()) window->releaseMouse();
  if (m_session.gadgets().is_open()) return m_session.gadgetMouse().release(m_session.textPoint(point));
  m_session.mouse().release();
}

void session_filter::selectWord(const OdGePoint3d& point) {
  const auto at = point_in_text(m_session, point);
  if (!at) return;
  m_session.editable().selectWordAt(*at);
  m_session.repaint(redraw_request::kGadgets);
}

void session_filter::setCursor(const OdGePoint3d& point) {
  HostWindow* window = m_session.window();
  if (!window) return;
  const auto at = m_session.textPoint(point);
  if (at && m_session.gadgets().is_open()) return window->setCursor(m_session.gadgetMouse().cursor(*at));
  window->setCursor(point_in_text(m_session, point) ? IDC_IBEAM : IDC_ARROW);
}
