#include "od/db/OdDbObjectId.h"

// Stands in for the optional library with the dialog for attribute definitions: it keeps what it was shown.

extern "C" {
OdDbObjectId shown_definition;

void ShowAttDDEIT(const OdDbObjectId& definition) { shown_definition = definition; }
}
