#include "desk/script/script_desk.h"

#include "desk/document/drawing_file.h"
#include "desk/document/list_alphabets.h"
#include "desk/document/space_extents.h"
#include "desk/document/view_motion.h"
#include "host/prompt.h"
#include "host/turned_text.h"

namespace {
constexpr OdGsDeviceRect kPixels{0, 0, 1280, 800};

std::optional<std::filesystem::path> askFile(HostEdPrompt& prompt, const HostPromptRequest& request) {
  std::u16string name;
  if (prompt.getString(request, /*whole_line=*/true, name) != kAnswerValue) return std::nullopt;
  return pathOf(name);
}
}  // namespace

ScriptDesk::ScriptDesk(OdDbDatabasePtr drawing, Script script, ScriptCommandLine::Write write)
    : m_line(std::move(write)),
      m_view(std::make_unique<WindowlessView>()),
      m_source(std::move(script), {m_line, m_keys, m_clock, m_events, *m_view, m_window, m_fields}),
      m_application({.events = m_events,
                     .help = m_help,
                     .profile = m_profile,
                     .settings = m_settings,
                     .clipboard = m_clipboard,
                     .key_state = m_keys,
                     .ticks = m_clock,
                     .window = m_window,
                     .update_now = [this] { update(); }}) {
  addListAlphabets(m_settings);
  m_events.setSource(m_source);
  m_window.setSource(m_source);
  m_fields.setSource(m_source);
  m_view->gsView().setDeviceRect(kPixels);
  // Nobody looks on: the points of a script are points of the drawing, also within a text.
  host::set_turns_edited_text(m_profile, false);
  show(std::move(drawing));
}

std::optional<std::filesystem::path> ScriptDesk::askFileToOpen() {
  return askFile(document().prompt(), {.prompt = u"Enter name of drawing to open"});
}

std::optional<std::filesystem::path> ScriptDesk::askFileToSave(const std::filesystem::path& proposed) {
  return askFile(document().prompt(),
                 {.prompt = u"Enter name to save under", .default_answer = textOf(proposed)});
}

void ScriptDesk::workOn(std::u16string_view, Leaving, std::function<void()> work) { work(); }

void ScriptDesk::show(OdDbDatabasePtr drawing) {
  m_document =
      std::make_unique<DeskDocument>(std::move(drawing), DeskSurroundings{m_source, m_line, *m_view});
  m_application.setDocument(m_document.get());
  showBox(m_view->gsView(), spaceExtents(m_document->database()));
}

void ScriptDesk::update() { m_view->overlay().setPainted(); }
