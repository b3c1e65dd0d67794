#pragma once

#include "desk/script/script_step.h"
#include "host/events.h"

class ScriptSource;

/// The box answer that a script's word stands for.
HostBoxAnswer boxAnswer(ScriptAnswer answer);

/// Questions answered by the script: by an answer that was given before, or else by the step that is next.
class ScriptEvents : public HostAnsweredEvents {
 public:
  /// The source has to outlive the last question.
  void setSource(ScriptSource& source) { m_source = &source; }
  int box(int level, std::u16string_view text, HostWindow* owner, int style) override;

 private:
  ScriptSource* m_source = nullptr;
};
