#pragma once

#include <memory>

#include "desk/document/desk.h"
#include "desk/document/desk_application.h"
#include "desk/script/script_command_line.h"
#include "desk/script/script_events.h"
#include "desk/script/script_fields.h"
#include "desk/script/script_source.h"
#include "desk/script/script_window.h"
#include "host/clipboard.h"
#include "host/help.h"
#include "host/key_state.h"
#include "host/profile.h"
#include "host/settings.h"
#include "host/windowless/clock.h"
#include "host/windowless/view.h"

/// The desk without a window: a script works on it. Its clock stands still but for `@wait`; its view is 1280
/// by 800 pixels and shows the whole drawing.
class ScriptDesk : public Desk {
 public:
  /// `write` gets every message of the command line.
  ScriptDesk(OdDbDatabasePtr drawing, Script script, ScriptCommandLine::Write write);

  HostApplication& application() override { return m_application; }
  DeskDocument& document() override { return *m_document; }
  std::optional<std::filesystem::path> askFileToOpen() override;
  std::optional<std::filesystem::path> askFileToSave(const std::filesystem::path& proposed) override;

  const ScriptEvents& questions() const { return m_events; }
  /// What the script chose from menus that had no such row, or could not give it.
  const std::vector<std::u16string>& refusedChoices() const { return m_window.refused(); }
  const ScriptSource& source() const { return m_source; }

 protected:
  void workOn(std::u16string_view what, Leaving leaving, std::function<void()> work) override;
  void show(OdDbDatabasePtr drawing) override;

 private:
  void update();

  ScriptCommandLine m_line;
  ScriptEvents m_events;
  HostHelpLog m_help;
  HostMemoryProfile m_profile;
  HostSettings m_settings;
  HostMemoryClipboard m_clipboard;
  HostHeldKeys m_keys;
  WindowlessClock m_clock;
  ScriptWindow m_window;
  ScriptFields m_fields;
  host::OfferingFields m_offered_fields{m_fields};
  std::unique_ptr<WindowlessView> m_view;
  std::unique_ptr<DeskDocument> m_document;
  ScriptSource m_source;
  DeskApplication m_application;
};
