#pragma once

#include "od/ge/OdGeMatrix3d.h"

/// How the text is shown while it is edited. It is shown as it lies in the drawing: in its own plane, turned
/// as it is turned, so the transform from the drawing to what is shown is the identity.
class view_policy {
 public:
  /// From the drawing to where the text is shown. All drawing goes through it, all pointing through its
  /// inverse.
  const OdGeMatrix3d& edit_transform() const { return m_edit_transform; }

 private:
  OdGeMatrix3d m_edit_transform;
};
