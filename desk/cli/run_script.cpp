#include "desk/cli/run_script.h"

#include <fstream>
#include <iostream>
#include <iterator>

#include "desk/cli/exit_code.h"
#include "desk/cli/file_error.h"
#include "desk/commands/command_table.h"
#include "desk/document/drawing_file.h"
#include "desk/script/script_desk.h"
#include "desk/script/script_reader.h"
#include "host/command_factory.h"
#include "od/base/unicode.h"

namespace {

std::string contentOf(std::istream& stream) {
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

/// The script's name in messages.
std::string nameOf(const std::filesystem::path& file) {
  return file == "-" ? "standard input" : file.string();
}

Script scriptOf(const std::filesystem::path& file) {
  if (file == "-") return readScript(contentOf(std::cin), nameOf(file));
  std::ifstream stream(file, std::ios::binary);
  if (!stream || std::filesystem::is_directory(file)) throw FileError(file, "the script cannot be read.");
  return readScript(contentOf(stream), nameOf(file));
}

void print(std::u16string_view line) { std::cout << odToUtf8(line) << '\n'; }

/// Tells what the script left open; whether there was anything.
bool tellUnanswered(ScriptDesk& desk, const std::string& script) {
  if (desk.document().prompt().unanswered() > 0)
    std::cerr << script << ": the script ended while \"" << odToUtf8(desk.source().promptAtEnd())
              << "\" was asked.\n";
  if (desk.questions().unanswered() > 0)
    std::cerr << script << ": the question \"" << odToUtf8(desk.questions().shown().back())
              << "\" was not answered.\n";
  return desk.failures() > 0 || desk.questions().unanswered() > 0;
}

}  // namespace

int runScript(const RunOptions& options) {
  Script script = scriptOf(options.script);
  ScriptDesk desk(openDrawing(options.drawing), std::move(script), print);
  registerDeskCommands(host::command_factory(), desk);
  desk.run();
  if (tellUnanswered(desk, nameOf(options.script))) return kExitRefused;
  if (!options.output.empty()) desk.save(options.output);
  return kExitDone;
}
