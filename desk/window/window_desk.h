#pragma once

#include <memory>

#include "desk/document/desk.h"
#include "desk/document/desk_application.h"
#include "desk/window/key_router.h"
#include "desk/window/main_window.h"
#include "desk/window/progress.h"
#include "desk/window/qt_clipboard.h"
#include "desk/window/qt_events.h"
#include "desk/window/qt_help.h"
#include "desk/window/qt_input_source.h"
#include "desk/window/qt_tick_source.h"
#include "desk/window/qt_window.h"
#include "desk/window/window_command_line.h"
#include "host/key_state.h"
#include "host/settings.h"

/// The desk in a window: joins the widgets to the prompt that waits. A prompt waits in the toolkit's event
/// loop, so there is no other.
class WindowDesk : public Desk {
 public:
  /// Begins with an empty drawing. The profile has to outlive the desk.
  explicit WindowDesk(IProfile& profile);
  ~WindowDesk() override;

  HostApplication& application() override { return m_application; }
  DeskDocument& document() override { return *m_document; }
  std::optional<std::filesystem::path> askFileToOpen() override;
  std::optional<std::filesystem::path> askFileToSave(const std::filesystem::path& proposed) override;

  void showWindow() { m_window.show(); }
  /// Puts a line into the scrollback.
  void tell(std::u16string_view line) { m_line.write(line); }

 protected:
  void workOn(std::u16string_view what, Leaving leaving, std::function<void()> work) override;
  void show(OdDbDatabasePtr drawing) override;

 private:
  void connectWidgets();
  void send(HostWindowMessage message);
  void sendKeys(std::vector<HostWindowMessage> messages);
  void sendKey(const QKeyEvent& event);
  void showComposing(const QString& text, int caret);
  void takeComposed(const QString& text);
  void type(const QStringList& lines);
  void setBackground(bool dark);
  void beIdle();
  void showCoordinates();

  IProfile& m_profile;
  MainWindow m_window;
  Progress m_progress;
  WindowCommandLine m_line;
  HostHeldKeys m_keys;
  QtInputSource m_source;
  QtHelp m_help;
  QtEvents m_events;
  HostSettings m_settings;
  QtClipboard m_clipboard;
  QtTickSource m_ticks;
  QtWindow m_host_window;
  DeskApplication m_application;
  std::unique_ptr<DeskDocument> m_document;
  KeyRouter m_router;
};
