#include "ui/dialogs/window/symbol_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "host/translate.h"
#include "ui/dialogs/CSymbolDlg.h"
#include "ui/dialogs/character_names.h"
#include "ui/dialogs/symbol_font.h"
#include "ui/dialogs/window/button_row.h"
#include "ui/dialogs/window/character_grid.h"
#include "ui/dialogs/window/character_preview.h"
#include "ui/dialogs/window/labels.h"
#include "ui/widgets/qt_text.h"

namespace {

constexpr int kTitle = 1330, kFind = 1331, kBlock = 1332, kRecent = 1333, kCharacters = 1334, kInsert = 1335;
constexpr int kNothingFound = 1336, kPreview = 1337;
constexpr int kRows = 8;
constexpr int kShownBlocks = 20;   // in the open list
constexpr int kBlockLetters = 24;  // that the list has room for

}  // namespace

SymbolWindow::SymbolWindow(CSymbolDlg& dialog, QWidget* parent)
    : QDialog(parent), m_dialog(dialog), m_search(new QLineEdit(this)), m_blocks(new QComboBox(this)) {
  const auto font = dialogs::font_to_look_at(dialog.font());
  m_characters = new CharacterGrid(font, kRows, this);
  m_recent = new CharacterGrid(font, 1, this);
  m_preview = new CharacterPreview(font, this);
  m_name = new QLabel(this);
  build();
  fillBlocks();
  connectControls();
  m_recent->setCharacters(dialog.recent());
  showCharacters();
  showSelected();
}

void SymbolWindow::build() {
  setWindowTitle(qtString(kTitle));
  const auto labels = dialogs::labels_of({kFind, kBlock, kCharacters, kRecent});
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(searchRow(labels));
  for (const auto& [grid, label] : {std::pair(m_characters, kCharacters), std::pair(m_recent, kRecent)}) {
    auto* const title = new QLabel(labels.at(label), this);
    title->setBuddy(grid);
    dialogs::name_control(*grid, label, labels.at(label));
    layout->addWidget(title);
    layout->addWidget(grid);
  }
  layout->addLayout(previewRow());
  layout->addWidget(dialogs::button_row(*this, {.accept_label = kInsert}));
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

QLayout* SymbolWindow::searchRow(const std::map<int, QString>& labels) {
  auto* const row = new QHBoxLayout;
  for (const auto& [control, label] : {std::pair<QWidget*, int>(m_search, kFind), {m_blocks, kBlock}}) {
    auto* const title = new QLabel(labels.at(label), this);
    title->setBuddy(control);
    dialogs::name_control(*control, label, labels.at(label));
    row->addWidget(title);
    row->addWidget(control, 1);
  }
  m_search->setClearButtonEnabled(true);
  m_blocks->setMaxVisibleItems(kShownBlocks);
  m_blocks->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_blocks->setMinimumContentsLength(kBlockLetters);
  return row;
}

QLayout* SymbolWindow::previewRow() {
  auto* const row = new QHBoxLayout;
  m_preview->setAccessibleName(qtString(kPreview));
  m_name->setWordWrap(true);
  m_name->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(m_preview);
  row->addWidget(m_name, 1);
  return row;
}

void SymbolWindow::fillBlocks() {
  for (const unicode_block& block : m_dialog.blocks()) m_blocks->addItem(qtTranslated(block.name));
}

void SymbolWindow::connectControls() {
  connect(m_search, &QLineEdit::textChanged, [this](const QString& text) { search(text); });
  connect(m_blocks, &QComboBox::activated, [this](int row) { chooseBlock(row); });
  m_characters->pointed = m_recent->pointed = [this](char32_t character) { choose(character); };
  m_characters->taken = m_recent->taken = [this] { accept(); };
}

void SymbolWindow::search(const QString& text) {
  m_dialog.search(fromQt(text));
  showCharacters();
  showSelected();
  if (m_dialog.characters().empty()) m_name->setText(qtString(kNothingFound));
}

void SymbolWindow::chooseBlock(int row) {
  const QSignalBlocker quiet(m_search);
  m_search->clear();
  m_dialog.showBlock(static_cast<std::size_t>(row));
  showCharacters();
  showSelected();
}

void SymbolWindow::choose(char32_t character) {
  m_dialog.select(character);
  showSelected();
}

void SymbolWindow::showCharacters() {
  m_blocks->setCurrentIndex(static_cast<int>(m_dialog.block()));
  m_characters->setCharacters(m_dialog.characters());
}

void SymbolWindow::showSelected() {
  const char32_t selected = m_dialog.selected();
  m_characters->point(selected);
  m_recent->point(selected);
  m_preview->show(selected);
  m_name->setText(toQt(dialogs::character_label(selected)));
}
