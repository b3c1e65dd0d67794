#include "editor/editable.h"

#include <algorithm>

#include "editor/letters_settings.h"
#include "od/db/OdDbDatabase.h"

ExMTextEditable::ExMTextEditable() : m_letters(editing::session_letters()) {}
ExMTextEditable::~ExMTextEditable() = default;

OdRxClass* ExMTextEditable::desc() {
  static OdRxClass* record =
      newOdRxClass({.name = "ExMTextEditable",
                    .dxfName = "EXMTEXTEDITABLE",
                    .appName = "MTextEdit|Description: edit-dialog",
                    .parent = OdDbEntity::desc(),
                    .constructor = []() -> OdRxObjectPtr { return odNew<ExMTextEditable>(); },
                    .dwgVersion = 23,
                    .maintenanceVersion = 0,
                    .proxyFlags = 3071});
  return record;
}

ExMTextEditablePtr ExMTextEditable::createObject() {
  return odCastOrThrow<ExMTextEditable>(desc()->create());
}

void ExMTextEditable::removeWatcher(MTextEditor& watcher) { std::erase(m_watchers, &watcher); }

void ExMTextEditable::notifyWatchers() {
  const auto watchers = m_watchers;
  for (MTextEditor* watcher : watchers) watcher->onChanged();
}
