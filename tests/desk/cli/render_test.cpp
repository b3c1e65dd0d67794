#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>

#include "tests/desk/cli/program.h"

namespace {

/// The box around all pixels that are not of the ground's colour.
QRect inkOf(const QImage& image) {
  const QRgb ground = image.pixel(0, 0);
  QRect box;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != ground) box |= QRect(x, y, 1, 1);
  return box;
}

QImage rendered(const std::string& options) {
  sampleCopy();
  const ProgramRun run = runProgram("render sample.dxf -o picture.png " + options);
  EXPECT_EQ(run.exit_code, 0) << run.err;
  EXPECT_EQ(run.err, "");
  return QImage(QString::fromStdString(scratch("picture.png").string()));
}

}  // namespace

TEST(Render, the_whole_drawing_stands_in_the_middle_of_the_picture) {
  const QImage image = rendered("--size 800x600");
  EXPECT_EQ(image.size(), QSize(800, 600));
  const QRect ink = inkOf(image);
  EXPECT_NEAR(ink.center().x(), 400, 3);
  EXPECT_NEAR(ink.center().y(), 300, 3);
  EXPECT_GT(ink.width(), 740);
}

TEST(Render, a_window_shows_its_part_of_the_drawing) {
  // The title "Office in Mill Lane" alone: its capitals are 400 high and begin at 11650,2950.
  const QImage image = rendered("--size 720x120 --window 11600,2450,15200,3050");
  const QRect ink = inkOf(image);
  EXPECT_GT(ink.width(), 600);
  EXPECT_LT(ink.left(), 40);
}

TEST(Render, the_ground_is_light_or_dark) {
  EXPECT_EQ(rendered("--size 200x150 --background light").pixelColor(0, 0), QColor(Qt::white));
  EXPECT_LT(rendered("--size 200x150 --background dark").pixelColor(0, 0).lightness(), 60);
}

TEST(Render, the_suffix_tells_the_form) {
  sampleCopy();
  EXPECT_EQ(runProgram("render sample.dxf -o a.svg").exit_code, 0);
  EXPECT_THAT(contentOf(scratch("a.svg")), testing::HasSubstr("<svg"));
  EXPECT_EQ(runProgram("render sample.dxf -o a.PDF").exit_code, 0);
  EXPECT_THAT(contentOf(scratch("a.PDF")), testing::StartsWith("%PDF-"));
}
