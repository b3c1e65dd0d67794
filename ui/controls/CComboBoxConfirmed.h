#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "ui/controls/CEditEx.h"

/// A combo of sizes: numbers in ascending order, and a box in which another one is typed. Whatever number is
/// confirmed enters the list, 0 for a text that is none: whether it is used is the owner's to say.
class CComboBoxConfirmed {
 public:
  CComboBoxConfirmed();
  CComboBoxConfirmed(const CComboBoxConfirmed&) = delete;
  CComboBoxConfirmed& operator=(const CComboBoxConfirmed&) = delete;

  /// Takes a size that the user gave; false puts the old text back.
  std::function<bool(float)> confirmed;
  /// Told when the list changed; may be empty.
  std::function<void()> shown;

  CComboEdit& edit() { return m_edit; }
  const CComboEdit& edit() const { return m_edit; }
  /// In ascending order.
  const std::vector<float>& sizes() const { return m_sizes; }
  std::optional<std::size_t> selected() const { return m_selected; }

  void setSizes(std::vector<float> sizes);
  /// The user chose a row.
  void choose(std::size_t row);
  /// What a row shows.
  std::u16string rowText(std::size_t row) const;

 private:
  /// The row of a size, which is added if it is not there.
  std::size_t rowOf(float size);
  /// Selects a row and has the owner take it; false if the owner did not.
  bool take(std::size_t row);

  std::vector<float> m_sizes;
  std::optional<std::size_t> m_selected;
  CComboEdit m_edit;
};
