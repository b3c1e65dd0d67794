#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "od/base/unicode.h"
#include "ui/controls/CEditEx.h"

/// A combo of names, each with an item of its owner, and a box in which one is typed to find it.
template <class Item>
class CComboBoxT {
 public:
  /// One row.
  struct Row {
    std::u16string text;
    Item item;
  };

  CComboBoxT() {
    m_edit.confirm = [this](const std::u16string& text) { return confirmText(text); };
  }
  CComboBoxT(const CComboBoxT&) = delete;
  CComboBoxT& operator=(const CComboBoxT&) = delete;

  /// Takes the row that the user chose; false puts the old one back.
  std::function<bool(const Row&)> changed;
  /// Told when rows or selection changed; may be empty.
  std::function<void()> shown;

  CEditEx& edit() { return m_edit; }
  const CEditEx& edit() const { return m_edit; }
  const std::vector<Row>& rows() const { return m_rows; }
  std::optional<std::size_t> selected() const { return m_selected; }

  void setRows(std::vector<Row> rows) {
    m_rows = std::move(rows);
    select({});
  }
  /// Adds a row at the end; its place.
  std::size_t addRow(Row added) {
    m_rows.push_back(std::move(added));
    if (shown) shown();
    return m_rows.size() - 1;
  }
  /// The first row of that name; the case of the letters does not count.
  std::optional<std::size_t> find(std::u16string_view name) const {
    return findIf([name](const Row& each) { return odEqualNoCase(each.text, name); });
  }
  /// Shows a row, or none.
  void select(std::optional<std::size_t> row) {
    m_selected = row;
    m_edit.show(row ? std::u16string_view(m_rows[*row].text) : std::u16string_view());
    if (shown) shown();
  }
  /// The user chose a row.
  void choose(std::size_t row) { take(row); }

 private:
  /// What begins with the text is meant where no row is called so; a text that finds nothing stays.
  bool confirmText(const std::u16string& text) {
    auto found = find(text);
    if (!found && !text.empty()) {
      found = findIf([&text](const Row& each) {
        return odEqualNoCase(std::u16string_view(each.text).substr(0, text.size()), text);
      });
    }
    return !found || take(*found);
  }
  /// Selects a row and has the owner take it; false if the owner did not.
  bool take(std::size_t row) {
    const auto before = m_selected;
    select(row);
    if (!changed || changed(Row(m_rows[row]))) return true;
    select(before);
    return false;
  }
  template <class Wanted>
  std::optional<std::size_t> findIf(const Wanted& wanted) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), wanted);
    if (found == m_rows.end()) return {};
    return static_cast<std::size_t>(found - m_rows.begin());
  }

  std::vector<Row> m_rows;
  std::optional<std::size_t> m_selected;
  CEditEx m_edit;
};
