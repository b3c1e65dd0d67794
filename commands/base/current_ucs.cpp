#include "commands/base/current_ucs.h"

#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDrawing.h"
#include "od/dxf/header_variables.h"

namespace {

/// Axes closer than this to one another span no plane.
constexpr double kParallel = 1e-10;

OdGeVector3d header_vector(const dxf::HeaderVariables& header, const char* name,
                           const OdGeVector3d& fallback) {
  const auto [x, y, z] = header.point_or(name, {fallback.x, fallback.y, fallback.z});
  return {x, y, z};
}

}  // namespace

ucs_axes current_ucs(const OdDbDatabase& database) {
  const dxf::HeaderVariables header(database.drawing().file());
  const OdGeVector3d x = header_vector(header, "$UCSXDIR", OdGeVector3d::kXAxis);
  const OdGeVector3d z = x.crossProduct(header_vector(header, "$UCSYDIR", OdGeVector3d::kYAxis));
  if (!(z.length() > kParallel)) return {};
  return {x.normal(), z.normal()};
}
