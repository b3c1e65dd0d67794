#pragma once

#include <functional>

#include "host/command_input.h"
#include "host/document.h"
#include "host/drawing_picking.h"
#include "host/message_filter.h"
#include "host/prompt_loop.h"
#include "host/selection_set.h"
#include "od/db/OdDbDatabase.h"

/// What the desk gives a drawing to be worked on with. All but the function have to outlive the document.
struct DeskSurroundings {
  HostInputSource& source;
  HostCommandLine& line;
  HostView& view;
  /// An entity has to be shown anew.
  std::function<void(const OdDbObjectId& id)> entity_changed = [](const OdDbObjectId&) {};
};

/// The drawing on the desk.
class DeskDocument : public HostDocument {
 public:
  DeskDocument(OdDbDatabasePtr database, DeskSurroundings around);

  OdDbDatabase& database() override { return *m_database; }
  HostMessages& messages() override { return m_messages; }
  HostView& view() override { return m_around.view; }
  HostCommandInput& commandInput() override { return m_command_input; }
  HostPromptLoop& prompt() override { return m_prompt; }
  HostSelectionSet& pickFirst() override { return m_pick_first; }
  HostPicking& picking() override { return m_picking; }
  void entityChanged(const OdDbObjectId& id) override { m_around.entity_changed(id); }

  /// Whether an editing session works on the input: everything that is typed is its own.
  bool hasSession() const;

 private:
  OdDbDatabasePtr m_database;
  DeskSurroundings m_around;
  HostMessages m_messages;
  HostCommandInput m_command_input;
  HostSelectionSet m_pick_first;
  HostDrawingPicking m_picking;
  HostPromptLoop m_prompt;
};
