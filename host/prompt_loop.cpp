#include "host/prompt_loop.h"

#include "host/command_input.h"
#include "host/command_line.h"
#include "host/document.h"
#include "host/key_code.h"
#include "host/message_filter.h"
#include "host/prompt_text.h"
#include "host/prompt_wait.h"
#include "host/reading.h"
#include "host/translate.h"

HostPromptLoop::HostPromptLoop(HostDocument& document, HostInputSource& source, HostCommandLine& line)
    : m_document(document), m_source(source), m_line(line) {}

void HostPromptLoop::message(std::u16string_view text) { m_line.write(text); }

void HostPromptLoop::refuse(std::u16string_view reason) {
  ++m_refusals;
  message(reason);
}

int HostPromptLoop::ask(const HostPromptRequest& request, const HostReading& reading) {
  HostPromptWait wait(m_document, request);
  m_cursor.reset();
  m_line.showPrompt(reading.prompt);
  std::optional<int> answer;
  while (!answer) answer = answerTo(nextInput(), reading, wait);
  // Half a line that a press made needless is no beginning of the next answer.
  m_document.commandInput().dropUnfinished();
  m_line.showPrompt(u"");
  return *answer;
}

HostInput HostPromptLoop::nextInput() {
  if (auto typed = m_document.commandInput().take()) return *typed;
  return m_source.next();
}

std::optional<int> HostPromptLoop::answerTo(const HostInput& input, const HostReading& reading,
                                            HostPromptWait& wait) {
  if (const auto* line = std::get_if<HostTypedLine>(&input)) return answerToLine(line->text, reading);
  if (const auto* message = std::get_if<HostWindowMessage>(&input))
    return answerToMessage(*message, reading, wait);
  if (std::holds_alternative<HostCancel>(input)) return kAnswerCancel;
  if (!reading.is_command) ++m_unanswered;
  return kAnswerEndOfInput;
}

std::optional<int> HostPromptLoop::answerToLine(const std::u16string& line, const HostReading& reading) {
  const std::u16string_view typed = host::without_outer_blanks(line);
  if (line.empty() || (typed.empty() && !reading.takes_blanks)) return answerToEmptyLine(reading);
  if (const auto keyword = reading.keywords.find(typed)) return keyword;
  if (reading.take_line(line)) return kAnswerValue;
  askAgain(reading);
  return std::nullopt;
}

std::optional<int> HostPromptLoop::answerToEmptyLine(const HostReading& reading) {
  if (!reading.default_answer.empty()) {
    if (const auto keyword = reading.keywords.find(reading.default_answer)) return keyword;
    if (reading.take_line(reading.default_answer)) return kAnswerValue;
  } else if (reading.may_be_empty) {
    return reading.take_line(u"") ? kAnswerValue : kAnswerNothing;
  }
  askAgain(reading);
  return std::nullopt;
}

std::optional<int> HostPromptLoop::answerToMessage(const HostWindowMessage& message,
                                                   const HostReading& reading, HostPromptWait& wait) {
  if (m_document.messages().offer(message)) return std::nullopt;
  switch (message.number) {
    case WM_MOUSEMOVE:
      wait.track(message.point);
      m_cursor = message.point;
      return std::nullopt;
    case WM_LBUTTONDOWN:
      wait.track(message.point);
      return answerToPress(message.point, reading);
    case WM_RBUTTONDOWN:
      m_document.commandInput().endLine();
      return std::nullopt;
    default:
      typeKey(message);
      return std::nullopt;
  }
}

std::optional<int> HostPromptLoop::answerToPress(const OdGePoint3d& point, const HostReading& reading) {
  if (!reading.take_press) return std::nullopt;
  if (reading.take_press(point)) return kAnswerValue;
  askAgain(reading);
  return std::nullopt;
}

void HostPromptLoop::typeKey(const HostWindowMessage& message) {
  HostCommandInput& input = m_document.commandInput();
  if (message.number == WM_CHAR) {
    if (message.code >= VK_SPACE) input.typeCharacter(static_cast<char16_t>(message.code));
    return;
  }
  if (message.number != WM_KEYDOWN) return;
  if (message.code == VK_RETURN) input.endLine();
  if (message.code == VK_ESCAPE) input.cancel();
  if (message.code == VK_BACK) input.eraseLast();
}

void HostPromptLoop::askAgain(const HostReading& reading) {
  message(Supp_Translate(reading.wanted));
  m_line.showPrompt(reading.prompt);
}
