#include "desk/cli/batch_arguments.h"

#include <CLI/CLI.hpp>

#include "desk/batch/worker_words.h"

namespace {

/// A word that stands for a value, without the values in the help.
template <typename Value>
CLI::Validator oneOf(const std::map<std::string, Value>& words) {
  return CLI::CheckedTransformer(words).description("");
}

/// An option that is given several values, with commas between or again and again; what follows a blank is
/// none of them.
template <typename Value>
CLI::Option* addList(CLI::App& app, const std::string& name, std::vector<Value>& values,
                     const std::string& help) {
  return app.add_option(name, values, help)->delimiter(',')->allow_extra_args(false);
}

void addFilter(CLI::App& app, TextFilterOptions& filter) {
  addList(app, "--layer", filter.layers, "Takes texts on these layers; * and ? stand for other characters");
  addList(app, "--text-style", filter.styles, "Takes texts in these text styles; * and ? as well");
  addList(app, "--kind", filter.kinds, "Takes these kinds: text, mtext, attribute, definition")
      ->transform(oneOf(kindWords()))
      ->type_name("KIND");
  app.add_option("--match", filter.match,
                 "Takes texts in which this regular expression is found, codes left aside");
  app.add_option("--space", filter.all_blocks,
                 "current: the model or the layout in front, if not told; all: definitions of blocks, too")
      ->transform(oneOf(std::map<std::string, bool>{{"current", false}, {"all", true}}))
      ->type_name("SPACE");
}

/// What is to be replaced; only looked at where something is to be found.
void addReplacement(CLI::App& app, std::optional<TextReplacement>& replacement) {
  const auto filled = [&replacement]() -> TextReplacement& {
    return replacement ? *replacement : replacement.emplace();
  };
  CLI::Option* const find = app.add_option_function<std::string>(
      "--find", [filled](const std::string& text) { filled().find = text; },
      "Finds this in what the texts show, in the place of a command");
  CLI::Option* const replace = app.add_option_function<std::string>(
      "--replace", [filled](const std::string& text) { filled().replace = text; },
      "Writes this where it was found");
  find->needs(replace);
  replace->needs(find);
  app.add_flag_callback(
         "--regex", [filled] { filled().is_expression = true; },
         "What is to be found is a regular expression; $1 in the replacement is its first group")
      ->needs(find);
  app.add_flag_callback(
         "--ignore-case", [filled] { filled().ignores_case = true; }, "Finds it in either case")
      ->needs(find);
}

/// Drawings are to be written somewhere, or nowhere: what is said twice or not at all is no order.
void requireOnePlace(const BatchOptions& options) {
  const int places = options.in_place + !options.out.empty();
  if (places > 1) throw CLI::ValidationError("--in-place and --out exclude each other.");
  if (places == 0 && !options.dry_run) throw CLI::RequiredError("One of --out, --in-place and --dry-run");
  if (options.resume && options.report.empty()) throw CLI::RequiresError("--resume", "--report");
  if (options.resume && options.dry_run)
    throw CLI::ValidationError("--resume and --dry-run exclude each other.");
}

/// Without something to be found the first word is the order.
void takeOrder(BatchOptions& options) {
  if (options.order.replacement) return;
  if (options.files.size() < 2) throw CLI::RequiredError("A command or script, and a drawing,");
  options.order.script = options.files.front().string();
  options.files.erase(options.files.begin());
}

}  // namespace

CLI::App* addBatch(CLI::App& app, BatchOptions& options) {
  CLI::App* const batch = app.add_subcommand(
      "batch", "Runs a command or a script on many drawings, or replaces text there, a process for each");
  batch
      ->add_option("words", options.files,
                   "A script, or a command with its answers such as 'TCase Upper', unless --find is there; "
                   "then the drawings, and folders of drawings")
      ->required();
  batch->add_option("-o,--out", options.out, "Writes the new drawings into this folder");
  batch->add_flag("--in-place", options.in_place, "Puts the new drawings in the place of the old");
  batch->add_flag("--dry-run", options.dry_run, "Writes no drawing; lists what would change");
  batch
      ->add_option("-j,--jobs", options.jobs,
                   "Drawings at the same time; as many as there are cores if not told")
      ->check(CLI::Range(1, 1024));
  batch->add_option("--report", options.report, "Writes what changed into this JSON file");
  batch->add_flag("--resume", options.resume, "Does what an earlier run with this report left undone");
  addReplacement(*batch, options.order.replacement);
  addFilter(*batch, options.order.filter);
  batch->final_callback([&options] {
    requireOnePlace(options);
    takeOrder(options);
  });
  return batch;
}

CLI::App* addBatchDrawing(CLI::App& app, BatchWorkerOptions& options) {
  CLI::App* const worker = app.add_subcommand("batch-drawing", "Does one drawing of a batch")->group("");
  worker->add_option("--order", options.order.script);
  worker->add_option("drawing", options.drawing)->required();
  worker->add_option("--target", options.target);
  worker->add_option("--parent", options.parent)->required();
  addReplacement(*worker, options.order.replacement);
  addFilter(*worker, options.order.filter);
  return worker;
}
