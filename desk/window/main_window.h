#pragma once

#include <QMainWindow>

class CommandPanel;
class DrawingView;
class QAction;
class QLabel;

/// The frame of the desk: menus, the drawing view, the command line and the status bar. It decides nothing:
/// what is chosen and typed goes out as signals.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  MainWindow();

  DrawingView& view() { return *m_view; }
  CommandPanel& panel() { return *m_panel; }
  /// The name of the drawing and whether it has changes that are not saved.
  void showTitle(const QString& file, bool modified);
  /// Check a menu entry without sending a signal.
  void showDarkBackground(bool dark);
  void showTurnedText(bool turns);
  /// Where the cursor is, in drawing units.
  void showCoordinates(double x, double y);

 signals:
  /// A menu entry that stands for a command line was chosen, such as "Zoom Extents".
  void commandChosen(const QStringList& lines);
  void darkBackgroundChosen(bool dark);
  void turnedTextChosen(bool turns);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void addMenus();
  void addCommand(QMenu& menu, const QString& text, const QKeySequence& keys, const QStringList& lines);
  void showAbout();

  DrawingView* m_view;
  CommandPanel* m_panel;
  QLabel* m_coordinates;
  QAction* m_dark = nullptr;
  QAction* m_turned = nullptr;
};
