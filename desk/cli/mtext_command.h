#pragma once

#include <filesystem>
#include <string>

/// `scribe mtext`.
struct MTextOptions {
  /// What becomes of the format-code string.
  enum Action { plain, parse, format, layout };

  Action action = plain;
  std::filesystem::path file = "-";  ///< UTF-8; - is standard input
  double width = 0;                  ///< drawing units at which lines wrap; 0 means never
  double height = 2.5;               ///< of the text, in drawing units
  std::string font = {};  ///< a typeface, or a shape font's file with its .shx; empty for none told
  std::filesystem::path picture = {};  ///< where `layout` draws; empty for JSON on standard output
};

/// Reads a format-code string and prints what was asked for. One line end at the end of the input belongs to
/// the pipe and not to the text; all output ends with one line feed. A picture takes a QGuiApplication. An
/// `ExitCode`; throws FileError.
int runMText(const MTextOptions& options);
