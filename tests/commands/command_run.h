#pragma once

#include "host/command.h"
#include "host/windowless/application.h"
#include "od/db/OdDbMText.h"
#include "od/db/OdDbText.h"

/// An application around an empty drawing, to run commands in as a user would: input is queued, then a
/// command runs.
struct command_run {
  command_run();

  /// A multi-line text in the model space.
  OdDbMTextPtr addText(const OdString& contents, const OdGePoint3d& location);
  /// A single-line text of height 2.5 there.
  OdDbTextPtr addLineOfText(const OdString& string, const OdGePoint3d& position);
  /// A line there, which is no text.
  OdDbObjectId addLine(const OdGePoint3d& from, const OdGePoint3d& to);
  /// Locks the layer that new entities lie on.
  void lockLayer();
  void select(const OdDbObjectId& id) { application.document().pickFirst().add(id); }
  void type(std::u16string_view characters);
  void key(unsigned code, const HostHeldKeys::Keys& held = {});
  /// Runs a command as typing its name does.
  template <class Command>
  int run() {
    const OdSmartPtr<ICmdProcess> command(new Command, kOdRxObjAttach);
    const int status = command->run();
    return status == command->status() ? status : -1;
  }

  /// The last line of the command line.
  std::u16string said() { return application.log().lines().empty() ? u"" : application.log().lines().back(); }
  std::vector<OdDbObjectId> entities() const;

  OdDbDatabasePtr database;
  WindowlessApplication application;
};
