#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <numbers>

#include "desk/painter/paint_picture.h"
#include "desk/painter/picture_recorder.h"
#include "od/gi/OdGiDrawable.h"
#include "od/gi/OdGiViewDashes.h"
#include "od/gi/OdGiWorldDraw.h"

namespace {

/// A drawable that a test writes as a function.
class Drawn : public OdGiDrawable {
 public:
  explicit Drawn(void (*draw)(OdGiGeometry&)) : m_draw(draw) {}
  bool worldDraw(OdGiWorldDraw& draw) override {
    m_draw(draw.geometry());
    return true;
  }

 private:
  void (*m_draw)(OdGiGeometry&);
};

/// 100 by 100 pixels that show 0,0 to 100,100.
OdGsView squareView() {
  OdGsView view;
  view.setDeviceRect({0, 0, 100, 100});
  view.setView({50, 50, 1}, {50, 50, 0}, {0, 1, 0}, 100, 100);
  return view;
}

Picture pictureOf(const OdGsView& view, const PictureFrame& frame, void (*draw)(OdGiGeometry&)) {
  const OdGiDefaultContext context;
  PictureRecorder recorder(frame, context);
  Drawn drawable(draw);
  return recorder.record(drawable, view);
}

QImage painted(void (*draw)(OdGiGeometry&)) {
  const OdGsView view = squareView();
  const PictureFrame frame(view);
  QImage image(100, 100, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);
  paintPicture(painter, pictureOf(view, frame, draw), {PaintColors(Background::dark), frame.toDevice(view)},
               QRectF(0, 0, 100, 100));
  return image;
}

}  // namespace

TEST(Picture, a_filled_polygon_covers_its_inside_with_y_upwards) {
  const QImage image = painted([](OdGiGeometry& pen) {
    pen.traits().setColor(1);
    pen.traits().setFillType(kOdGiFillAlways);
    pen.polygon({{10, 60, 0}, {40, 60, 0}, {40, 90, 0}, {10, 90, 0}});
  });
  EXPECT_EQ(image.pixelColor(25, 25), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(25, 75), QColor(Qt::black));
}

TEST(Picture, a_hole_stays_open) {
  const QImage image = painted([](OdGiGeometry& pen) {
    pen.traits().setColor(1);
    pen.traits().setFillType(kOdGiFillAlways);
    const OdGiContour outer{{10, 10, 0}, {90, 10, 0}, {90, 90, 0}, {10, 90, 0}};
    const OdGiContour inner{{30, 30, 0}, {30, 70, 0}, {70, 70, 0}, {70, 30, 0}};
    pen.polyPolygon(std::vector<OdGiContour>{outer, inner});
  });
  EXPECT_EQ(image.pixelColor(20, 50), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(50, 50), QColor(Qt::black));
}

namespace {

/// How often a column of pixels goes over from the ground to a line.
int dashesIn(const QImage& image, int column) {
  int dashes = 0;
  for (int row = 1; row < image.height(); ++row)
    dashes += image.pixelColor(column, row).red() > 100 && image.pixelColor(column, row - 1).red() <= 100;
  return dashes;
}

void drawThinFrame(OdGiGeometry& pen, const char16_t* lineType) {
  pen.traits().setColor(1);
  pen.traits().setLineType(lineType);
  pen.polyline({{50.5, 95, 0}, {50.6, 95, 0}, {50.6, 5, 0}, {50.5, 5, 0}, {50.5, 95, 0}});
}

}  // namespace

TEST(Picture, the_dashes_of_the_view_show_gaps_in_a_thin_frame_too) {
  const QImage image =
      painted([](OdGiGeometry& pen) { drawThinFrame(pen, kOdGiViewDashes); });
  EXPECT_GE(dashesIn(image, 50), 8);
  EXPECT_LE(dashesIn(image, 50), 10);
}

TEST(Picture, other_line_types_are_drawn_through) {
  EXPECT_EQ(dashesIn(painted([](OdGiGeometry& pen) { drawThinFrame(pen, u"DASHED"); }), 50), 1);
}

TEST(Picture, dashes_are_as_long_at_every_zoom) {
  const auto dashes_at = [](double field) {
    OdGsView view;
    view.setDeviceRect({0, 0, 100, 100});
    view.setView({50, 50, 1}, {50, 50, 0}, {0, 1, 0}, field, field);
    const PictureFrame frame(view);
    QImage image(100, 100, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    const Picture line = pictureOf(view, frame, [](OdGiGeometry& pen) {
      pen.traits().setColor(1);
      pen.traits().setLineType(kOdGiViewDashes);
      pen.polyline({{50.25, 1000, 0}, {50.25, -1000, 0}});
    });
    paintPicture(painter, line, {PaintColors(Background::dark), frame.toDevice(view)},
                 QRectF(0, 0, 100, 100));
    painter.end();
    return dashesIn(image, static_cast<int>(50 + 25 / field));
  };
  EXPECT_NEAR(dashes_at(100), 10, 1);
  EXPECT_NEAR(dashes_at(20), 10, 1);
  EXPECT_NEAR(dashes_at(1), 10, 1);
}

TEST(Picture, an_arc_of_three_quarters_leaves_the_fourth_out) {
  const QImage image = painted([](OdGiGeometry& pen) {
    pen.circularArc({50.5, 50.5, 0}, 30, {0, 0, 1}, {1, 0, 0}, 1.5 * std::numbers::pi);
  });
  const auto inked = [&](double angle) {
    const QPoint at(int(50.5 + 30 * std::cos(angle)), int(100 - 50.5 - 30 * std::sin(angle)));
    bool any = false;
    for (int x = -1; x <= 1; ++x)
      for (int y = -1; y <= 1; ++y) any |= image.pixelColor(at.x() + x, at.y() + y).lightness() > 60;
    return any;
  };
  EXPECT_TRUE(inked(0.3));
  EXPECT_TRUE(inked(2.0));
  EXPECT_TRUE(inked(4.0));
  EXPECT_FALSE(inked(5.5));
}

TEST(Picture, index_7_is_white_on_the_dark_ground_and_black_on_the_light_one) {
  const OdCmEntityColor seven = OdCmEntityColor::fromIndex(7);
  EXPECT_EQ(PaintColors(Background::dark).shown(seven, 255), QColor(Qt::white));
  EXPECT_EQ(PaintColors(Background::light).shown(seven, 255), QColor(Qt::black));
  EXPECT_EQ(PaintColors(Background::light).shown({255, 255, 255}, 255), QColor(Qt::white));
}

TEST(Picture, a_white_layer_is_drawn_in_the_foreground_and_a_white_entity_stays_white) {
  class WhiteLayers : public OdGiDefaultContext {
    OdCmEntityColor layerColor(const OdString&) const override { return {255, 255, 255}; }
  };
  const OdGsView view = squareView();
  const PictureFrame frame(view);
  const WhiteLayers context;
  PictureRecorder recorder(frame, context);
  Drawn drawable([](OdGiGeometry& pen) {
    pen.polyline({{0, 0, 0}, {1, 1, 0}});
    pen.traits().setTrueColor({255, 255, 255});
    pen.polyline({{2, 0, 0}, {3, 1, 0}});
  });
  const Picture picture = recorder.record(drawable, view);
  ASSERT_EQ(picture.batches.size(), 2u);
  EXPECT_EQ(picture.batches[0].style.color, OdCmEntityColor::fromIndex(7));
  EXPECT_EQ(picture.batches[1].style.color, OdCmEntityColor(255, 255, 255));
}

TEST(Picture, neighbours_of_one_style_share_a_path) {
  const OdGsView view = squareView();
  const PictureFrame frame(view);
  const Picture picture = pictureOf(view, frame, [](OdGiGeometry& pen) {
    pen.polyline({{0, 0, 0}, {1, 1, 0}});
    pen.polyline({{2, 0, 0}, {3, 1, 0}});
    pen.traits().setColor(1);
    pen.polyline({{4, 0, 0}, {5, 1, 0}});
  });
  EXPECT_EQ(picture.batches.size(), 2u);
}

TEST(PictureFrame, serves_every_pan_and_zoom_and_no_turned_view) {
  OdGsView view = squareView();
  const PictureFrame frame(view);
  view.setView({500, 50, 1}, {500, 50, 0}, {0, 1, 0}, 10, 10);
  EXPECT_TRUE(frame.serves(view));
  view.setView({50, 50, 1}, {50, 50, 0}, {1, 1, 0}, 100, 100);
  EXPECT_FALSE(frame.serves(view));
}

TEST(PictureFrame, far_from_the_origin_pixels_are_exact) {
  OdGsView view;
  view.setDeviceRect({0, 0, 100, 100});
  view.setView({5e8, 6e8, 1}, {5e8, 6e8, 0}, {0, 1, 0}, 1, 1);
  const PictureFrame frame(view);
  const QPointF pixel = frame.toDevice(view).map(frame.fromWorld(OdGePoint3d{5e8 + 0.25, 6e8, 0}));
  EXPECT_NEAR(pixel.x(), 75, 1e-4);
  EXPECT_NEAR(pixel.y(), 50, 1e-4);
}
