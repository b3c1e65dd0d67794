#pragma once

#include "host/field_service.h"

/// Makes and changes fields in a dialog. Without a screen each is cancelled.
class FieldDialogs : public HostFieldService {
 public:
  OdDbFieldPtr insertField(HostWindow* owner, OdDbDatabase& database) override;
  OdDbFieldPtr changeField(const OdDbField& field, HostWindow* owner, OdDbDatabase& database) override;
};
