#pragma once

#include <functional>
#include <utility>

#include "host/events.h"

class IHelpService;
class QMessageBox;
class QWidget;

/// Questions and alerts in boxes over the window that the user works in.
class QtEvents : public IEvents {
 public:
  /// `parent` is what the boxes stand over when no dialog is open. Both have to outlive the service.
  QtEvents(QWidget& parent, IHelpService& help) : m_parent(parent), m_help(help) {}
  /// Esc and the box's close button answer as Cancel; the first letter of a button as that button. A text
  /// with a help key has a button that shows its page, and the box stays.
  int box(int level, std::u16string_view text, HostWindow* owner, int style) override;
  /// Is called when a question is answered by Cancel, before the answer is given.
  void setOnCancel(std::function<void()> on_cancel) { m_on_cancel = std::move(on_cancel); }

 private:
  /// Shows the box until it is answered by something else than Help; the button.
  int answer(QMessageBox& box, const std::u16string& help_key);

  QWidget& m_parent;
  IHelpService& m_help;
  std::function<void()> m_on_cancel = [] {};
};
