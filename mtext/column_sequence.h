#pragma once

#include <cstddef>

#include "mtext/convert_info.h"

namespace mtext {

/// Which columns a text has, where they stand and how high they may grow.
class column_sequence {
 public:
  /// Keeps a reference to `settings`.
  explicit column_sequence(const column_settings& settings);

  bool exists(std::size_t column) const;
  /// Height that the text of a column should not exceed.
  double height_limit(std::size_t column) const;
  /// X of the column's origin; its Y is 0.
  double origin(std::size_t column) const;

 private:
  const column_settings& m_settings;
  std::size_t m_manual_last = 0;  ///< of manual columns, the last one that exists
};

}  // namespace mtext
