#pragma once

#include <functional>

#include "host/window.h"

class QWidget;
class ValueTip;

/// The drawing view as modules see it.
class QtWindow : public HostWindow {
 public:
  /// `view` has to outlive this; `post` puts a message behind the inputs that wait.
  QtWindow(QWidget& view, std::function<void(const HostWindowMessage&)> post)
      : m_view(view), m_post(std::move(post)) {}

  void setCursor(HostCursor shape) override;
  /// The toolkit sends all mouse messages to the widget that was pressed until the button is free again, so
  /// there is nothing to be done for the time of a drag.
  void captureMouse() override {}
  void releaseMouse() override {}
  void takeFocus() override;
  int popupMenu(const HostMenu& rows, HostPixel at) override;
  HostPixel fromScreen(HostPixel screen) const override;
  void showTip(std::u16string_view text) override;
  void hideTip() override;
  void post(unsigned message) override;

 private:
  QWidget& m_view;
  ValueTip* m_tip = nullptr;  ///< a child of the view, made when it is first needed
  std::function<void(const HostWindowMessage&)> m_post;
};
