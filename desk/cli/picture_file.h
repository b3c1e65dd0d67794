#pragma once

#include <QColor>
#include <QSize>
#include <filesystem>
#include <functional>
#include <optional>

class QPainter;

/// Forms in which pictures are written.
enum class PictureForm { png, svg, pdf };

/// The form that a file's suffix tells, without case.
std::optional<PictureForm> pictureForm(const std::filesystem::path& file);

/// Paints in coordinates from 0,0 to the picture's size; lines are to be `lineWidth` device units wide.
using PaintFunction = std::function<void(QPainter& painter, double lineWidth)>;

/// Writes a picture of `size` pixels on a ground of the given colour. Throws FileError.
void writePicture(const std::filesystem::path& file, QSize size, const QColor& ground,
                  const PaintFunction& paint);
