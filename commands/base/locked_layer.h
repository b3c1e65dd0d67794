#pragma once

class OdDbObjectId;

/// True for an entity whose layer is locked: it is seen, and nothing may change it.
bool is_on_locked_layer(const OdDbObjectId& id);
