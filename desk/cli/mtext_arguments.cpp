#include "desk/cli/mtext_arguments.h"

#include <CLI/CLI.hpp>

#include "desk/cli/picture_size.h"
#include "desk/cli/render_drawing.h"

namespace {

constexpr double kLargestLength = 1e9;
constexpr double kSmallestHeight = 1e-6;

constexpr const char* kStyleHelp = R"(A style file is one JSON object. All of its members may be left out:
  height, width, font            as the options
  is_shx, pitch, charset         of the font: shape font or not, family, character set
  flags                          1 bold, 2 italic, 4 underline, 8 overline, added up
  color                          {"index": 1} or {"red": 255, "green": 0, "blue": 0}
  width_factor, tracking         factors of the letters' width and of their distance
  oblique                        slant of the letters, in radians
  align                          of small letters in a line: 0 bottom, 1 middle, 2 top
  alignment                      of paragraphs: 1 left, 2 centre, 3 right, 4 justified, 5 distributed
  vertical                       0 from the top, 1 around the middle, 2 up from the bottom
  spacing                        {"style": 1 at least | 2 exactly | 3 multiple, "value": 1}
  columns                        {"width", "gutter", "kind": 0 fixed | 1 manual | 2 endless, "heights": [...]}
  extents_mode                   width that counts for alignment: 0 advance, 1 ink, 2 ink of shape fonts)";

/// A length in drawing units that is not below `smallest`. What is no number is not in the range either.
CLI::Validator length(double smallest) {
  return {[smallest](const std::string& text) -> std::string {
            double value = 0;
            const bool usable =
                CLI::detail::lexical_cast(text, value) && value >= smallest && value <= kLargestLength;
            return usable ? "" : "\"" + text + "\" is no such length.";
          },
          "LENGTH"};
}

/// What a text is read and laid out with: the same words for every action, so that one set of them serves a
/// whole pipe. An action takes of it what it needs.
void addFrame(CLI::App& action, MTextOptions& options) {
  action.add_option("--height", options.height, "Height of the text, 2.5 if not told")
      ->check(length(kSmallestHeight));
  action.add_option("--font", options.font, "Typeface, or file of a shape font: Arial, txt.shx");
  action.add_option("--width", options.width, "Width at which lines wrap; never if not told")
      ->check(length(0));
  action.add_option("--style", options.style, "JSON file with these and more; what is told here goes before");
  action.footer(kStyleHelp);
}

CLI::App* addAction(CLI::App& mtext, MTextOptions& options, MTextOptions::Action action,
                    const std::string& name, const std::string& does) {
  CLI::App* const added = mtext.add_subcommand(name, does);
  added->add_option("file", options.file, "The text, in UTF-8; - or nothing reads standard input");
  added->callback([&options, action] { options.action = action; });
  addFrame(*added, options);
  return added;
}

void addPicture(CLI::App& layout, MTextOptions& options) {
  CLI::Option* const draw =
      layout.add_option("--draw", options.picture, "Draws a picture instead: .png, .svg or .pdf")
          ->check(CLI::Validator(needsPictureName, "FILE"));
  addPictureSize(layout, options.size)->needs(draw);
}

}  // namespace

CLI::App* addMText(CLI::App& program, MTextOptions& options) {
  CLI::App* const mtext = program.add_subcommand("mtext", "Reads the format codes of a multi-line text");
  mtext->require_subcommand(1);
  addAction(*mtext, options, MTextOptions::plain, "plain", "Prints the text without its codes");
  addAction(*mtext, options, MTextOptions::parse, "parse", "Prints its parts as JSON");
  addAction(*mtext, options, MTextOptions::format, "format", "Prints it read and written back");
  addPicture(
      *addAction(*mtext, options, MTextOptions::layout, "layout", "Prints its lines and columns as JSON"),
      options);
  return mtext;
}
