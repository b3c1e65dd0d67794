#pragma once

#include "od/db/OdDbText.h"

class HostDocument;

/// What the next single-line text will be like.
struct new_text_settings {
  double height = 0;
  double rotation = 0;  ///< radians
  int justify = 0;      ///< place in `justify_rows`
  OdGeVector3d normal = OdGeVector3d::kZAxis;
  OdGePoint3d origin{};  ///< the point that the text hangs on, or the first of two
  OdGePoint3d end{};     ///< the second point of an aligned or fitted text

  /// Whether the text runs between two points.
  bool has_two_points() const;
  /// From its baseline to that of the text below; length 5/3 of the height.
  OdGeVector3d line_feed() const;
  /// Moves on to the text below. Below an aligned text, which has the height that its points give it, stand
  /// left ones.
  void go_down();
};

/// What a run of the command begins with: style, TEXTSIZE and, with `remembered`, rotation and justification
/// of the run before. TEXTSIZE takes the height that was found.
new_text_settings settings_for(HostDocument& document, bool remembered);

/// A text without letters and not in the drawing, in the current style.
OdDbTextPtr new_text(HostDocument& document, const new_text_settings& settings);

/// The height that the current style fixes; 0 if it leaves it to each text.
double fixed_height(HostDocument& document);

/// Makes TEXTSIZE the height unless they are equal.
void keep_height(HostDocument& document, double height);
