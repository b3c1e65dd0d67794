#pragma once

#include <span>

#include "od/evaluate/OdFieldSource.h"
#include "od/field/OdDbField.h"

/// Evaluates a field with all that it holds, the inner ones first, where one of the bits of `context` is
/// among the field's own (`OdDbField::EvaluationOption`). A field that cannot be evaluated shows "####" and
/// keeps its code. One whose evaluator is not here shows what it showed before. Depth costs heap.
void odEvaluateField(const OdDbFieldPtr& field, int context, const OdFieldSource& source);

/// The text of a container with what its children show in place of their markers. `written` is what becomes
/// of a child's text on the way; without it the text stays as it is.
std::u16string odContainerText(const OdDbField& container,
                               std::u16string (*written)(std::u16string_view) = nullptr);
