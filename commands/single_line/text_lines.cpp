#include "commands/single_line/text_lines.h"

#include <optional>

#include "commands/letter_case/letter_case.h"
#include "commands/single_line/new_text.h"
#include "commands/single_line/text_data.h"
#include "editor/current_space.h"
#include "editor/smart_edit.h"
#include "host/application.h"
#include "host/document.h"
#include "host/exports.h"
#include "host/key_state.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "od/db/OdDbDatabase.h"

namespace {

constexpr int kTypeInPlace = 1030;
constexpr int kEnterText = 1123;
constexpr unsigned kTypeFlags = kReadOnlyWaits | kReadMayBeEmpty | kReadKeepBlanks | kReadWholeLine;
constexpr unsigned kEnterFlags = kReadMayBeEmpty | kReadKeepBlanks | kReadWholeLine;

void remember(HostDocument& document, const new_text_settings& settings, OdDbObjectId made) {
  text_data()[document] = {.rotation = settings.rotation, .last_text = made, .justify = settings.justify};
}

/// The letters as they are to be stored: all capitals where the drawing wants them and Caps Lock says so.
OdString as_typed(HostDocument& document, const std::u16string& letters) {
  HostApplication* application = host::application();
  const bool capitals = document.database().getSysVarInt(u"TEXTALLCAPS", 0) != 0;
  if (!capitals || !application || !application->keyState().capsLock()) return letters;
  case_state upper(case_mode::upper);
  return in_case(letters, upper);
}

OdDbObjectId append(HostDocument& document, const OdDbTextPtr& text) {
  const OdDbObjectId made = editing::open_current_space(document.database())->appendOdDbEntity(text.get());
  text->adjustAlignment();
  hostEntUpd(made);
  return made;
}

}  // namespace

int create_typed(HostDocument& document, new_text_settings settings) {
  const int justify = settings.justify;
  for (;; settings.go_down()) {
    std::u16string letters;
    const int answer =
        document.prompt().read_input(host::resource_string(kEnterText), u"", kEnterFlags, &letters);
    if (answer != kAnswerValue) return kCommandCancelled;
    if (letters.empty()) return kCommandDone;
    const OdDbTextPtr text = new_text(document, settings);
    text->setTextString(as_typed(document, letters));
    new_text_settings kept = settings;
    kept.justify = justify;
    remember(document, kept, append(document, text));
  }
}

int create_in_place(HostDocument& document, new_text_settings settings) {
  std::optional<view_policy> view_of_run;
  for (;;) {
    const OdDbTextPtr text = new_text(document, settings);
    smart_edit session(document);
    if (view_of_run) session.continueView(*view_of_run);
    session.beginTextEdit(text, {.is_new = true});
    const int answer = document.prompt().read_input(host::resource_string(kTypeInPlace), u"", kTypeFlags);
    session.finishEdit(/*accept=*/answer == kAnswerValue, /*force=*/false);
    if (!session.writtenLines().empty()) remember(document, settings, session.writtenLines().back());
    if (answer != kAnswerValue) return kCommandCancelled;
    if (!session.exitPoint() || settings.has_two_points()) return kCommandDone;
    settings.origin = *session.exitPoint();
    view_of_run = session.viewPolicy();
  }
}
