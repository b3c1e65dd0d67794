#pragma once

#include <QAbstractTableModel>
#include <vector>

/// Characters in rows of a fixed length.
class CharacterModel : public QAbstractTableModel {
 public:
  static constexpr int kColumns = 16;

  using QAbstractTableModel::QAbstractTableModel;

  void setCharacters(std::vector<char32_t> characters);
  /// The character of a cell, 0 for a cell behind the last one.
  char32_t characterAt(const QModelIndex& index) const;
  /// The cell of a character; not valid if it is not here.
  QModelIndex indexOf(char32_t character) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  std::vector<char32_t> m_characters;
};
