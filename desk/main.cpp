#include <QApplication>
#include <csignal>
#include <cstdio>
#include <exception>
#include <iostream>
#include <new>

#include "desk/batch/batch_worker.h"
#include "desk/batch/run_batch.h"
#include "desk/cli/arguments.h"
#include "desk/cli/list_texts.h"
#include "desk/cli/load_module.h"
#include "desk/program/exit_code.h"
#include "desk/program/usage_error.h"
#include "desk/script/script_reader.h"
#include "desk/window/run_window.h"

namespace {

/// Whether the toolkit can be expected to open a window.
bool hasDisplay() {
  return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY") ||
         qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}

/// A root shell often has no runtime folder. The toolkit then takes another, and warns its user of something
/// that makes no difference here.
void beQuietAboutRuntimeFolder() {
  static QtMessageHandler before = nullptr;
  before = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (!text.contains("XDG_RUNTIME_DIR")) before(type, context, text);
  });
}

/// What each way to call the program does, and the surroundings that it needs.
struct Performer {
  int& count;
  char** words;

  int operator()(const CalledOff& off) const {
    (off.exit_code == kExitDone ? std::cout : std::cerr) << off.text;
    return off.exit_code;
  }
  int operator()(const TextOptions& options) const { return listTexts(options.drawing, options.json); }
  int operator()(const RunOptions& options) const {
    if (const std::string error = loadModule(); !error.empty()) std::cerr << error << '\n';
    return runScript(options);
  }
  int operator()(const BatchOptions& options) const { return runBatch(options); }
  int operator()(const BatchWorkerOptions& options) const {
    if (const std::string error = loadModule(); !error.empty()) std::cerr << error << '\n';
    return runBatchWorker(options);
  }
  int operator()(const RenderOptions& options) const {
    return drawingPictures([&] { return renderDrawing(options); });
  }
  int operator()(const MTextOptions& options) const {
    if (options.picture.empty()) return runMText(options);
    return drawingPictures([&] { return runMText(options); });
  }
  int operator()(const WindowOptions& options) const {
    if (!hasDisplay()) {
      std::cerr << "There is no display to open a window on; run, batch, render, text and mtext work without "
                   "one.\n";
      return kExitUsage;
    }
    beQuietAboutRuntimeFolder();
    QApplication::setApplicationName("scribe");
    const QApplication application(count, words);
    QApplication::setQuitOnLastWindowClosed(false);
    const std::string moduleError = loadModule();
    return runWindow(options.drawing, moduleError);
  }

  /// Does what paints, without a display.
  template <typename Action>
  int drawingPictures(Action action) const {
    beQuietAboutRuntimeFolder();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(count, words);
    return action();
  }
};

}  // namespace

int main(int count, char** words) {
  // A file that grows over the limit of its user shall be refused in a sentence, not end the program.
  std::signal(SIGXFSZ, SIG_IGN);
  try {
    return std::visit(Performer{count, words}, readArguments(count, words));
  } catch (const ScriptError& error) {
    std::cerr << error.what() << '\n';
    return kExitRefused;
  } catch (const UsageError& error) {
    std::cerr << error.what() << '\n';
    return kExitUsage;
  } catch (const std::bad_alloc&) {
    std::cerr << "The drawing needs more memory than there is.\n";
    return kExitFileError;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return kExitFileError;
  }
}
