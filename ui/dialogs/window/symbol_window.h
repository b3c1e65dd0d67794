#pragma once

#include <QDialog>
#include <map>

class CSymbolDlg;
class CharacterGrid;
class CharacterPreview;
class QComboBox;
class QLabel;
class QLineEdit;

/// The characters of all writing systems in a window.
class SymbolWindow : public QDialog {
 public:
  /// `dialog` has to outlive the window.
  SymbolWindow(CSymbolDlg& dialog, QWidget* parent);

 private:
  void build();
  QLayout* searchRow(const std::map<int, QString>& labels);
  QLayout* previewRow();
  void connectControls();
  void fillBlocks();
  void search(const QString& text);
  void chooseBlock(int row);
  void choose(char32_t character);
  /// The characters to choose from are other ones.
  void showCharacters();
  void showSelected();

  CSymbolDlg& m_dialog;
  QLineEdit* m_search;
  QComboBox* m_blocks;
  CharacterGrid* m_characters;
  CharacterGrid* m_recent;
  CharacterPreview* m_preview;
  QLabel* m_name;
};
