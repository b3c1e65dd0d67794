#include "desk/cli/picture_file.h"

#include <QFile>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QSvgGenerator>

#include "desk/program/file_error.h"

namespace {

/// Device units of a PDF in a point: fine enough for curves and hairlines.
constexpr int kPdfUnitsPerPoint = 10;
constexpr int kPointsPerInch = 72;
constexpr double kPdfLineWidth = 0.5;

void paintOn(QPaintDevice& device, QSize size, const QColor& ground, double scale, double lineWidth,
             const PaintFunction& paint) {
  QPainter painter(&device);
  painter.scale(scale, scale);
  painter.fillRect(QRect(QPoint(0, 0), size), ground);
  paint(painter, lineWidth);
}

void writePng(QIODevice& file, QSize size, const QColor& ground, const PaintFunction& paint) {
  QImage image(size, QImage::Format_RGB32);
  paintOn(image, size, ground, 1, 1, paint);
  image.save(&file, "PNG");  // a failure to write shows when the file is committed
}

void writeSvg(QIODevice& file, QSize size, const QColor& ground, const PaintFunction& paint) {
  QSvgGenerator svg;
  svg.setOutputDevice(&file);
  svg.setSize(size);
  svg.setViewBox(QRect(QPoint(0, 0), size));
  paintOn(svg, size, ground, 1, 1, paint);
}

void writePdf(QIODevice& file, QSize size, const QColor& ground, const PaintFunction& paint) {
  QPdfWriter pdf(&file);
  pdf.setPageSize(QPageSize(QSizeF(size), QPageSize::Point));
  pdf.setPageMargins(QMarginsF());
  pdf.setResolution(kPdfUnitsPerPoint * kPointsPerInch);
  paintOn(pdf, size, ground, kPdfUnitsPerPoint, kPdfUnitsPerPoint * kPdfLineWidth, paint);
}

}  // namespace

std::optional<PictureForm> pictureForm(const std::filesystem::path& file) {
  const QString suffix = QString::fromStdString(file.extension().string()).toLower();
  if (suffix == ".png") return PictureForm::png;
  if (suffix == ".svg") return PictureForm::svg;
  if (suffix == ".pdf") return PictureForm::pdf;
  return std::nullopt;
}

void writePicture(const std::filesystem::path& file, QSize size, const QColor& ground,
                  const PaintFunction& paint) {
  QSaveFile target(QString::fromStdString(file.string()));
  if (!target.open(QIODevice::WriteOnly)) throw FileError(file, target.errorString().toStdString() + ".");
  switch (pictureForm(file).value_or(PictureForm::png)) {
    case PictureForm::png:
      writePng(target, size, ground, paint);
      break;
    case PictureForm::svg:
      writeSvg(target, size, ground, paint);
      break;
    case PictureForm::pdf:
      writePdf(target, size, ground, paint);
      break;
  }
  if (!target.commit()) throw FileError(file, target.errorString().toStdString() + ".");
}
