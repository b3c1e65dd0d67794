#pragma once

#include <optional>

#include "editor/smart_edit.h"
#include "host/windowless/application.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"

/// A drawing with one multi-line text in its model space, real fonts and layout, and an application around
/// it.
struct edited_drawing {
  edited_drawing();

  /// Opens the session on the text.
  smart_edit& begin(const session_start& start = {});
  /// Ends it.
  void end() { session.reset(); }
  void send(const HostWindowMessage& message) { application.document().messages().offer(message); }
  void type(std::u16string_view characters);
  /// What the drawing would be saved as.
  std::string bytes() const { return database->writeBytes(); }

  OdDbDatabasePtr database;
  WindowlessApplication application;
  OdDbMTextPtr text;
  std::optional<smart_edit> session;
};
