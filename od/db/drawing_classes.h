#pragma once

#include <string_view>

#include "od/dxf/file.h"

/// Enters a class of objects in the section CLASSES unless it is there: other programs demand it of each kind
/// that is not as old as the format. `record` is the name of the kind, `name` that of its class.
void odNeedClass(dxf::File& file, std::string_view record, std::string_view name);
