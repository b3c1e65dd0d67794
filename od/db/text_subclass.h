#pragma once

#include "od/db/OdDbGroups.h"

/// The part that single-line texts and attributes share.
const OdDbSubclass& odTextSubclass();
