#pragma once

#include "host/windowless/application.h"
#include "od/db/OdDbMText.h"

/// An application around an empty drawing, to run commands in as a user would: input is queued, then a
/// command runs.
struct command_run {
  command_run();

  /// A multi-line text in the model space.
  OdDbMTextPtr addText(const OdString& contents, const OdGePoint3d& location);
  void select(const OdDbObjectId& id) { application.document().pickFirst().add(id); }
  void type(std::u16string_view characters);
  void key(unsigned code, const HostHeldKeys::Keys& held = {});
  int create();
  int edit();

  /// The last line of the command line.
  std::u16string said() { return application.log().lines().empty() ? u"" : application.log().lines().back(); }
  std::vector<OdDbObjectId> entities() const;

  OdDbDatabasePtr database;
  WindowlessApplication application;
};
