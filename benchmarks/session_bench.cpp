#include "benchmarks/texts.h"
#include "editor/smart_edit.h"
#include "host/key_code.h"
#include "host/windowless/application.h"
#include "mtext/entity/mtext_size_finder.h"
#include "od/db/OdDbDatabase.h"

namespace benchmarks {
namespace {

/// A session without a window on a text that no entity holds, its caret in the middle.
struct opened_text {
  explicit opened_text(const sample_text& text)
      : application(OdDbDatabase::createEmpty()), session(application.document()) {
    ExMTextEditable& editable = session.editable();
    OdDbDatabase& database = application.document().database();
    editable.setDatabaseDefaults(&database);
    editable.setFinder(std::make_shared<mtext::mtext_size_finder>(OdDbDatabasePtr(&database)));
    mtext::convert_info info;
    info.columns.width = 50 * info.height;
    editable.setLayoutInfo(info);
    editable.setDefaultFormat({.height = info.height, .height_kind = 0, .font = u"Liberation Sans"});
    editable.setContents(text.codes);
    editable.load();
    editable.setSelections({mtext::marks::selection(editable.text().parts.size() / 2)});
  }

  void key(unsigned code, char16_t character) {
    HostMessages& messages = application.document().messages();
    messages.offer({.number = WM_KEYDOWN, .code = code});
    if (character) messages.offer({.number = WM_CHAR, .code = character});
    messages.offer({.number = WM_KEYUP, .code = code});
  }

  WindowlessApplication application;
  smart_edit session;
};

/// A letter in a run of letters, with all that a session does for it but painting.
void types(benchmark::State& state) {
  opened_text text(text_of(state));
  text.key('X', u'x');
  for (auto _ : state) text.key('X', u'x');
}

/// A letter typed behind a move of the caret, so that each is a step of its own.
void types_steps(benchmark::State& state) {
  opened_text text(text_of(state));
  for (auto _ : state) {
    text.key(VK_LEFT, 0);
    text.key('X', u'x');
  }
}

}  // namespace

void register_session() {
  const auto add = [](const char* name, void (*work)(benchmark::State&)) {
    benchmark::RegisterBenchmark(name, work)
        ->ArgsProduct({{1'000, 10'000, 100'000}, {0, 1, 2}})
        ->Iterations(200);
  };
  add("type a key in a session/scribe", types);
  add("type a key as an undo step/scribe", types_steps);
}

}  // namespace benchmarks
