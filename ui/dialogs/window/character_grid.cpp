#include "ui/dialogs/window/character_grid.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include "od/fonts/OdFont.h"
#include "ui/dialogs/window/character_model.h"
#include "ui/dialogs/window/paint_character.h"

namespace {

constexpr int kCell = 32;  // pixels
/// Height of a capital in its cell.
constexpr double kCapital = 0.45;

/// Draws the cells; the style draws what is selected.
class CharacterDelegate : public QStyledItemDelegate {
 public:
  CharacterDelegate(std::shared_ptr<const OdFont> font, QObject* parent)
      : QStyledItemDelegate(parent), m_font(std::move(font)) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyledItemDelegate::paint(painter, option, index);
    const char32_t character = static_cast<const CharacterModel*>(index.model())->characterAt(index);
    if (character == 0) return;
    const bool selected = option.state & QStyle::State_Selected;
    const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const QColor color = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    dialogs::paint_character(*painter, *m_font, character, option.rect, color, kCapital);
  }

 private:
  std::shared_ptr<const OdFont> m_font;
};

}  // namespace

CharacterGrid::CharacterGrid(std::shared_ptr<const OdFont> font, int rows, QWidget* parent)
    : QTableView(parent), m_characters(new CharacterModel(this)) {
  setModel(m_characters);
  setItemDelegate(new CharacterDelegate(std::move(font), this));
  setSelectionMode(QAbstractItemView::SingleSelection);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(rows > 1 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  for (QHeaderView* const header : {horizontalHeader(), verticalHeader()}) {
    header->hide();
    header->setMinimumSectionSize(kCell);
    header->setDefaultSectionSize(kCell);
    header->setSectionResizeMode(QHeaderView::Fixed);
  }
  const int bar = rows > 1 ? verticalScrollBar()->sizeHint().width() : 0;
  setFixedSize(CharacterModel::kColumns * kCell + 2 * frameWidth() + bar, rows * kCell + 2 * frameWidth());
  connect(this, &QTableView::doubleClicked, [this](const QModelIndex& index) {
    if (taken && m_characters->characterAt(index)) taken();
  });
}

void CharacterGrid::setCharacters(std::vector<char32_t> characters) {
  m_characters->setCharacters(std::move(characters));
}

void CharacterGrid::point(char32_t character) {
  m_telling = false;
  const QModelIndex index = m_characters->indexOf(character);
  setCurrentIndex(index);
  if (!index.isValid()) clearSelection();
  m_telling = true;
}

void CharacterGrid::currentChanged(const QModelIndex& current, const QModelIndex& before) {
  QTableView::currentChanged(current, before);
  const char32_t character = m_characters->characterAt(current);
  if (m_telling && pointed && character) pointed(character);
}
