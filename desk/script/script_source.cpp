#include "desk/script/script_source.h"

#include <cmath>

#include "desk/script/script_command_line.h"
#include "desk/script/script_events.h"
#include "desk/script/step_messages.h"
#include "host/field_service.h"
#include "host/key_state.h"
#include "host/view.h"
#include "host/windowless/clock.h"
#include "host/windowless/window.h"
#include "od/gi/OdGsView.h"

HostInput ScriptSource::next() {
  while (m_waiting.empty()) {
    if (m_at == m_script.size()) return endOfScript();
    perform(m_script[m_at++]);
  }
  HostInput input = std::move(m_waiting.front());
  m_waiting.pop_front();
  if (const auto* message = std::get_if<HostWindowMessage>(&input))
    m_around.keys.hold({.shift = message->shift, .ctrl = message->ctrl, .alt = message->alt});
  return input;
}

HostInput ScriptSource::endOfScript() {
  if (m_prompt_at_end.empty()) m_prompt_at_end = m_around.line.prompt();
  return HostEndOfInput{};
}

void ScriptSource::perform(const ScriptStep& step) {
  if (const auto* line = std::get_if<TypeLine>(&step.what)) type(line->text);
  if (const auto* mouse = std::get_if<MouseStep>(&step.what)) send(messagesOf(*mouse));
  if (const auto* characters = std::get_if<TypeCharacters>(&step.what)) send(messagesOf(*characters));
  if (const auto* key = std::get_if<PressKey>(&step.what)) send(messagesOf(*key));
  if (const auto* wait = std::get_if<WaitStep>(&step.what)) m_around.clock.advance(wait->milliseconds);
  if (const auto* answer = std::get_if<AnswerStep>(&step.what))
    m_around.events.answer(boxAnswer(answer->answer));
  if (const auto* menu = std::get_if<MenuStep>(&step.what)) m_around.window.choose(menu->entry);
  if (const auto* field = std::get_if<FieldStep>(&step.what)) m_around.fields.give(field->code);
}

/// Where a command name is awaited a blank ends it, as it does on the keyboard: the rest answers its prompts.
void ScriptSource::type(const std::u16string& line) {
  const std::size_t blank = m_around.line.awaitsCommand() ? line.find(u' ') : line.npos;
  const std::size_t rest = blank == line.npos ? blank : line.find_first_not_of(u' ', blank);
  m_waiting.push_back(HostTypedLine{rest == line.npos ? line : line.substr(0, blank)});
  if (rest != line.npos) m_waiting.push_back(HostTypedLine{line.substr(rest)});
}

void ScriptSource::send(std::vector<HostWindowMessage> messages) {
  for (HostWindowMessage& message : messages) {
    const OdGePoint2d pixel = m_around.view.gsView().toDevice(message.point);
    message.pixel = {static_cast<int>(std::lround(pixel.x)), static_cast<int>(std::lround(pixel.y))};
    m_waiting.push_back(message);
  }
}

template <typename Step>
const Step* ScriptSource::take() {
  const Step* step = m_at < m_script.size() ? std::get_if<Step>(&m_script[m_at].what) : nullptr;
  if (step) ++m_at;
  return step;
}

std::optional<ScriptAnswer> ScriptSource::takeAnswer() {
  const auto* answer = take<AnswerStep>();
  return answer ? std::optional(answer->answer) : std::nullopt;
}

std::optional<std::u16string> ScriptSource::takeChoice() {
  const auto* menu = take<MenuStep>();
  return menu ? std::optional(menu->entry) : std::nullopt;
}

std::optional<std::u16string> ScriptSource::takeField() {
  const auto* field = take<FieldStep>();
  return field ? std::optional(field->code) : std::nullopt;
}
