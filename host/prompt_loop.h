#pragma once

#include <functional>
#include <vector>

#include "host/input.h"
#include "host/prompt.h"
#include "host/selection_set.h"
#include "od/db/OdDbObjectId.h"

class HostCommandLine;
class HostDocument;
class HostPromptWait;
struct HostReading;

/// The one prompt of the application, on any source of input.
///
/// A window message goes to the filters first, the tracker of the prompt among them; then a moved cursor
/// gives its point to the tracker, a left press answers a prompt for a point, the right button and Enter end
/// the line, Esc is a cancel, and characters go to the command line.
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
  void refuse(std::u16string_view reason) override;

  /// What stands in for the user where entities are asked for.
  using SelectionAnswer = std::function<HostSelectionSet()>;
  /// From now on the first prompt for entities of each command gets them from `answer`, a prompt for one
  /// entity the first of them; an empty selection cancels. Later prompts of the command read the input, so
  /// that one that asks until the user leaves comes to its end.
  void answerSelections(SelectionAnswer answer) { m_selection_answer = std::move(answer); }

  /// Number of prompts of commands that met the end of the input.
  int unanswered() const { return m_unanswered; }
  /// Number of reasons given to `refuse`.
  int refusals() const { return m_refusals; }

 private:
  int ask(const HostPromptRequest& request, const HostReading& reading);
  HostInput nextInput();
  std::optional<int> answerTo(const HostInput& input, const HostReading& reading, HostPromptWait& wait);
  std::optional<int> answerToLine(const std::u16string& line, const HostReading& reading);
  std::optional<int> answerToEmptyLine(const HostReading& reading);
  std::optional<int> answerToMessage(const HostWindowMessage& message, const HostReading& reading,
                                     HostPromptWait& wait);
  std::optional<int> answerToPress(const OdGePoint3d& point, const HostReading& reading);
  void typeKey(const HostWindowMessage& message);
  /// Tells what is wanted and asks again.
  void askAgain(const HostReading& reading);

  OdGePoint3d basePoint(const HostPromptRequest& request) const;
  /// A point as it is typed at this prompt.
  std::optional<OdGePoint3d> typedPoint(std::u16string_view line, const HostPromptRequest& request) const;
  /// Asks for the opposite corner, and adds what the rectangle takes.
  void addRectangle(const OdGePoint3d& corner, HostSelectionSet& picked);
  void addFound(const std::vector<OdDbObjectId>& found, HostSelectionSet& picked);
  int takeAnsweredSelection(unsigned mode_flags, HostSelectionSet& picked);
  bool addEntityAt(const OdGePoint3d& point, unsigned mode_flags, HostSelectionSet& picked);
  bool addNamedEntity(std::u16string_view line, unsigned mode_flags, HostSelectionSet& picked);

  HostDocument& m_document;
  HostInputSource& m_source;
  HostCommandLine& m_line;
  OdGePoint3d m_last_point;
  std::optional<OdGePoint3d> m_cursor;  ///< seen while the present prompt waits
  SelectionAnswer m_selection_answer;
  bool m_selection_answered = false;  ///< in the present command
  int m_unanswered = 0;
  int m_refusals = 0;
};
