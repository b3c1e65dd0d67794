#pragma once

#include <QWidget>
#include <memory>

class OdFont;

/// One character, large.
class CharacterPreview : public QWidget {
 public:
  CharacterPreview(std::shared_ptr<const OdFont> font, QWidget* parent);
  void show(char32_t character);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::shared_ptr<const OdFont> m_font;
  char32_t m_character = 0;
};
