#pragma once

#include <map>
#include <string>

#include "od/base/OdSmartPtr.h"
#include "od/field/OdDbField.h"

namespace mtext {

/// Field objects by the whole marker of the field, "%<code>%".
using fields_map = std::map<std::u16string, OdSmartPtr<OdDbField>>;

}  // namespace mtext
