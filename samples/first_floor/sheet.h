#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "od/dxf/file.h"

namespace samples {

/// A place on the sheet or in a block, in millimetres.
struct Position {
  double x = 0;
  double y = 0;
};

/// A corner of a polyline; `bulge` bends the line to the next one, 1 is half a circle.
struct Corner {
  Position at;
  double bulge = 0;
};

/// A block placed in the drawing. Angles are degrees.
struct Placement {
  std::string_view block;
  Position at;
  double scale_x = 1;
  double scale_y = 1;
  double rotation = 0;
};

/// A single-line text. `horizontal` and `vertical` are the codes of the file: 0 left, 1 centre, 2 right,
/// 3 aligned, 4 middle, 5 fit; 0 baseline, 1 bottom, 2 middle, 3 top.
struct Line {
  std::u16string_view text;
  Position at;
  double height = 125;
  std::u16string_view style = u"Standard";
  double rotation = 0;
  int horizontal = 0;
  int vertical = 0;
  Position second = {};  ///< end of an aligned or fitted text
};

/// Columns of a multi-line text, all of one height.
struct Columns {
  int count = 0;  ///< 0: no columns
  double width = 0;
  double gutter = 0;
  double height = 0;
};

/// A multi-line text. `attachment` runs from 1, top left, to 9, bottom right.
struct Paragraphs {
  std::u16string_view text;
  Position at;
  double height = 125;
  double width = 0;
  int attachment = 1;
  std::u16string_view style = u"Standard";
  double rotation = 0;
  double line_spacing = 1;
  int background = 0;  ///< index of the fill's colour; 0: none
  Columns columns = {};
};

/// A drawing under way: what is drawn goes to the current layer of the model space, or of the block that is
/// being defined.
class Sheet {
 public:
  Sheet();

  void add_layer(std::string_view name, int color, int line_weight);
  void add_style(std::string_view name, std::string_view file, std::u16string_view typeface, int flags);
  void set_layer(std::string_view name) { layer_ = name; }

  void begin_block(std::string_view name);
  void end_block();

  void line(Position from, Position to);
  void polyline(const std::vector<Corner>& corners, bool closed = true);
  void rectangle(Position lower_left, Position upper_right);
  void circle(Position center, double radius);
  /// Counter-clockwise, angles in degrees.
  void arc(Position center, double radius, double from, double to);
  void text(const Line& text);
  void paragraphs(const Paragraphs& text);
  void insert(const Placement& placement);

  /// An attribute's definition in a block, with the point in its middle.
  void attribute_definition(std::u16string_view tag, std::u16string_view prompt, double height);
  /// A block with one attribute, whose text stands in the middle of the block.
  void insert_with_attribute(const Placement& placement, std::u16string_view tag, std::u16string_view value,
                             double height);

  /// The drawing's bytes. Call once.
  std::string finish();

 private:
  dxf::Record& table_entry(std::string_view table, std::string_view marker, std::string_view name);
  dxf::Record& entity(std::string_view type);
  dxf::Record& record(std::string_view type, dxf::Handle owner);
  void middle_text(dxf::Record& record, std::u16string_view text, Position at, double height);

  dxf::File file_;
  dxf::Handle next_handle_ = 0;
  dxf::Record* place_ = nullptr;  ///< entities go in front of it
  dxf::Handle owner_ = 0;
  std::string layer_ = "0";
};

}  // namespace samples
