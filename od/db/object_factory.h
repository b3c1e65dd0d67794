#pragma once

#include "od/db/OdDbStub.h"

/// A new object of the class that the stub's record wants, not yet tied to the stub. Entities of an unknown
/// type become `OdDbUnknownEntity`, other objects `OdDbUnknownObject`.
OdDbObjectPtr odMakeObject(const OdDbStub& stub);
