#pragma once

#include <QSize>
#include <string>

namespace CLI {
class App;
class Option;
}  // namespace CLI

/// Gives a way to call the program that draws a picture its `--size` in pixels. `size` has to outlive `app`.
CLI::Option* addPictureSize(CLI::App& app, QSize& size);
