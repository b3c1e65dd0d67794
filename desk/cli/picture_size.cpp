#include "desk/cli/picture_size.h"

#include <CLI/CLI.hpp>

#include "desk/cli/number_list.h"

namespace {

constexpr int kLargestSide = 20000;

QSize readSize(const std::string& text) {
  const std::vector<int> sides = numberList<int>(text, 'x');
  const auto usable = [](int side) { return side >= 1 && side <= kLargestSide; };
  if (sides.size() != 2 || !usable(sides[0]) || !usable(sides[1]))
    throw CLI::ValidationError("--size", "\"" + text + "\" is no size such as 1600x1000.");
  return {sides[0], sides[1]};
}

}  // namespace

CLI::Option* addPictureSize(CLI::App& app, QSize& size) {
  return app.add_option_function<std::string>(
      "--size", [&size](const std::string& text) { size = readSize(text); },
      "WIDTHxHEIGHT in pixels, 1600x1000 if not told");
}
