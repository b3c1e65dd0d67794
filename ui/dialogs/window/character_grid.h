#pragma once

#include <QTableView>
#include <functional>
#include <memory>
#include <vector>

class CharacterModel;
class OdFont;

/// Characters to choose from, drawn in a font.
class CharacterGrid : public QTableView {
 public:
  /// `rows` of them are seen at once.
  CharacterGrid(std::shared_ptr<const OdFont> font, int rows, QWidget* parent);

  /// The cursor went to a character; may be empty.
  std::function<void(char32_t)> pointed;
  /// A character was double clicked; may be empty.
  std::function<void()> taken;

  void setCharacters(std::vector<char32_t> characters);
  /// Puts the cursor on a character, or on none if it is not here; nobody is told.
  void point(char32_t character);

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& before) override;

 private:
  CharacterModel* m_characters;
  bool m_telling = true;
};
