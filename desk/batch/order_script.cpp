#include "desk/batch/order_script.h"

#include <filesystem>
#include <stdexcept>

#include "desk/batch/batch_options.h"
#include "desk/batch/command_words.h"
#include "desk/program/input_file.h"
#include "desk/script/script_reader.h"
#include "od/base/unicode.h"

namespace {

/// Each line is typed where the next prompt waits.
Script typing(const std::vector<std::string>& lines) {
  Script script;
  for (const std::string& line : lines) script.push_back({1, TypeLine{odToUtf16(line)}});
  return script;
}

/// The command TextReplace and its answers.
std::vector<std::string> replacing(const TextReplacement& replacement) {
  const HostTextPattern::Options options{.is_expression = replacement.is_expression,
                                         .ignores_case = replacement.ignores_case};
  // What is no pattern is to be told before any drawing is touched.
  const HostTextPattern pattern(odToUtf16(replacement.find), options);
  const std::string look =
      std::string(options.ignores_case ? "AnyCase" : "") + (options.is_expression ? "Expression" : "");
  return {"TextReplace", replacement.find, replacement.replace, look.empty() ? "Words" : look};
}

}  // namespace

bool isScriptFile(const std::string& words) {
  std::error_code unnameable;
  return std::filesystem::is_regular_file(words, unnameable);
}

Script orderScript(const BatchOrder& order) {
  if (order.replacement) return typing(replacing(*order.replacement));
  if (isScriptFile(order.script)) return readScript(readInput(order.script, "the script"), order.script);
  Script script = typing(commandWords(order.script));
  if (script.empty()) throw std::invalid_argument("The command line is empty.");
  return script;
}
