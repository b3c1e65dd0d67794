#pragma once

#include <optional>

#include "od/db/OdDbEntity.h"
#include "od/field/OdFieldValue.h"

/// The property of that name, without case: of all entities `Layer`, `Color`, `Linetype`, `LinetypeScale`,
/// `Lineweight`; of curves `Length`, `Area`, and what their kind has; of texts `TextString`, `Height`,
/// `Rotation` and their place. Nothing where the entity has no such property.
std::optional<OdFieldValue> odObjectProperty(const OdDbEntity& entity, std::u16string_view name);
