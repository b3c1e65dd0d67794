#include "desk/window/window_desk.h"

#include <QDesktopServices>
#include <QKeyEvent>
#include <algorithm>

#include "desk/commands/command_table.h"
#include "desk/document/drawing_file.h"
#include "desk/document/list_alphabets.h"
#include "desk/window/command_edit.h"
#include "desk/window/command_panel.h"
#include "desk/window/drawing_view.h"
#include "desk/window/file_dialogs.h"
#include "desk/window/key_messages.h"
#include "desk/window/qt_text.h"
#include "host/command_factory.h"
#include "host/profile.h"
#include "host/turned_text.h"

namespace {
constexpr std::u16string_view kSection = u"Desk";
constexpr std::u16string_view kDarkBackground = u"DarkBackground";
}  // namespace

WindowDesk::WindowDesk(IProfile& profile)
    : m_profile(profile),
      m_progress(m_window),
      m_line(m_window.panel()),
      m_source(m_keys),
      m_help(guidesFolder(), &QDesktopServices::openUrl,
             [this](const QString& guide) {
               m_line.write(u"No browser could be opened. The guide is " + fromQt(guide) + u".");
             }),
      m_events(m_window, m_help),
      m_host_window(m_window.view(), [this](const HostWindowMessage& message) { m_source.push(message); }),
      m_application({.events = m_events,
                     .help = m_help,
                     .profile = m_profile,
                     .settings = m_settings,
                     .clipboard = m_clipboard,
                     .key_state = m_keys,
                     .ticks = m_ticks,
                     .window = m_host_window,
                     .update_now = [this] { m_window.view().update(); }}),
      m_router(m_window, {.has_session = [this] { return document().hasSession(); },
                          .inputs_wait = [this] { return m_source.hasInputs(); },
                          .to_session = [this](const QKeyEvent& event) { sendKey(event); }}) {
  addListAlphabets(m_settings);
  registerDeskCommands(m_application.commandFactory(), *this);
  connectWidgets();
  m_source.setOnIdle([this] { beIdle(); });
  m_events.setOnCancel([this] { m_source.forget(); });
  setBackground(m_profile.number(kSection, kDarkBackground, 1) != 0);
  show(newDrawing());
}

WindowDesk::~WindowDesk() {
  m_window.view().setDocument(nullptr);
  m_application.setDocument(nullptr);
}

void WindowDesk::connectWidgets() {
  DrawingView& view = m_window.view();
  CommandEdit& edit = m_window.panel().edit();
  QObject::connect(&view, &DrawingView::sent, [this](const HostWindowMessage& message) { send(message); });
  QObject::connect(&view, &DrawingView::pointed, &m_window, &MainWindow::showCoordinates);
  QObject::connect(&view, &DrawingView::keyLeft, &edit, &CommandEdit::takeKey);
  QObject::connect(&view, &DrawingView::composed, [this](const QString& text) { takeComposed(text); });
  QObject::connect(&view, &DrawingView::composing,
                   [this](const QString& text, int caret) { showComposing(text, caret); });
  view.setCaretSource([this] {
    HostComposer* const composer = m_host_window.composer();
    return composer ? composer->caret() : std::nullopt;
  });
  QObject::connect(&edit, &CommandEdit::entered,
                   [this](const QString& line) { m_source.push(HostTypedLine{fromQt(line)}); });
  QObject::connect(&edit, &CommandEdit::cancelled, [this] { m_source.push(HostCancel{}); });
  QObject::connect(&m_window, &MainWindow::commandChosen, [this](const QStringList& lines) { type(lines); });
  QObject::connect(&m_window, &MainWindow::darkBackgroundChosen, [this](bool dark) { setBackground(dark); });
  QObject::connect(&m_window, &MainWindow::turnedTextChosen,
                   [this](bool turns) { host::set_turns_edited_text(m_profile, turns); });
}

void WindowDesk::send(HostWindowMessage message) {
  if (message.number == WM_MOUSEMOVE || message.number == WM_SETCURSOR) {
    m_source.pushMove(message);
  } else {
    m_source.push(message);
  }
}

void WindowDesk::sendKeys(std::vector<HostWindowMessage> messages) {
  for (HostWindowMessage& message : messages) {
    m_window.view().locate(message);
    m_source.push(message);
  }
}

/// Esc takes back what is being composed, and nothing else.
void WindowDesk::sendKey(const QKeyEvent& event) {
  const bool is_escape = event.key() == Qt::Key_Escape && event.type() == QEvent::KeyPress;
  if (is_escape && m_window.view().isComposing()) return m_window.view().dropComposition();
  sendKeys(keyMessages(event));
}

void WindowDesk::showComposing(const QString& text, int caret) {
  if (HostComposer* const composer = m_host_window.composer())
    composer->compose({fromQt(text), static_cast<std::size_t>(std::max(caret, 0))});
}

void WindowDesk::takeComposed(const QString& text) {
  if (document().hasSession()) return sendKeys(composedMessages(text));
  m_window.panel().edit().insert(text);
}

/// A menu entry stops what runs, as a person would with Esc, and types its lines. A question on the way that
/// is answered by Cancel takes all of it back.
void WindowDesk::type(const QStringList& lines) {
  if (!m_line.awaitsCommand()) {
    m_source.push(HostCancel{});
    m_source.push(HostCancel{});
  }
  for (const QString& line : lines) m_source.push(HostTypedLine{fromQt(line)});
}

void WindowDesk::setBackground(bool dark) {
  m_window.showDarkBackground(dark);
  m_window.view().painter().setBackground(dark ? Background::dark : Background::light);
  m_window.view().update();
  if (m_profile.number(kSection, kDarkBackground, 1) != int(dark))
    m_profile.setNumber(kSection, kDarkBackground, dark);
}

/// All inputs are worked on: the window catches up with what they did.
void WindowDesk::beIdle() {
  m_router.release();
  DrawingView& view = m_window.view();
  if (document().hasSession()) {
    if (m_window.panel().edit().hasFocus()) view.setFocus();
    view.followCaret();
  } else {
    view.dropComposition();
    view.setCursor(Qt::CrossCursor);
  }
  view.paintIfStale();
  if (view.underMouse()) showCoordinates();
  for (const OdString& sentence : view.painter().takeDiagnostics()) m_line.write(sentence.str());
  m_window.showTurnedText(host::turns_edited_text(m_profile));
  m_window.showTitle(toQt(textOf(file().filename())), document().database().isModified());
}

/// The camera may have moved under a cursor that stands still.
void WindowDesk::showCoordinates() {
  HostWindowMessage cursor;
  m_window.view().locate(cursor);
  m_window.showCoordinates(cursor.point.x, cursor.point.y);
}

std::optional<std::filesystem::path> WindowDesk::askFileToOpen() {
  return askDrawingToOpen(m_window, file().parent_path());
}

std::optional<std::filesystem::path> WindowDesk::askFileToSave(const std::filesystem::path& proposed) {
  return askDrawingToSave(m_window, proposed);
}

void WindowDesk::workOn(std::u16string_view what, Leaving leaving, std::function<void()> work) {
  const CancelButton cancel = leaving == Leaving::allowed ? CancelButton::shown : CancelButton::hidden;
  m_progress.run(what, cancel, std::move(work));
}

void WindowDesk::show(OdDbDatabasePtr drawing) {
  const auto changed = [this](const OdDbObjectId& id) {
    m_window.view().painter().invalidate(id);
    m_window.view().update();
  };
  auto next = std::make_unique<DeskDocument>(
      std::move(drawing), DeskSurroundings{m_source, m_line, m_window.view().hostView(), changed});
  m_window.view().setDocument(next.get());
  m_application.setDocument(next.get());
  m_document = std::move(next);
  QStringList names;
  for (const std::u16string& name : m_application.commandFactory().names()) names << toQt(name);
  m_window.panel().edit().setCommandNames(names);
}
