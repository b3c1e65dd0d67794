#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "od/evaluate/length_units.h"

class OdDbDatabase;

namespace host {

/// Manners of writing a distance, by their number in the system variable LUNITS.
using length_units = OdLengthUnits;

/// How a drawing writes its distances.
struct distance_format {
  length_units units = length_units::decimal;
  /// LUPREC, 0 to 8: decimals; where fractions are written the power of two of the finest denominator.
  int precision = 4;
  /// DIMZIN, a sum of: 0 to 3, how feet and inches that are zero are written (0 neither, 1 both, 2 feet, 3
  /// inches); 4 without zeros before the point; 8 without zeros at the end of decimals.
  int zeros = 8;
  /// UNITMODE: written so that it can be typed, with a dash in front of a fraction and no blank.
  bool typed_form = false;
};

/// The system variables of a drawing; what is out of its range counts as not set.
distance_format distance_format_of(const OdDbDatabase& database);

/// A distance in drawing units, written.
std::u16string distance_text(double distance, const distance_format& format);

/// A distance in drawing units, read to the end of `text`; blanks around it do not count. A number ("2.5",
/// "1e3"), a fraction ("1/2", "2-1/2", "2 1/2") and, in engineering and architectural units, feet and inches
/// ("1'", "1'6", "1'-6 1/2\""), each with a sign in front. Nothing for any other text.
std::optional<double> typed_distance(std::u16string_view text, length_units units);

}  // namespace host

/// Prints a distance in the units of the drawing that the user works on. -1 leaves units or precision to the
/// drawing's settings; without a drawing the defaults of `host::distance_format` hold.
std::u16string hostdbRToS(double distance, int units = -1, int precision = -1);

/// Reads a distance in the units of the drawing that the user works on, or in the units told. Nothing for a
/// text that is no distance.
std::optional<double> hostdbDisToF(std::u16string_view text, int units = -1);
