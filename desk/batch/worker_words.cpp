#include "desk/batch/worker_words.h"

#include <algorithm>

#include "desk/batch/batch_options.h"

namespace {

void add(std::vector<std::string>& words, const std::string& name, const std::string& value) {
  if (!value.empty()) words.push_back("--" + name + "=" + value);
}

void addFilter(std::vector<std::string>& words, const TextFilterOptions& filter) {
  for (const std::string& layer : filter.layers) add(words, "layer", layer);
  for (const std::string& style : filter.styles) add(words, "text-style", style);
  for (const auto& [word, kind] : kindWords())
    if (std::ranges::find(filter.kinds, kind) != filter.kinds.end()) add(words, "kind", word);
  add(words, "match", filter.match);
  if (filter.all_blocks) add(words, "space", "all");
}

void addReplacement(std::vector<std::string>& words, const TextReplacement& replacement) {
  add(words, "find", replacement.find);
  // An empty value behind an equals sign would be taken for none.
  if (replacement.replace.empty()) words.insert(words.end(), {"--replace", ""});
  add(words, "replace", replacement.replace);
  if (replacement.is_expression) words.push_back("--regex");
  if (replacement.ignores_case) words.push_back("--ignore-case");
}

}  // namespace

const std::map<std::string, TextKind>& kindWords() {
  static const std::map<std::string, TextKind> words{{"text", TextKind::text},
                                                     {"mtext", TextKind::mtext},
                                                     {"attribute", TextKind::attribute},
                                                     {"definition", TextKind::definition}};
  return words;
}

std::vector<std::string> workerWords(const BatchWorkerOptions& options) {
  std::vector<std::string> words{"batch-drawing"};
  add(words, "order", options.order.script);
  if (options.order.replacement) addReplacement(words, *options.order.replacement);
  addFilter(words, options.order.filter);
  add(words, "target", options.target.string());
  add(words, "parent", std::to_string(options.parent));
  words.push_back("--");
  words.push_back(options.drawing.string());
  return words;
}
