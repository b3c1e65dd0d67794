#pragma once

#include <QObject>

class CEditEx;
class QLineEdit;

/// Ties the box on the screen to the one that decides: what is typed, Enter, leaving, and what is shown.
class EditLink : public QObject {
 public:
  /// The link is a child of `line`; `edit` has to outlive it.
  EditLink(QLineEdit& line, CEditEx& edit);
  ~EditLink() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isEnter(const QEvent& event) const;

  QLineEdit& m_line;
  CEditEx& m_edit;
};
