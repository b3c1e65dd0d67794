#pragma once

#include "host/composer.h"

class smart_edit;

/// Shows in a session's text what an input method composes. Nothing of it is part of the text or of undo.
class session_composer : public HostComposer {
 public:
  /// The session owns the composer.
  explicit session_composer(smart_edit& session) : m_session(session) {}

  void compose(const HostComposition& composition) override;
  std::optional<HostCaret> caret() const override;

 private:
  smart_edit& m_session;
};
