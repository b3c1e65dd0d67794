#include "desk/window/main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStatusBar>

#include "desk/window/command_panel.h"
#include "desk/window/drawing_view.h"

namespace {
constexpr QSize kFirstSize(1200, 800);
constexpr int kDecimals = 4;
}  // namespace

MainWindow::MainWindow()
    : m_view(new DrawingView(this)), m_panel(new CommandPanel(this)), m_coordinates(new QLabel(this)) {
  auto* halves = new QSplitter(Qt::Vertical, this);
  halves->addWidget(m_view);
  halves->addWidget(m_panel);
  halves->setStretchFactor(0, 1);
  halves->setStretchFactor(1, 0);
  halves->setChildrenCollapsible(false);
  halves->setSizes(
      {kFirstSize.height() - m_panel->minimumSizeHint().height(), m_panel->minimumSizeHint().height()});
  setCentralWidget(halves);
  statusBar()->addPermanentWidget(m_coordinates);
  addMenus();
  resize(kFirstSize);
}

void MainWindow::addMenus() {
  QMenu* file = menuBar()->addMenu(tr("&File"));
  addCommand(*file, tr("&Open..."), QKeySequence::Open, {"Open"});
  addCommand(*file, tr("&Save"), QKeySequence::Save, {"Save"});
  addCommand(*file, tr("Save &As..."), QKeySequence::SaveAs, {"SaveAs"});
  file->addSeparator();
  addCommand(*file, tr("&Quit"), QKeySequence::Quit, {"Quit"});

  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  addCommand(*edit, tr("&Paste Text"), QKeySequence::Paste, {"Paste"});

  QMenu* view = menuBar()->addMenu(tr("&View"));
  addCommand(*view, tr("Zoom &Extents"), {}, {"Zoom", "Extents"});
  addCommand(*view, tr("Zoom &Window"), {}, {"Zoom", "Window"});
  view->addSeparator();
  m_dark = view->addAction(tr("&Dark Background"));
  m_dark->setCheckable(true);
  connect(m_dark, &QAction::triggered, this, &MainWindow::darkBackgroundChosen);
  m_turned = view->addAction(tr("&Turn Edited Text to the Screen"));
  m_turned->setCheckable(true);
  connect(m_turned, &QAction::triggered, this, &MainWindow::turnedTextChosen);

  QMenu* help = menuBar()->addMenu(tr("&Help"));
  addCommand(*help, tr("&Commands"), {}, {"Help"});
  addCommand(*help, tr("&Fonts"), {}, {"Fonts"});
  connect(help->addAction(tr("&About scribe")), &QAction::triggered, this, &MainWindow::showAbout);
}

void MainWindow::addCommand(QMenu& menu, const QString& text, const QKeySequence& keys,
                            const QStringList& lines) {
  QAction* entry = menu.addAction(text);
  entry->setShortcut(keys);
  connect(entry, &QAction::triggered, this, [this, lines] { emit commandChosen(lines); });
}

void MainWindow::showAbout() {
  QMessageBox::about(this, tr("About scribe"),
                     tr("scribe %1\nCreates and edits the text of drawings.").arg(SCRIBE_VERSION));
}

void MainWindow::showTitle(const QString& file, bool modified) {
  setWindowTitle((file.isEmpty() ? tr("New drawing") : file) + "[*] - scribe");
  setWindowModified(modified);
}

void MainWindow::showDarkBackground(bool dark) { m_dark->setChecked(dark); }

void MainWindow::showTurnedText(bool turns) { m_turned->setChecked(turns); }

void MainWindow::showCoordinates(double x, double y) {
  m_coordinates->setText(QString::number(x, 'f', kDecimals) + ", " + QString::number(y, 'f', kDecimals));
}

/// The window closes when the command that it sends away has asked what it has to ask.
void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  emit commandChosen({"Quit"});
}
