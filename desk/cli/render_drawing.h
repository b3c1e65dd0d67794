#pragma once

#include <QSize>
#include <filesystem>
#include <optional>
#include <string>

#include "desk/painter/paint_colors.h"
#include "od/ge/OdGeExtents3d.h"

class OdDbDatabase;

/// `scribe render`.
struct RenderOptions {
  std::filesystem::path drawing;
  std::filesystem::path output;              ///< its suffix tells the form: .png, .svg or .pdf
  QSize size{1600, 1000};                    ///< pixels; points of a 72nd inch in a PDF
  std::optional<OdGeExtents3d> window = {};  ///< the part to be shown; without it the whole drawing
  Background background = Background::light;
};

/// Whether a picture can be written to a file of this name.
bool canRenderTo(const std::filesystem::path& output);
/// What is wrong with a name for a picture, as a sentence; empty if nothing is.
std::string needsPictureName(const std::string& name);

/// Draws a drawing into a file. A QGuiApplication has to be there. An `ExitCode`; throws OdError and
/// FileError.
int renderDrawing(const RenderOptions& options);

/// Draws a drawing that is open already; messages call it `name`. The `drawing` of the options is not read.
void renderDrawing(OdDbDatabase& database, const std::string& name, const RenderOptions& options);
