#pragma once

#include <span>

#include "od/db/OdDbDatabase.h"
#include "od/field/OdDbField.h"

/// Evaluates fields with what the drawing knows, where one of the bits of `context`
/// (`OdDbField::EvaluationOption`) is among the field's own.
void oddbEvaluateFields(OdDbDatabase& database, int context, std::span<const OdDbFieldPtr> fields);
