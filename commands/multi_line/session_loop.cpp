#include "commands/multi_line/session_loop.h"

#include "editor/smart_edit.h"
#include "host/application.h"
#include "host/events.h"
#include "host/exports.h"
#include "host/prompt.h"
#include "host/translate.h"
#include "ui/widgets/open_toolbar.h"

namespace {

constexpr int kWaitPrompt = 1030;
constexpr int kSaveQuestion = 1065;
constexpr int kAllButtons = 7;
constexpr unsigned kWaitFlags = kReadOnlyWaits | kReadMayBeEmpty;

int ask_to_save() {
  HostApplication* application = host::application();
  IEvents* events = application ? &application->events() : Get_IEvents();
  if (!events) return kBoxNo;
  return events->box(kBoxQuestion, host::resource_string(kSaveQuestion), nullptr, kAllButtons);
}

}  // namespace

int wait_for_session(HostEdPrompt& prompt, smart_edit& session) {
  const auto toolbar = open_toolbar(session);
  for (;;) {
    const int answer = prompt.read_input(host::resource_string(kWaitPrompt), u"", kWaitFlags);
    if (answer == kAnswerEndOfInput) return kSessionDiscarded;
    if (answer != kAnswerCancel) return kSessionAccepted;
    if (!session.hasChanges()) return kSessionDiscarded;
    const int choice = ask_to_save();
    if (choice != kBoxCancel) return choice;
  }
}
