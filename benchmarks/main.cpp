#include <QGuiApplication>

#include "benchmarks/texts.h"

/// The peers need no screen: Qt is told so before it looks for one.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication fonts(argc, argv);
  benchmarks::register_scribe();
  benchmarks::register_session();
  benchmarks::register_qt();
  benchmarks::register_pango();
  benchmarks::register_yardstick();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  return benchmark::RunSpecifiedBenchmarks() == 0 ? 1 : 0;
}
