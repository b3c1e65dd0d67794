#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "ui/controls/color_code.h"
#include "ui/controls/color_swatch.h"

/// A combo of colours: by layer, by block, the seven standard ones, those that were picked, and "Custom...",
/// which picks another one in a dialog.
class CColorComboBox {
 public:
  /// A dialog that starts with a colour; nothing when it was cancelled.
  using color_dialog = std::function<std::optional<OdCmEntityColor>(const OdCmEntityColor& start)>;

  CColorComboBox();
  CColorComboBox(const CColorComboBox&) = delete;
  CColorComboBox& operator=(const CColorComboBox&) = delete;

  /// Takes a colour that the user chose; false puts the old one back.
  std::function<bool(const OdCmEntityColor&)> changed;
  /// Behind "Custom..."; without it that row changes nothing.
  color_dialog pick;
  /// Told when the rows or their swatches changed; may be empty.
  std::function<void()> listed;
  /// Told when the selection was set; may be empty.
  std::function<void()> shown;

  /// The codes of the rows; that of "Custom..." is the last one.
  const std::vector<color_code>& codes() const { return m_codes; }
  std::optional<std::size_t> selected() const { return m_selected; }
  std::u16string rowText(std::size_t row) const;
  controls::color_swatch rowSwatch(std::size_t row) const;
  /// The code of the row that was selected last.
  color_code lastCode() const { return m_last_code; }

  /// The colour of the entity's layer, for the swatch of the by-layer row.
  void setLayerColor(color_code layer);
  /// Shows a colour of the text; nothing for one that is not among the rows, and for none.
  void select(std::optional<color_code> code);
  /// The user chose a row.
  void choose(std::size_t row);

 private:
  color_code askForColor();
  /// Shows a code; a new one gets a row before "Custom...".
  void selectOrAdd(color_code code);

  std::vector<color_code> m_codes;
  std::optional<std::size_t> m_selected;
  color_code m_last_code = controls::kByLayerCode;
  color_code m_layer_code = controls::kByBlockCode;
};
