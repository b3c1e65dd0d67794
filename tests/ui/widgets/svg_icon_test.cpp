#include "ui/widgets/svg_icon.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include "ui/resources/icons.h"
#include "ui/toolbar/control_table.h"

namespace {

QImage drawn(int number, qreal pixels_per_point) {
  return svgIcon(number).pixmap(QSize(16, 16), pixels_per_point).toImage();
}

/// Pixels that anything is drawn on.
int inked(const QImage& image) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) count += qAlpha(image.pixel(x, y)) > 0;
  return count;
}

/// Whether all pixels that are covered whole have a gray like that of `color`.
bool is_drawn_in(int number, const QColor& color) {
  constexpr int kNearly = 2;
  const QImage image = drawn(number, 1);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      if (qAlpha(pixel) == 255 && std::abs(qGray(pixel) - color.lightness()) > kNearly) return false;
    }
  }
  return true;
}

}  // namespace

TEST(SvgIcon, every_number_has_a_picture_of_16_by_16_pixels_and_one_of_32_by_32) {
  for (const auto& icon : resources::icon_table()) {
    const QImage plain = drawn(icon.number, 1), sharp = drawn(icon.number, 2);
    EXPECT_EQ(plain.size(), QSize(16, 16)) << icon.file;
    EXPECT_EQ(sharp.size(), QSize(32, 32)) << icon.file;
    EXPECT_GT(inked(plain), 12) << icon.file;
    EXPECT_GT(inked(sharp), inked(plain)) << icon.file;
  }
}

TEST(SvgIcon, every_icon_of_a_control_is_there) {
  for (const toolbar_control& control : toolbar::control_table()) {
    for (const bool english : {false, true}) {
      const int icon = toolbar::icon_of(control, english);
      EXPECT_TRUE(icon == 0 || !svgIcon(icon).isNull()) << icon;
    }
  }
}

TEST(SvgIcon, is_drawn_in_the_color_of_the_text_on_buttons) {
  const QPalette before = QGuiApplication::palette();
  for (const QColor color : {QColor(Qt::black), QColor(Qt::white)}) {
    QPalette palette = before;
    palette.setColor(QPalette::ButtonText, color);
    QGuiApplication::setPalette(palette);
    for (const auto& icon : resources::icon_table())
      EXPECT_TRUE(is_drawn_in(icon.number, color)) << icon.file;
  }
  QGuiApplication::setPalette(before);
}

TEST(SvgIcon, a_number_without_a_picture_is_refused) { EXPECT_THROW(svgIcon(4711), std::invalid_argument); }
