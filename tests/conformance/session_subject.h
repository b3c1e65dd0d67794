#pragma once

#include <string>

#include "editor/smart_edit.h"
#include "host/windowless/application.h"
#include "tests/conformance/text_json.h"

namespace conformance {

/// What the steps of one `session` request work on: a session without a window on a text that no entity
/// holds.
class session_subject {
 public:
  explicit session_subject(const json& in);

  smart_edit& session() { return m_session; }
  ExMTextEditable& text() { return m_session.editable(); }
  /// Holds the modifier keys that a step names.
  void hold_keys(const json& in);
  HostMemoryClipboard& clipboard();
  OdGsView& view();
  /// How the session ended: "", "accept" or "cancel".
  const std::string& ended();

 private:
  smart_edit m_session;
  std::string m_ended;
};

/// One step: takes its arguments, gives its result, throws what the library throws.
using session_step = json (*)(session_subject& subject, const json& in);

/// The steps by name, a table each; null if there is none of that name.
session_step find_input_step(const std::string& name);
session_step find_text_step(const std::string& name);

}  // namespace conformance
