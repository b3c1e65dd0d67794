#pragma once

#include "mtext/geom_multitext.h"
#include "tests/editor/drawn_shapes.h"

/// What the gadgets around a text have to look like, worked out from a table of their own: pixels, colours
/// and order, for every attachment and every kind of columns.
class expected_gadgets {
 public:
  /// `pixel` is the length of one in drawing units. The first paragraph is the one that the strip above the
  /// first column shows.
  expected_gadgets(const mtext::geom_multitext& text, double pixel);

  /// All shapes, from the bottom to the top.
  std::vector<drawn_shape> shapes();

 private:
  void add(std::string look, double x, double y, double width, double height);
  void add_filled(std::string fill, std::string line, double x, double y, double width, double height);
  void ruler();
  void column(std::size_t index);
  void handles(double x, double top, double height, bool on_the_left);
  void grip(double x, double bottom, bool right_angle_left, bool right_angle_top);
  void strip(std::size_t index);
  void stop(double x, double y);
  void dot();
  double column_height(std::size_t index) const;
  double pixels(double count) const { return count * m_pixel; }
  bool hangs_up() const { return m_text.info.vertical == 2; }
  bool is_right() const { return m_text.info.alignment == 3; }
  /// Lower edge of the strips, of which ruler and signs are a few pixels away.
  double strip_base() const;

  const mtext::geom_multitext& m_text;
  double m_pixel;
  std::size_t m_count;  ///< of columns
  double m_height;      ///< of the highest column
  double m_total;       ///< width of all columns with their gutters
  std::vector<drawn_shape> m_shapes;
};
