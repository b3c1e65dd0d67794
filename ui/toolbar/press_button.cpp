#include "editor/smart_edit.h"
#include "ui/toolbar/CMTextEdit.h"
#include "ui/toolbar/button_table.h"

void CMTextEdit::press(int id) {
  perform([this, id] {
    if (const auto change = toolbar::action_of(id).ask(*this)) run(*change);
  });
}

void CMTextEdit::close() {
  perform([this] { m_session.cancel(); });
}
