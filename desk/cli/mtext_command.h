#pragma once

#include <QSize>
#include <filesystem>
#include <optional>
#include <string>

#include "desk/cli/frame_style.h"

/// `scribe mtext`.
struct MTextOptions {
  /// What becomes of the format-code string.
  enum Action { plain, parse, format, layout };

  Action action = plain;
  std::filesystem::path file = "-";  ///< UTF-8; - is standard input
  std::filesystem::path style = {};  ///< a style file; empty for none
  // These go before what the style says.
  std::optional<double> width = {};      ///< drawing units at which lines wrap; 0 means never
  std::optional<double> height = {};     ///< of the text, in drawing units
  std::optional<std::string> font = {};  ///< a typeface, or a shape font's file with its .shx
  std::filesystem::path picture = {};    ///< where `layout` draws; empty for JSON on standard output
  QSize size{1600, 1000};                ///< of the picture; pixels, in a PDF points of a 72nd inch
};

/// What the options say of a text beside its codes. Throws FileError for a style file that cannot be used.
FrameStyle frameStyle(const MTextOptions& options);

/// Reads a format-code string and prints what was asked for. One line end at the end of the input belongs to
/// the pipe and not to the text; all output ends with one line feed. A picture takes a QGuiApplication. An
/// `ExitCode`; throws FileError.
int runMText(const MTextOptions& options);
