#include "host/windowless/queued_input.h"

HostInput WindowlessInput::next() {
  if (m_inputs.empty()) return HostEndOfInput{};
  HostInput first = std::move(m_inputs.front());
  m_inputs.pop_front();
  return first;
}

void WindowlessInput::click(const OdGePoint3d& point) {
  message({.number = WM_LBUTTONDOWN, .point = point});
  message({.number = WM_LBUTTONUP, .point = point});
}

void WindowlessInput::move(const OdGePoint3d& point) { message({.number = WM_MOUSEMOVE, .point = point}); }

void WindowlessInput::key(unsigned code) {
  message({.number = WM_KEYDOWN, .code = code});
  message({.number = WM_KEYUP, .code = code});
}
