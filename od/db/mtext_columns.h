#pragma once

#include <vector>

#include "od/dxf/record.h"

/// The columns of a multi-line text as its record gives them: in the embedded object from R2018 on, before in
/// the extended data.
struct OdDbMTextColumns {
  int type = 0;  ///< 0 none, 1 static, 2 dynamic
  int count = 0;
  double width = 0;
  double gutter = 0;
  bool autoHeight = false;
  bool reversed = false;
  std::vector<double> heights;  ///< of dynamic columns without automatic height

  /// More columns than a text can use; a file that counts more is damaged, and layout keeps a height of each.
  static constexpr int kMostColumns = 10'000;

  static OdDbMTextColumns read(const dxf::Record& record);
  /// Writes what differs from the record, in the form of its file. A text without columns keeps none of the
  /// other values.
  void write(dxf::Record& record) const;

  friend bool operator==(const OdDbMTextColumns&, const OdDbMTextColumns&) = default;
};
