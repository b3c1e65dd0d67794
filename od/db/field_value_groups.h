#pragma once

#include "od/db/OdDbStub.h"
#include "od/field/OdFieldValue.h"

/// Appends a value as FIELD objects of the record's version keep it. `format` stays beside it where the
/// version has a place for it.
void odAppendFieldValue(dxf::Record& record, const OdFieldValue& value, const OdString& format);

/// Appends the value that names an object.
void odAppendObjectValue(dxf::Record& record, dxf::Handle object);
