#pragma once

class OdDbObjectId;

/// The function "ShowAttDDEIT" of the optional library `cmdextras`: a dialog that edits an attribute
/// definition.
using ShowAttDDEITFunction = void (*)(const OdDbObjectId& definition);

/// Shows that dialog. Where the library is absent, nothing happens.
void show_attribute_dialog(const OdDbObjectId& definition);
