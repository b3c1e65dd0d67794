#include "editor/message_filter.h"

#include "editor/column_boxes.h"
#include "editor/held_keys.h"
#include "editor/popup_menu.h"
#include "editor/session_keys.h"
#include "editor/smart_edit.h"
#include "host/exports.h"
#include "host/window.h"

namespace {

/// Where in the text a world point lies; nothing when it lies beside it, or cannot be found in its plane.
std::optional<OdGePoint2d> point_in_text(smart_edit& session, const OdGePoint3d& world) {
  const auto at = session.textPoint(world);
  return at && editing::is_in_text(session.editable().text(), *at) ? at : std::nullopt;
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
      release();
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
  if (!m_session.textPoint(point)) return;
  const auto at = point_in_text(m_session, point);
  if (!at) return m_session.exitAt(point);
  const held_keys held = keys_held(message);
  m_session.mouse().press(*at, held.shift, held.ctrl);
  if (HostWindow* window = m_session.window()) window->captureMouse();
  m_session.repaint(redraw_request::kGadgets);
}

void session_filter::drag(const OdGePoint3d& point) {
  const auto at = m_session.mouse().is_pressed() ? m_session.textPoint(point) : std::nullopt;
  if (!at) return;
  m_session.mouse().drag(*at);
  m_session.repaint(redraw_request::kGadgets);
}

void session_filter::release() {
  if (HostWindow* window = m_session.window()) window->releaseMouse();
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
  if (window) window->setCursor(point_in_text(m_session, point) ? IDC_IBEAM : IDC_ARROW);
}
