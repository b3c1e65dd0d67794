#pragma once

#include "od/db/OdDbStub.h"
#include "od/field/OdDbField.h"

class OdDbDrawing;

/// The part of a FIELD record that tells of the field.
const OdDbSubclass& odFieldSubclass();

/// The field that `stub`, a FIELD object, holds, with its children and theirs. A child that is missing, or
/// that holds itself, becomes an empty field, so that the numbers of the others stay right. References to
/// objects name them by handle, `%<\_ObjId n>%`, as the codes in memory do.
OdDbFieldPtr odReadField(OdDbDrawing& drawing, OdDbStub& stub);

/// True when the FIELD `record` was made for another text than `hostText`: it keeps a checksum of it.
bool odFieldIsStale(const dxf::Record& record, const OdString& hostText);

/// The sum that files keep of a text: each unit times its place, counted from 1.
double odTextChecksum(std::u16string_view text);

/// What the field of a FIELD record shows; "----" for one, other than a container, that shows nothing.
OdString odFieldShown(const dxf::Record& record);

/// Handles of the children of a FIELD, as they stand in the record.
std::vector<dxf::Handle> odFieldChildren(const dxf::Record& record);
