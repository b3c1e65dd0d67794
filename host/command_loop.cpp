#include "host/command_loop.h"

#include <exception>

#include "host/application.h"
#include "host/command_factory.h"
#include "host/document.h"
#include "host/idle_filter.h"
#include "host/prompt.h"
#include "host/prompt_text.h"
#include "host/selection_set.h"
#include "host/translate.h"
#include "od/base/unicode.h"

namespace {

/// Keeps a filter in the stack for as long as it lives.
class PushedFilter {
 public:
  PushedFilter(HostMessages& messages, HostEdMessageFilter& filter) : m_messages(messages), m_filter(filter) {
    m_messages.pushFilter(m_filter, 0);
  }
  ~PushedFilter() { m_messages.popFilter(m_filter); }
  PushedFilter(const PushedFilter&) = delete;
  PushedFilter& operator=(const PushedFilter&) = delete;

 private:
  HostMessages& m_messages;
  HostEdMessageFilter& m_filter;
};

int ask_for_command(HostDocument& document, std::u16string& name) {
  HostIdleFilter idle(document);
  const PushedFilter pushed(document.messages(), idle);
  return document.prompt().read_input(Supp_Translate(u"Command"), u"", kReadMayBeEmpty | kReadCommand, &name);
}

int run_with_follow_ups(OdSmartPtr<ICmdProcess> process) {
  int status = kCommandDone;
  for (; process; process = process->followUp()) status = process->run();
  return status;
}

}  // namespace

HostCommandLoop::HostCommandLoop(HostApplication& application, HostDocument& document)
    : m_application(application), m_document(document) {}

void HostCommandLoop::runUntilEnd() {
  while (!m_stopped) {
    std::u16string name;
    const int answer = ask_for_command(m_document, name);
    if (answer == kAnswerEndOfInput) return;
    if (answer == kAnswerCancel) m_document.pickFirst().clear();
    if (answer == kAnswerValue) run(name.empty() ? m_last : name);
  }
}

int HostCommandLoop::run(std::u16string_view name) {
  const std::u16string wanted(host::without_outer_blanks(name));
  if (wanted.empty()) return kCommandDone;
  const CommandRecord* found = m_application.commandFactory().find(wanted);
  if (!found) {
    m_document.prompt().refuse(Supp_Translate(u"There is no command of this name:") + u" " + wanted);
    return kCommandDone;
  }
  m_last = found->name;
  return runRecord(CommandRecord(*found));
}

int HostCommandLoop::runRecord(const CommandRecord& record) {
  if (!(record.flags & kCommandUsesPickFirst)) m_document.pickFirst().clear();
  int status = kCommandDone;
  try {
    status = run_with_follow_ups(record.creator());
  } catch (const std::exception& error) {
    m_document.prompt().refuse(odToUtf16(error.what()));
  }
  m_document.pickFirst().clear();
  return status;
}
