#include "desk/cli/run_script.h"

#include <iostream>

#include "desk/commands/command_table.h"
#include "desk/document/drawing_file.h"
#include "desk/program/exit_code.h"
#include "desk/program/input_file.h"
#include "desk/script/script_desk.h"
#include "desk/script/script_reader.h"
#include "desk/script/shortcomings.h"
#include "host/command_factory.h"
#include "od/base/unicode.h"

namespace {

Script scriptOf(const std::filesystem::path& file) {
  return readScript(readInput(file, "the script"), inputName(file));
}

void print(std::u16string_view line) { std::cout << odToUtf8(line) << '\n'; }

}  // namespace

int runScript(const RunOptions& options) {
  Script script = scriptOf(options.script);
  ScriptDesk desk(openDrawing(options.drawing), std::move(script), print);
  registerDeskCommands(host::command_factory(), desk);
  desk.run();
  for (const std::string& sentence : shortcomingsOf(desk, inputName(options.script)))
    std::cerr << sentence << '\n';
  if (!didAll(desk)) return kExitRefused;
  if (!options.output.empty()) desk.save(options.output);
  return kExitDone;
}
