#pragma once

#include <string>
#include <string_view>

#include "editor/smart_edit.h"
#include "host/windowless/application.h"

/// A session without a window on a text that no entity holds, measured by rule: base height 2.5, no wrapping.
///
/// Texts are written as one draws them: `|` a caret, `[` and `]` a selection with its caret at `]`, `{` and
/// `}` one with its caret at `{`; `¶` a paragraph end, `↵` a line end, `→` a tab, `‖` a column break, `~` a
/// space that does not break, `½` a stack.
class edited_text {
 public:
  /// A session on format codes; the caret stands at 0.
  static edited_text on_codes(const OdString& codes, const mtext::convert_info& info = {});

  explicit edited_text(std::string_view drawn, const mtext::convert_info& info = {});

  /// Types keys, blanks between them: `x` a character, `Left`, `Ctrl+Alt+Down`, `Enter`, `Space`, `Tab`; `*3`
  /// behind a key is its repeat count. `Space` and letters are the key and its character, as a keyboard sends
  /// them.
  edited_text& keys(std::string_view list);
  /// The text with carets and selections.
  std::string drawn() const;
  std::string codes() const { return text().contentsText().toUtf8(); }

  smart_edit& session() { return *m_session; }
  ExMTextEditable& text() { return m_session->editable(); }
  const ExMTextEditable& text() const { return m_session->editable(); }
  WindowlessApplication& application() { return *m_application; }
  void send(const HostWindowMessage& message) { m_application->document().messages().offer(message); }
  /// "accept", "cancel", or nothing yet.
  std::string ended();

 private:
  edited_text(const OdString& codes, const mtext::convert_info& info, int);
  void key(std::string_view name);

  std::unique_ptr<WindowlessApplication> m_application;
  std::unique_ptr<smart_edit> m_session;
};

/// What becomes of a text when keys are typed in it.
inline std::string edit(std::string_view before, std::string_view keys) {
  return edited_text(before).keys(keys).drawn();
}

/// Wrapping width 16: five letters and a blank, twice, fill a line.
mtext::convert_info wrapping(double width);
