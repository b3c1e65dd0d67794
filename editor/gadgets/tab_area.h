#pragma once

#include <vector>

#include "micui/control.h"
#include "mtext/format_paragraph.h"

namespace mtext {

/// The strip above a column: ticks, and the stops and indents of one paragraph.
class tab_area : public micui::control {
 public:
  /// More ticks than this are a grey mass, and are left out all together.
  static constexpr double kMostTicks = 10000;

  double unit = 0;                               ///< distance of the ticks: the text height; drawing units
  std::size_t column = 0;                        ///< index of the text column
  std::vector<format::tab_stop> tabs;            ///< the stops to show
  const format::paragraph* paragraph = nullptr;  ///< whose indents to show, not owned; null: none

  void create_children() override;
  void layout() override;

 private:
  void add_ticks();
  void add_stops();
  void add_indents();
};

}  // namespace mtext
