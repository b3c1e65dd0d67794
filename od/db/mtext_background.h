#pragma once

#include "od/cm/OdCmEntityColor.h"
#include "od/dxf/record.h"

/// The fill behind a multi-line text: in groups of its own from R2004 on, before in the extended data.
struct OdDbMTextBackground {
  static constexpr int kFill = 1;        ///< bits of `bits`
  static constexpr int kUseDrawing = 2;  ///< the colour behind the drawing
  static constexpr int kFrame = 16;

  int bits = 0;
  OdCmEntityColor color = OdCmEntityColor::fromIndex(7);
  double scale = 1.5;

  static OdDbMTextBackground read(const dxf::Record& record);
  /// Writes what differs from the record, in the form of its file.
  void write(dxf::Record& record) const;

  friend bool operator==(const OdDbMTextBackground&, const OdDbMTextBackground&) = default;
};
