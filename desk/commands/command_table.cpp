#include "desk/commands/command_table.h"

#include <array>

#include "desk/commands/fonts_command.h"
#include "desk/commands/help_command.h"
#include "desk/commands/open_command.h"
#include "desk/commands/paste_command.h"
#include "desk/commands/quit_command.h"
#include "desk/commands/save_as_command.h"
#include "desk/commands/save_command.h"
#include "desk/commands/turn_text_command.h"
#include "desk/commands/zoom_command.h"
#include "host/command_factory.h"

namespace {

template <typename Command>
OdSmartPtr<ICmdProcess> make(Desk& desk) {
  return OdSmartPtr<ICmdProcess>(new Command(desk), kOdRxObjAttach);
}

constexpr std::array<DeskCommandRow, 9> kCommands{{
    {u"Fonts", u"Lists the fonts that are missing here, and what stands in for them.", make<FontsCommand>},
    {u"Help", u"Lists the commands.", make<HelpCommand>},
    {u"Open", u"Opens another drawing.", make<OpenCommand>},
    {u"Paste", u"Puts the text on the clipboard into the drawing.", make<PasteCommand>},
    {u"Quit", u"Leaves the program.", make<QuitCommand>},
    {u"Save", u"Saves the drawing under its name.", make<SaveCommand>},
    {u"SaveAs", u"Saves the drawing under another name.", make<SaveAsCommand>},
    {u"TurnText", u"Chooses whether a text that cannot be read is turned while it is edited, or the view.",
     make<TurnTextCommand>},
    {u"Zoom", u"Shows the whole drawing, or a part of it that two corners tell.", make<ZoomCommand>},
}};

}  // namespace

std::span<const DeskCommandRow> deskCommands() { return kCommands; }

void registerDeskCommands(ICmdFactory& factory, Desk& desk) {
  for (const DeskCommandRow& row : kCommands)
    factory.registerCommand(row.name, [&desk, make = row.make] { return make(desk); });
}
