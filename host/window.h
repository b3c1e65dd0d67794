#pragma once

#include <string_view>

#include "host/input.h"
#include "host/menu.h"

/// Shapes of the mouse cursor, by their system number.
enum HostCursor : int {
  IDC_ARROW = 32512,
  IDC_IBEAM = 32513,
  IDC_SIZENWSE = 32642,
  IDC_SIZENESW = 32643,
  IDC_SIZEWE = 32644,
  IDC_SIZENS = 32645,
};

class HostComposer;

/// The drawing view's window.
class HostWindow {
 public:
  virtual ~HostWindow() = default;
  virtual void setCursor(HostCursor shape) = 0;
  /// Mouse messages come here even from outside the window, until `releaseMouse`.
  virtual void captureMouse() = 0;
  virtual void releaseMouse() = 0;
  virtual void takeFocus() = 0;
  /// Shows a menu at a pixel of the view and waits; the chosen command, 0 for none.
  virtual int popupMenu(const HostMenu& menu, HostPixel at) = 0;
  /// The pixel of the view that stands at a pixel of the screen.
  virtual HostPixel fromScreen(HostPixel screen) const = 0;
  /// Shows a short text beside the mouse, in place of the one that is shown there already; the mouse takes it
  /// along. Lines end with a line feed.
  virtual void showTip(std::u16string_view text) = 0;
  virtual void hideTip() = 0;
  /// Gives a message to the window behind those that wait.
  virtual void post(unsigned message) = 0;

  /// Who shows what an input method composes; null while nobody does. It stays its owner's.
  HostComposer* composer() const { return m_composer; }
  void setComposer(HostComposer* composer) { m_composer = composer; }

 private:
  HostComposer* m_composer = nullptr;
};
