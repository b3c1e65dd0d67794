#pragma once

#include <QLineEdit>
#include <functional>

/// An edit that tells when it is left for another control of its dialog. A window that opens over the dialog
/// leaves nothing.
class FieldEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;
  /// Told when the edit is left; may be empty.
  std::function<void()> left;

 protected:
  void focusOutEvent(QFocusEvent* event) override;
};
