#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "ui/dialogs/column_values.h"

/// How lengths are written and read.
struct length_text {
  std::function<std::u16string(double)> print;
  std::function<std::optional<double>(std::u16string_view)> read;
};

/// As the drawing that the user works on writes them.
length_text drawing_lengths();

/// The column settings of a text, as a dialog.
///
/// A value is taken when its edit is left; a text that is refused vanishes, since the edit shows the old
/// value again.
class CMTextColumnsDlg {
 public:
  /// The edits, by the numbers of their controls.
  enum class field { count = 1013, height = 1014, column_width = 1015, gutter = 1016, total = 1017 };
  /// All edits, in the order in which Enter looks at them.
  static constexpr field kFields[] = {field::count, field::height, field::column_width, field::gutter,
                                      field::total};

  explicit CMTextColumnsDlg(const column_values& values, length_text lengths = drawing_lengths());

  const column_values& values() const { return m_values; }
  /// What an edit shows.
  std::u16string shown(field which) const;
  /// Whether an edit can be changed.
  bool isEnabled(field which) const;
  /// Whether the choice between automatic and manual height can be made.
  bool isHeightModeEnabled() const { return m_values.type == 2; }

  void setType(std::uint32_t type) { m_values.type = type; }
  void setAutoHeight(bool automatic) { m_values.auto_height = automatic ? 1 : 0; }
  /// An edit is left with a text in it: false when the text is refused, and then the user has been told. All
  /// edits show what `shown` gives afterwards. A text that means what the edit shows anyway changes nothing.
  bool leave(field which, std::u16string_view text);

  /// Shows a page of the help: `help_topic`, or the first page if there is none.
  void showHelp() const;
  std::u16string help_topic;

  /// Shows the dialog until it is closed; true for OK.
  bool doModal();

 private:
  double read(field which, std::u16string_view text) const;
  double value(field which) const;
  void take(field which, double value);

  column_values m_values;
  length_text m_lengths;
};

extern "C" {

/// Shows the column settings in a dialog of their own, without a text. True for OK, and only then the eight
/// values are written back. None of the pointers may be null.
__attribute__((visibility("default"))) bool ShowMTextColumnsDlg(unsigned* type, unsigned char* auto_height,
                                                                unsigned* count, double* height,
                                                                double* column_width, double* gutter,
                                                                double* total, double* text_height);

}  // extern "C"
