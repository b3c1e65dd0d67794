#include "ui/dialogs/window/character_preview.h"

#include <QPainter>

#include "od/fonts/OdFont.h"
#include "ui/dialogs/window/paint_character.h"

namespace {

constexpr int kSide = 96;         // pixels
constexpr double kCapital = 0.5;  // of the side

}  // namespace

CharacterPreview::CharacterPreview(std::shared_ptr<const OdFont> font, QWidget* parent)
    : QWidget(parent), m_font(std::move(font)) {
  setFixedSize(kSide, kSide);
}

void CharacterPreview::show(char32_t character) {
  m_character = character;
  update();
}

void CharacterPreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  dialogs::paint_character(painter, *m_font, m_character, rect(), palette().color(QPalette::Text), kCapital);
}
