#pragma once

#include <QIcon>
#include <QWidget>
#include <map>
#include <span>

#include "ui/toolbar/icon_pool.h"
#include "ui/toolbar/toolbar_window.h"

class CMTextEdit;
class QHBoxLayout;
class QToolButton;
struct toolbar_control;

/// The window of a toolbar: it floats over the view, a little transparent, and leaves the keyboard to the
/// view but while a box is typed into.
class ToolbarWidget : public QWidget, public ToolbarWindow {
 public:
  /// Empty, and not shown yet. `owner` is the window that it stays in front of, or null.
  explicit ToolbarWidget(QWidget* owner);

  /// Makes the controls of a toolbar, which has to outlive them.
  void fill(CMTextEdit& bar);
  /// Drops the controls.
  void empty();

  void showButton(int id) override;
  HostPixel popupPlace(int id) const override;
  HostPixel place() const override;
  void moveTo(const HostPixel& place) override;
  std::optional<OdCmEntityColor> pickColor(const OdCmEntityColor& start) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* control(const toolbar_control& row);
  QWidget* button(const toolbar_control& row);
  QWidget* box(const toolbar_control& row);
  QToolButton* closeButton();
  void fillRow(QHBoxLayout& layout, std::span<const int> ids);
  /// Whether the window may take the keyboard from the view.
  void acceptFocus(bool accepts);

  QWidget* m_owner;
  CMTextEdit* m_bar = nullptr;   ///< null while the window is empty
  QWidget* m_content = nullptr;  ///< holds all controls
  toolbar::icon_pool<QIcon> m_icons;
  std::map<int, QWidget*> m_controls;
  std::map<int, QToolButton*> m_buttons;
};
