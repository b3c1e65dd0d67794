#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <stdexcept>

#include "desk/window/drawing_view.h"
#include "desk/window/main_window.h"
#include "desk/window/window_desk.h"
#include "host/profile.h"
#include "host/view_overlay.h"
#include "od/db/OdDbBlockTableRecord.h"
#include "od/db/OdDbDatabase.h"
#include "od/db/OdDbLine.h"
#include "od/gi/OdGiGeometry.h"

namespace {

constexpr QSize kSize(200, 100);

/// A line from side to side through the middle of the view.
class MiddleLine : public OdGiDrawableImpl<OdGiDrawable> {
 public:
  explicit MiddleLine(const OdGsView& view) : m_view(view) {}
  unsigned setAttributes(OdGiDrawableTraits&) override { return 0; }
  bool worldDraw(OdGiWorldDraw& draw) override {
    draw.geometry().polyline({m_view.toWorld({0, 50}), m_view.toWorld({200, 50})});
    return true;
  }

 private:
  const OdGsView& m_view;
};

/// How much of the middle column differs from the background, in device pixels.
double inkOfMiddleColumn(const QImage& picture) {
  const int x = picture.width() / 2;
  const int ground = qRed(picture.pixel(x, 1));
  double ink = 0;
  for (int y = 0; y < picture.height(); ++y)
    ink += double(qRed(picture.pixel(x, y)) - ground) / (255 - ground);
  return ink;
}

/// What the painter paints on a display of `ratio` device pixels a pixel.
QImage painted(ViewPainter& painter, double ratio) {
  QImage picture(kSize * ratio, QImage::Format_RGB32);
  picture.setDevicePixelRatio(ratio);
  QPainter on(&picture);
  painter.paint(on, kSize, ratio);
  return picture;
}

MainWindow& mainWindow() {
  for (QWidget* each : QApplication::topLevelWidgets())
    if (auto* main = qobject_cast<MainWindow*>(each)) return *main;
  throw std::logic_error("there is no window");
}

/// An empty drawing in a window of its own.
class PaintedView : public testing::Test {
 protected:
  PaintedView() { view().gsView().setDeviceRect({0, 0, 200, 100}); }

  HostView& view() { return document().view(); }
  HostDocument& document() { return *desk.application().activeDocument(); }
  ViewPainter& painter() { return mainWindow().view().painter(); }

 private:
  HostMemoryProfile profile;
  WindowDesk desk{profile};
};

}  // namespace

TEST_F(PaintedView, a_line_above_the_drawing_is_a_pixel_thick_at_every_ratio_of_device_pixels) {
  const auto line = odNew<MiddleLine>(view().gsView());
  view().overlay().add(*line, 4, 512);
  EXPECT_NEAR(inkOfMiddleColumn(painted(painter(), 1)), 1, 0.1);
  EXPECT_NEAR(inkOfMiddleColumn(painted(painter(), 1.5)), 1.5, 0.1);
  EXPECT_NEAR(inkOfMiddleColumn(painted(painter(), 2)), 2, 0.1);
  view().overlay().remove(*line);
}

TEST_F(PaintedView, a_selected_line_is_as_many_pixels_thick_at_every_ratio_of_device_pixels) {
  const auto line = odNew<OdDbLine>();
  line->setStartPoint(view().gsView().toWorld({0, 50}));
  line->setEndPoint(view().gsView().toWorld({200, 50}));
  OdDbDatabase& drawing = document().database();
  const auto space = odCast<OdDbBlockTableRecord>(drawing.getModelSpaceId().openObject(OdDb::kForWrite));
  document().pickFirst().add(space->appendOdDbEntity(line.get()));
  const double thickness = inkOfMiddleColumn(painted(painter(), 1));
  EXPECT_GT(thickness, 0.5);
  EXPECT_NEAR(inkOfMiddleColumn(painted(painter(), 2)), 2 * thickness, 0.2);
}
