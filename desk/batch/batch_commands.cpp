#include "desk/batch/batch_commands.h"

#include "desk/commands/command_table.h"
#include "desk/commands/desk_command.h"
#include "host/command_factory.h"

namespace {

class SaveLater : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override { return setStatus(kCommandDone); }
};

class RefusedInBatch : public DeskCommand {
 public:
  using DeskCommand::DeskCommand;
  int run() override {
    prompt().refuse(u"A batch opens and saves its drawings itself: leave Open and SaveAs out.");
    return setStatus(kCommandDone);
  }
};

template <typename Command>
void replace(ICmdFactory& factory, std::u16string_view name, Desk& desk) {
  factory.registerCommand(name,
                          [&desk] { return OdSmartPtr<ICmdProcess>(new Command(desk), kOdRxObjAttach); });
}

}  // namespace

void registerBatchCommands(ICmdFactory& factory, Desk& desk) {
  registerDeskCommands(factory, desk);
  replace<SaveLater>(factory, u"Save", desk);
  replace<RefusedInBatch>(factory, u"Open", desk);
  replace<RefusedInBatch>(factory, u"SaveAs", desk);
}
