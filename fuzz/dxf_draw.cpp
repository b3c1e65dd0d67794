// Reads any bytes as a drawing, and draws what lies in its model space.

#include <cmath>
#include <string>

#include "fuzz/require.h"
#include "mtext/entity/mtext_layout.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbDictionary.h"
#include "od/db/OdDbEntity.h"
#include "od/db/OdGiContextForDbDatabase.h"
#include "od/fonts/OdFontLibrary.h"
#include "od/gi/OdGiRecorder.h"

namespace {

using fuzz::require;

/// Entities beyond these are not drawn.
constexpr std::size_t kMostEntities = 20;

/// The fonts of the machine, found once.
std::shared_ptr<OdFontLibrary> fonts() {
  static const auto library = std::make_shared<OdFontLibrary>();
  return library;
}

bool isFinite(const OdGePoint3d& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

void requireNumbers(const OdGiPrimitive& drawn) {
  for (const OdGiContour& contour : drawn.contours) {
    for (const OdGePoint3d& p : contour) require(isFinite(p), "a drawn point has numbers");
  }
  require(isFinite(drawn.center) && std::isfinite(drawn.radius), "a drawn circle has numbers");
  require(std::isfinite(drawn.sweep), "a drawn arc has an end");
}

void draw(OdDbDatabase& database) {
  const OdGiContextForDbDatabase context(&database);
  OdGiRecorder recorder;
  std::size_t count = 0;
  for (const OdDbObjectId& id : odOpen<OdDbBlockTableRecord>(database.getModelSpaceId())->entities()) {
    if (++count > kMostEntities) return;
    const auto entity = odOpen<OdDbEntity>(id);
    if (!entity) continue;
    recorder.clear();
    recorder.record(*entity, context);
    for (const OdGiPrimitive& drawn : recorder.primitives()) requireNumbers(drawn);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  try {
    const OdDbDatabasePtr database = OdDbDatabase::readBytes(bytes, "plan.dxf");
    database->setTextLayout(std::make_shared<mtext::mtext_layout>());
    database->setFontLibrary(fonts());
    draw(*database);
    require(!database->isModified() && database->writeBytes() == bytes, "drawing changes nothing");
  } catch (const dxf::Error& refused) {
    require(*refused.what() != '\0', "a refusal says why");
  }
  return 0;
}
