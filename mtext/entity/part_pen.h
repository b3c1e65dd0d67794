#pragma once

#include <optional>

#include "mtext/format.h"
#include "od/ge/OdGePoint2d.h"
#include "od/gi/OdGiGeometry.h"
#include "od/gi/OdGiTextStyle.h"

namespace mtext {

/// Draws pieces of text by their character format. It keeps the style of the last one, since neighbours
/// mostly share theirs.
class part_pen {
 public:
  /// Both have to outlive the pen.
  part_pen(OdGiGeometry& geometry, const OdGiFontContext& fonts) : m_geometry(geometry), m_fonts(fonts) {}

  /// Text with its baseline's start at `at`, in text coordinates.
  void text(const OdGePoint2d& at, std::u16string_view text, const format::string& format);
  OdGiGeometry& geometry() const { return m_geometry; }

 private:
  OdGiGeometry& m_geometry;
  const OdGiFontContext& m_fonts;
  std::optional<format::string> m_format;
  OdGiTextStyle m_style;
};

}  // namespace mtext
