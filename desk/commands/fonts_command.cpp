#include "desk/commands/fonts_command.h"

#include "desk/document/font_report.h"

int FontsCommand::run() {
  const std::vector<std::u16string> lines = substitutedFonts(desk().document().database());
  if (lines.empty()) prompt().message(u"No font had to be substituted so far.");
  for (const std::u16string& line : lines) prompt().message(line);
  return setStatus(kCommandDone);
}
