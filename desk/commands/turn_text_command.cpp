#include "desk/commands/turn_text_command.h"

#include "host/application.h"
#include "host/turned_text.h"

namespace {
enum TurnTextKeyword : int { kText = 0, kView = 1 };
}  // namespace

int TurnTextCommand::run() {
  IProfile& profile = desk().application().profile();
  const int answer =
      prompt().getKeyword({.prompt = u"Specify what turns when a text cannot be read",
                           .keywords = u"Text View",
                           .default_answer = host::turns_edited_text(profile) ? u"Text" : u"View"});
  if (answer != kText && answer != kView)
    return setStatus(answer == kAnswerNothing ? kCommandDone : kCommandCancelled);
  host::set_turns_edited_text(profile, answer == kText);
  return setStatus(kCommandDone);
}
