#include "host/events.h"

#include "host/application.h"
#include "host/exports.h"

IEvents* Get_IEvents() {
  HostApplication* application = host::application();
  return application ? &application->events() : nullptr;
}

void hostAlert(std::u16string_view text) {
  if (IEvents* events = Get_IEvents()) events->box(kBoxAlert, text, nullptr, kBoxButtonsOfLevel);
}

HostBoxText splitBoxText(std::u16string_view text) {
  const std::size_t open = text.find(u'$');
  const bool has_key = open != text.npos && open + 1 < text.size() && text.back() == u'$';
  if (!has_key) return {std::u16string(text), {}};
  return {std::u16string(text.substr(0, open)),
          std::u16string(text.substr(open + 1, text.size() - open - 2))};
}

int HostAnsweredEvents::box(int level, std::u16string_view text, HostWindow*, int) {
  m_shown.push_back(splitBoxText(text).shown);
  if (level != kBoxQuestion) return kBoxYes;
  if (m_answers.empty()) {
    ++m_unanswered;
    return kBoxCancel;
  }
  const HostBoxAnswer answer = m_answers.front();
  m_answers.pop_front();
  return answer;
}
