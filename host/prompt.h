#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "od/ge/OdGePoint3d.h"

class HostEdInputTracker;
class HostSelectionSet;

/// Answers of a prompt that are no keyword; a keyword's number counts from 0.
enum HostAnswer : int {
  kAnswerValue = -1,
  kAnswerCancel = -2,
  /// The input ended and the prompt stays unanswered. Whoever loops on a prompt has to leave on it.
  kAnswerEndOfInput = -3,
  /// An empty line where no default stands and nothing may be given.
  kAnswerNothing = -4,
};

/// Bits of the flag word of `read_input`.
enum HostReadFlags : unsigned {
  kReadWholeLine = 1,      ///< blanks belong to the text; they never end it
  kReadKeepBlanks = 2,     ///< blanks at the ends stay
  kReadMayBeEmpty = 4,     ///< an empty line is a value
  kReadOnlyWaits = 128,    ///< nothing is read: an empty line ends the wait, typed text is refused
  kReadCommand = 256,      ///< the command line's own prompt: the end of the input leaves nothing unanswered
  kReadBlanksAlone = 512,  ///< with `kReadKeepBlanks`: a line of blanks alone is no empty one
};

/// Mode flags of `select`; bits without a name mean nothing here.
enum HostSelectFlags : unsigned {
  kSelectMany = 0,
  kSelectSingle = 0x2000,         ///< the first entity ends the selection
  kSelectAttributes = 0x1000000,  ///< a press on a text of an insert takes that text
  kSelectOne = 0xA000,            ///< one entity, as commands that edit one ask for it
};

/// What is asked.
struct HostPromptRequest {
  /// The question, without keywords, default and colon; those are added. One that tells its keywords in
  /// square brackets itself gets no others.
  std::u16string prompt;
  /// Keywords, blank between: "Height Justify *TL". Capitals make the abbreviation; a star hides it from the
  /// user. Names that hold in every language follow behind "_".
  std::u16string keywords = {};
  /// What an empty line answers; shown in angle brackets. It is read as if typed.
  std::u16string default_answer = {};
  /// World point that relative points count from; without it the last point given.
  std::optional<OdGePoint3d> base_point = {};
  /// Normal of the plane in which an angle is asked for.
  OdGeVector3d normal = OdGeVector3d::kZAxis;
  /// Follows the cursor while the prompt waits; owned by the caller.
  HostEdInputTracker* tracker = nullptr;
  /// A line from the base point to the cursor is shown, and what is typed counts from there: `12` along the
  /// line,
  /// `<30` turns it to 30 degrees, `12<30` does both.
  bool rubber_line = false;
  /// An empty line without a default answers `kAnswerNothing`; otherwise it is refused.
  bool may_be_empty = false;
};

/// Asks the user. Every operation prints its prompt, waits, tells nonsense in one sentence and asks again,
/// and returns a `HostAnswer` or the number of a keyword. The value is written for `kAnswerValue` alone.
class HostEdPrompt {
 public:
  virtual ~HostEdPrompt() = default;

  /// A point, pressed in the view or typed; in world coordinates.
  virtual int getPoint(const HostPromptRequest& request, OdGePoint3d& point) = 0;
  /// A line of text, with `keywords` as in a request and `HostReadFlags`. `answer` may be null.
  virtual int read_input(std::u16string_view prompt, std::u16string_view keywords, unsigned flags,
                         std::u16string* answer = nullptr) = 0;
  /// Entities: what stands under a press in the view or under a typed point, what lies in a rectangle that a
  /// press on nothing begins, the newest one for the word `Last`, or every one for `All`. With the bit
  /// `kSelectSingle` the first one answers; else an empty line ends the selection. An empty line that leaves
  /// nothing selected answers `kAnswerNothing`.
  virtual int select(std::u16string_view prompt, unsigned mode_flags, HostSelectionSet& picked) = 0;
  /// A line of text; with `whole_line` its blanks belong to it, else it ends at the first.
  virtual int getString(const HostPromptRequest& request, bool whole_line, std::u16string& text) = 0;
  /// A number.
  virtual int getReal(const HostPromptRequest& request, double& value) = 0;
  /// A length: a number, or the distance of a point from the base point (two points without one).
  virtual int getDistance(const HostPromptRequest& request, double& value) = 0;
  /// An angle in radians, typed in degrees, or the direction from the base point to a point in the plane of
  /// the request, as texts in that plane count their rotation.
  virtual int getAngle(const HostPromptRequest& request, double& radians) = 0;
  /// One of the keywords.
  virtual int getKeyword(const HostPromptRequest& request) = 0;
  /// Writes a line to the command line.
  virtual void message(std::u16string_view text) = 0;
  /// The same for the reason why a command does nothing; a script that meets one has not done its work.
  virtual void refuse(std::u16string_view reason) = 0;
};
