#pragma once

#include <vector>

#include "od/base/OdString.h"
#include "od/dxf/record.h"

/// A code as it is in memory, from the one in a file: there `%<\_ObjIdx n>%` names an object by its place in
/// the list `objects`, here `%<\_ObjId n>%` by its handle.
OdString odFieldCodeInMemory(const OdString& code, const std::vector<dxf::Handle>& objects);

/// The way back; `objects` becomes the list.
OdString odFieldCodeInFile(const OdString& code, std::vector<dxf::Handle>& objects);
