#pragma once

#include "host/edit_host.h"

class HostEdPrompt;
class HostPicking;
class HostSelectionSet;
class OdDbObjectId;

/// An open drawing with everything that its user works through.
class HostDocument : public EditHost {
 public:
  HostDocument() = default;
  HostDocument(const HostDocument&) = delete;
  HostDocument& operator=(const HostDocument&) = delete;
  /// Tells those who remember something of the document that it goes.
  ~HostDocument() override;

  virtual HostEdPrompt& prompt() = 0;
  /// What was selected before a command was typed.
  virtual HostSelectionSet& pickFirst() = 0;
  virtual HostPicking& picking() = 0;
  /// The display of an entity is out of date.
  virtual void entityChanged(const OdDbObjectId& id) = 0;
};

/// Tells the document that owns the entity to show it anew; nothing happens for an entity of another drawing.
void hostEntUpd(const OdDbObjectId& id);
