#pragma once

#include <optional>

#include "micui/control.h"
#include "mtext/geom_multitext.h"

namespace mtext {

/// A stop that is being dragged, and the column in which its line is shown.
struct tab_guide {
  format::tab_stop stop;  ///< its position in ticks
  int column = 0;
};

/// Root of the gadgets around a multi-line text, named "mtext". Its origin is the top left corner of the
/// first column, Y grows upwards, and so the height of the text box is negative.
///
/// It holds nothing of the text but the settings that the session writes before each layout.
class editor : public micui::control {
 public:
  editor() { name = u"mtext"; }

  double column_width = 0;       ///< that of `settings`, as of the last layout; as the next three
  double total_width = 0;        ///< of all columns and the gutters between them
  double max_height = 0;         ///< of the highest column
  double gutter = 0;             ///< between two columns
  double text_height = 0;        ///< a tick of the ruler; drawing units
  column_settings settings;      ///< working copy of the text's
  std::size_t column_count = 0;  ///< of the columns shown, as of the last layout
  int vertical = 0;              ///< attachment row: 0 top, 1 middle, 2 bottom
  int horizontal = 1;            ///< attachment column: 1 left, 2 centre, 3 right
  OdGePoint2d anchor;            ///< the attachment point; lags one layout behind the box, deliberately
  const geom_multitext* text = nullptr;  ///< the session's, not owned; null counts as a text without columns
  std::optional<tab_guide> guide;

  void create_children() override;
  void layout() override;

  /// Takes over the row and column of an attachment number, 0 top left to 8 bottom right.
  void attach(int attachment);
  /// The column of the text at `index`; null where none is laid out.
  const geom_column* text_column(std::size_t index) const;

 private:
  void measure();
  void place_ruler();
  void place_tab_switch();
  void place_width_sizer();
  void add_column(std::size_t index);
  void add_column_extents(double left, double extent);
  void add_tab_area(std::size_t index, double left, const format::paragraph* paragraph);
  void add_guide_line(double left, double extent);
  void add_dot();
  double column_height(std::size_t index) const;
  int handle_side(std::size_t index) const;
  double top_of(double own_height) const;
  double strip_base() const;
};

}  // namespace mtext
