#include "desk/script/script_events.h"

#include "desk/script/script_source.h"

HostBoxAnswer boxAnswer(ScriptAnswer answer) {
  switch (answer) {
    case ScriptAnswer::yes:
      return kBoxYes;
    case ScriptAnswer::no:
      return kBoxNo;
    case ScriptAnswer::cancel:
      return kBoxCancel;
  }
  return kBoxCancel;
}

int ScriptEvents::box(int level, std::u16string_view text, HostWindow* owner, int style) {
  if (level == kBoxQuestion && answersLeft() == 0 && m_source)
    if (const std::optional<ScriptAnswer> next = m_source->takeAnswer()) answer(boxAnswer(*next));
  return HostAnsweredEvents::box(level, text, owner, style);
}
