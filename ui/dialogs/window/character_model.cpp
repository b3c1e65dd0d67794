#include "ui/dialogs/window/character_model.h"

#include <algorithm>

#include "ui/dialogs/character_names.h"
#include "ui/widgets/qt_text.h"

void CharacterModel::setCharacters(std::vector<char32_t> characters) {
  beginResetModel();
  m_characters = std::move(characters);
  endResetModel();
}

char32_t CharacterModel::characterAt(const QModelIndex& index) const {
  if (!index.isValid()) return 0;
  const auto at = static_cast<std::size_t>(index.row()) * kColumns + static_cast<std::size_t>(index.column());
  return at < m_characters.size() ? m_characters[at] : 0;
}

QModelIndex CharacterModel::indexOf(char32_t character) const {
  const auto found = std::ranges::find(m_characters, character);
  if (found == m_characters.end()) return {};
  const auto at = static_cast<int>(found - m_characters.begin());
  return index(at / kColumns, at % kColumns);
}

int CharacterModel::rowCount(const QModelIndex& parent) const {
  if (parent.isValid()) return 0;
  return (static_cast<int>(m_characters.size()) + kColumns - 1) / kColumns;
}

int CharacterModel::columnCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : kColumns; }

QVariant CharacterModel::data(const QModelIndex& index, int role) const {
  const char32_t character = characterAt(index);
  if (character == 0) return {};
  if (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole)
    return toQt(dialogs::character_label(character));
  return {};
}

Qt::ItemFlags CharacterModel::flags(const QModelIndex& index) const {
  return characterAt(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}
