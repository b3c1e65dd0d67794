#pragma once

#include "host/command_input.h"
#include "host/document.h"
#include "host/drawing_picking.h"
#include "host/message_filter.h"
#include "host/prompt_loop.h"
#include "host/selection_set.h"
#include "host/windowless/view.h"
#include "od/db/OdDbDatabase.h"

/// A drawing that is worked on without a window.
class WindowlessDocument : public HostDocument {
 public:
  /// `source` and `line` have to outlive the document; it shares the database.
  WindowlessDocument(OdSmartPtr<OdDbDatabase> database, HostInputSource& source, HostCommandLine& line);

  OdDbDatabase& database() override { return *m_database; }
  HostMessages& messages() override { return m_messages; }
  WindowlessView& view() override { return m_view; }
  HostCommandInput& commandInput() override { return m_command_input; }
  HostPromptLoop& prompt() override { return m_prompt; }
  HostSelectionSet& pickFirst() override { return m_pick_first; }
  HostPicking& picking() override { return m_picking; }
  void entityChanged(const OdDbObjectId& id) override;
  /// Entities that changed since the document was opened, each once.
  const HostSelectionSet& changed() const { return m_changed; }

 private:
  OdSmartPtr<OdDbDatabase> m_database;
  HostMessages m_messages;
  WindowlessView m_view;
  HostCommandInput m_command_input;
  HostSelectionSet m_pick_first;
  HostSelectionSet m_changed;
  HostDrawingPicking m_picking;
  HostPromptLoop m_prompt;
};
