#include "desk/cli/render_drawing.h"

#include <QPainter>
#include <iostream>

#include "desk/cli/picture_file.h"
#include "desk/document/drawing_file.h"
#include "desk/document/space_extents.h"
#include "desk/document/view_motion.h"
#include "desk/painter/paint_drawing.h"
#include "desk/program/exit_code.h"

namespace {

OdGsView viewOf(OdDbDatabase& database, const RenderOptions& options, const PaintColors& colors) {
  OdGsView view;
  view.setDeviceRect({0, 0, double(options.size.width()), double(options.size.height())});
  view.setBackgroundColor(colors.backgroundColor());
  showBox(view, options.window.value_or(spaceExtents(database)));
  return view;
}

}  // namespace

bool canRenderTo(const std::filesystem::path& output) { return pictureForm(output).has_value(); }

std::string needsPictureName(const std::string& name) {
  return canRenderTo(name) ? "" : "\"" + name + "\" ends in none of .png, .svg and .pdf.";
}

void renderDrawing(OdDbDatabase& database, const std::string& name, const RenderOptions& options) {
  const PaintColors colors(options.background);
  const OdGsView view = viewOf(database, options, colors);
  DrawingPictures pictures(database);
  pictures.refresh(view);
  for (const OdString& sentence : pictures.diagnostics())
    std::cerr << name << ": " << sentence.toUtf8() << '\n';
  const QRectF all(QPointF(0, 0), QSizeF(options.size));
  writePicture(options.output, options.size, colors.background(), [&](QPainter& painter, double lineWidth) {
    paintDrawing(painter, pictures, {colors, pictures.frame().toDevice(view), lineWidth},
                 painter.transform().mapRect(all));
  });
}

int renderDrawing(const RenderOptions& options) {
  renderDrawing(*openDrawing(options.drawing), options.drawing.string(), options);
  return kExitDone;
}
