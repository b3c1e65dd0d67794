#pragma once

#include "host/field_service.h"

class ScriptSource;

/// Fields made by the script: by a code that was given before, or else by the step that is next.
class ScriptFields : public HostGivenFields {
 public:
  /// The source has to outlive the last field.
  void setSource(ScriptSource& source) { m_source = &source; }
  OdDbFieldPtr insertField(HostWindow* owner, OdDbDatabase& database) override;

 private:
  ScriptSource* m_source = nullptr;
};
