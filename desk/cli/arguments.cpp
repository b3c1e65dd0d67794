#include "desk/cli/arguments.h"

#include <CLI/CLI.hpp>
#include <cmath>
#include <sstream>

#include "desk/cli/batch_arguments.h"
#include "desk/cli/mtext_arguments.h"
#include "desk/cli/number_list.h"
#include "desk/cli/picture_size.h"
#include "desk/program/exit_code.h"

namespace {

void readWindow(const std::string& text, RenderOptions& options) {
  const std::vector<double> ends = numberList<double>(text, ',');
  const auto spans = [&](std::size_t from, std::size_t to) {
    return ends[from] != ends[to] && std::isfinite(ends[to] - ends[from]);
  };
  if (ends.size() != 4 || !spans(0, 2) || !spans(1, 3))
    throw CLI::ValidationError("--window", "\"" + text + "\" is no window such as 0,0,100,50.");
  OdGeExtents3d box;
  box.addPoint({ends[0], ends[1], 0});
  box.addPoint({ends[2], ends[3], 0});
  options.window = box;
}

/// The parser and what it fills in. It refers to its own members, so it stays where it is.
class Parser {
 public:
  Parser() {
    m_app.set_version_flag("--version", "scribe " SCRIBE_VERSION);
    m_app.add_option("drawing", m_window.drawing, "The drawing to be opened in a window");
    addRun();
    addRender();
    addText();
    m_mtext_app = addMText(m_app, m_mtext);
    m_batch_app = addBatch(m_app, m_batch);
    m_worker_app = addBatchDrawing(m_app, m_worker);
  }
  Parser(const Parser&) = delete;
  Parser& operator=(const Parser&) = delete;

  Arguments parse(int count, const char* const* words) {
    try {
      m_app.parse(count, words);
    } catch (const CLI::ParseError& end) {
      std::ostringstream out, error;
      const int code = m_app.exit(end, out, error);
      return CalledOff{code == 0 ? kExitDone : kExitUsage, code == 0 ? out.str() : error.str()};
    }
    return chosen();
  }

 private:
  void addRun() {
    m_run_app = m_app.add_subcommand("run", "Runs a script on a drawing, without a window");
    m_run_app->add_option("drawing", m_run.drawing, "The drawing")->required();
    m_run_app->add_option("script", m_run.script, "The script; - reads standard input")->required();
    m_run_app->add_option("-o,--output", m_run.output, "Saves the drawing here in the end");
  }

  void addRender() {
    m_render_app = m_app.add_subcommand("render", "Draws a drawing into a picture");
    m_render_app->add_option("drawing", m_render.drawing, "The drawing")->required();
    m_render_app->add_option("-o,--output", m_render.output, "The picture: .png, .svg or .pdf")
        ->required()
        ->check(CLI::Validator(needsPictureName, "FILE"));
    addPictureSize(*m_render_app, m_render.size);
    m_render_app->add_option_function<std::string>(
        "--window", [this](const std::string& text) { readWindow(text, m_render); },
        "X0,Y0,X1,Y1: the part to be shown, the whole drawing if not told");
    m_render_app->add_option("--background", m_render.background, "light or dark")
        ->transform(CLI::CheckedTransformer(
            std::map<std::string, Background>{{"light", Background::light}, {"dark", Background::dark}}));
  }

  void addText() {
    m_text_app = m_app.add_subcommand("text", "Lists the texts of a drawing");
    m_text_app->add_option("drawing", m_text.drawing, "The drawing")->required();
    m_text_app->add_flag("--json", m_text.json, "Prints JSON");
  }

  Arguments chosen() const {
    if (m_run_app->parsed()) return m_run;
    if (m_render_app->parsed()) return m_render;
    if (m_text_app->parsed()) return m_text;
    if (m_mtext_app->parsed()) return m_mtext;
    if (m_batch_app->parsed()) return m_batch;
    if (m_worker_app->parsed()) return m_worker;
    return m_window;
  }

  CLI::App m_app{"Creates and edits the text of drawings."};
  CLI::App* m_run_app = nullptr;
  CLI::App* m_render_app = nullptr;
  CLI::App* m_text_app = nullptr;
  CLI::App* m_mtext_app = nullptr;
  CLI::App* m_batch_app = nullptr;
  CLI::App* m_worker_app = nullptr;
  WindowOptions m_window;
  RunOptions m_run;
  RenderOptions m_render;
  TextOptions m_text;
  MTextOptions m_mtext;
  BatchOptions m_batch;
  BatchWorkerOptions m_worker;
};

}  // namespace

Arguments readArguments(int count, const char* const* words) { return Parser().parse(count, words); }
