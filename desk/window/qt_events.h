#pragma once

#include <functional>
#include <utility>

#include "host/events.h"

class QWidget;

/// Questions and alerts in boxes over the main window.
class QtEvents : public IEvents {
 public:
  /// `parent` has to outlive the service.
  explicit QtEvents(QWidget& parent) : m_parent(parent) {}
  /// Esc and the box's close button answer as Cancel.
  int box(int level, std::u16string_view text, HostWindow* owner, int style) override;
  /// Is called when a question is answered by Cancel, before the answer is given.
  void setOnCancel(std::function<void()> on_cancel) { m_on_cancel = std::move(on_cancel); }

 private:
  QWidget& m_parent;
  std::function<void()> m_on_cancel = [] {};
};
