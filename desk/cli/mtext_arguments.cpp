#include "desk/cli/mtext_arguments.h"

#include <CLI/CLI.hpp>

#include "desk/cli/render_drawing.h"

namespace {

constexpr double kLargestLength = 1e9;
constexpr double kSmallestHeight = 1e-6;

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

CLI::App* addAction(CLI::App& mtext, MTextOptions& options, MTextOptions::Action action,
                    const std::string& name, const std::string& does) {
  CLI::App* const added = mtext.add_subcommand(name, does);
  added->add_option("file", options.file, "The text, in UTF-8; - or nothing reads standard input");
  added->callback([&options, action] { options.action = action; });
  return added;
}

void addBase(CLI::App& action, MTextOptions& options) {
  action.add_option("--height", options.height, "Height of the text, 2.5 if not told")
      ->check(length(kSmallestHeight));
  action.add_option("--font", options.font, "Typeface, or file of a shape font: Arial, txt.shx");
}

void addLayout(CLI::App& action, MTextOptions& options) {
  action.add_option("--width", options.width, "Width at which lines wrap; never if not told")
      ->check(length(0));
  action.add_option("--draw", options.picture, "Draws a picture instead: .png, .svg or .pdf")
      ->check(CLI::Validator(needsPictureName, "FILE"));
}

}  // namespace

CLI::App* addMText(CLI::App& program, MTextOptions& options) {
  CLI::App* const mtext = program.add_subcommand("mtext", "Reads the format codes of a multi-line text");
  mtext->require_subcommand(1);
  addAction(*mtext, options, MTextOptions::plain, "plain", "Prints the text without its codes");
  addBase(*addAction(*mtext, options, MTextOptions::parse, "parse", "Prints its parts as JSON"), options);
  addBase(*addAction(*mtext, options, MTextOptions::format, "format", "Prints it read and written back"),
          options);
  CLI::App* const layout =
      addAction(*mtext, options, MTextOptions::layout, "layout", "Prints its lines and columns as JSON");
  addBase(*layout, options);
  addLayout(*layout, options);
  return mtext;
}
