#pragma once

#include <functional>

#include "host/input.h"
#include "host/prompt.h"

class HostCommandInput;
class HostCommandLine;
class HostDocument;
class HostEdPointTracker;

/// The one prompt of the application, on any source of input.
///
/// A window message goes to the filters first, the tracker of the prompt among them; then a moved cursor
/// gives its point to the tracker, a left press answers a prompt for a point, the right button and Enter are
/// an empty line, Esc is a cancel.
class HostPromptLoop : public HostEdPrompt {
 public:
  /// All three have to outlive the prompt.
  HostPromptLoop(HostDocument& document, HostInputSource& source, HostCommandLine& line);

  int getPoint(const HostPromptRequest& request, OdGePoint3d& point) override;
  int read_input(std::u16string_view prompt, std::u16string_view keywords, unsigned flags,
                 std::u16string* answer = nullptr) override;
  int select(std::u16string_view prompt, unsigned mode_flags, HostSelectionSet& picked) override;
  int getString(const HostPromptRequest& request, bool whole_line, std::u16string& text) override;
  int getReal(const HostPromptRequest& request, double& value) override;
  int getDistance(const HostPromptRequest& request, double& value) override;
  int getAngle(const HostPromptRequest& request, double& radians) override;
  int getKeyword(const HostPromptRequest& request) override;
  void message(std::u16string_view text) override;

  /// Number of prompts that met the end of the input.
  int unanswered() const { return m_unanswered; }

 private:
  /// How one prompt takes what comes. Each gives an answer, or nothing to ask again.
  struct Reading;
  int ask(const HostPromptRequest& request, const Reading& reading);
  std::optional<int> answerTo(const HostInput& input, const HostPromptRequest& request,
                              const Reading& reading);
  std::optional<int> answerToLine(const std::u16string& line, const HostPromptRequest& request,
                                  const Reading& reading);
  std::optional<int> answerToMessage(const HostWindowMessage& message, const HostPromptRequest& request,
                                     const Reading& reading);
  HostInput nextInput();
  void track(const HostPromptRequest& request, const OdGePoint3d& point);

  HostDocument& m_document;
  HostInputSource& m_source;
  HostCommandLine& m_line;
  OdGePoint3d m_last_point;
  int m_unanswered = 0;
};
