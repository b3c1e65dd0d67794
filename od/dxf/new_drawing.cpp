#include "od/dxf/new_drawing.h"

#include <algorithm>

#include "od/base/OdError.h"
#include "od/dxf/drawing_template.h"

namespace dxf {
namespace {

constexpr Version kVersions[] = {R12, R2000, R2004, R2007, R2010, R2013, R2018};

// The columns that most programs use.
Manner usual_manner(Version version) {
  Manner manner;
  manner.version = version;
  manner.int16_width = manner.boolean_width = 6;
  manner.int32_width = 9;
  manner.int64_width = 18;
  return manner;
}

std::string version_name(Version version) { return "AC" + std::to_string(static_cast<int>(version)); }

}  // namespace

File new_drawing(Version version) {
  if (std::ranges::find(kVersions, version) == std::end(kVersions))
    throw OdError(eInvalidInput, "There is no new drawing of the version " + version_name(version) + ".");
  std::string lines = "0 SECTION\n2 HEADER\n9 $ACADVER\n1 " + version_name(version) + "\n";
  if (version == R12) {
    lines += kOldDrawingTemplate;
  } else {
    for (const std::string_view part :
         {kHeaderTemplate, kClassesTemplate, kTablesTemplate, kBlocksTemplate, kObjectsTemplate})
      lines += part;
  }
  lines += "0 EOF\n";
  return File::read(groups_of_template(lines, usual_manner(version)), "new drawing");
}

}  // namespace dxf
