#include "desk/cli/run_script.h"

#include <iostream>

#include "desk/cli/exit_code.h"
#include "desk/cli/input_file.h"
#include "desk/commands/command_table.h"
#include "desk/document/drawing_file.h"
#include "desk/script/script_desk.h"
#include "desk/script/script_reader.h"
#include "host/command_factory.h"
#include "od/base/unicode.h"

namespace {

Script scriptOf(const std::filesystem::path& file) {
  return readScript(readInput(file, "the script"), inputName(file));
}

void print(std::u16string_view line) { std::cout << odToUtf8(line) << '\n'; }

/// Tells what the script left open or could not choose; whether there was anything.
bool tellUnanswered(ScriptDesk& desk, const std::string& script) {
  if (desk.document().prompt().unanswered() > 0)
    std::cerr << script << ": the script ended while \"" << odToUtf8(desk.source().promptAtEnd())
              << "\" was asked.\n";
  if (desk.questions().unanswered() > 0)
    std::cerr << script << ": the question \"" << odToUtf8(desk.questions().shown().back())
              << "\" was not answered.\n";
  for (const std::u16string& choice : desk.refusedChoices())
    std::cerr << script << ": the menu has no entry \"" << odToUtf8(choice) << "\" that can be chosen.\n";
  return desk.failures() > 0 || desk.questions().unanswered() > 0 || !desk.refusedChoices().empty();
}

}  // namespace

int runScript(const RunOptions& options) {
  Script script = scriptOf(options.script);
  ScriptDesk desk(openDrawing(options.drawing), std::move(script), print);
  registerDeskCommands(host::command_factory(), desk);
  desk.run();
  if (tellUnanswered(desk, inputName(options.script))) return kExitRefused;
  if (!options.output.empty()) desk.save(options.output);
  return kExitDone;
}
