#include "desk/batch/carry_out.h"

#include "desk/batch/batch_commands.h"
#include "desk/batch/batch_options.h"
#include "desk/batch/order_script.h"
#include "desk/script/script_desk.h"
#include "desk/script/shortcomings.h"
#include "host/command_factory.h"
#include "od/base/unicode.h"

CarriedOut carryOut(const BatchOrder& order, const OdDbDatabasePtr& drawing) {
  CarriedOut outcome;
  const TextFilter filter(order.filter);
  ScriptDesk desk(drawing, orderScript(order),
                  [&](std::u16string_view line) { outcome.messages.push_back(odToUtf8(line)); });
  registerBatchCommands(host::command_factory(), desk);
  desk.document().prompt().answerSelections([&] {
    HostSelectionSet texts = filter.selected(*drawing);
    // Where nothing is meant, the drawing is done: the answers that follow would be taken for commands.
    if (texts.isEmpty()) desk.quit();
    return texts;
  });
  desk.run();
  outcome.is_done = didAll(desk);
  outcome.reasons = shortcomingsOf(desk, order.replacement ? "--find" : order.script);
  return outcome;
}
