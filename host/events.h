#pragma once

#include <deque>
#include <string>
#include <string_view>
#include <vector>

class HostWindow;

/// Answers of a question box.
enum HostBoxAnswer : int { kBoxYes = 1, kBoxNo = 2, kBoxCancel = 3 };

/// Kinds of box, by their level.
enum HostBoxLevel : int { kBoxQuestion = 3, kBoxAlert = 12 };

/// Sets of buttons, by their style.
enum HostBoxStyle : int { kBoxButtonsOfLevel = 7 };

/// The service that asks and alerts in boxes.
class IEvents {
 public:
  virtual ~IEvents() = default;
  /// Shows a box and waits. The text may end in a help key between dollar signs ("Save?$IDH_KEY$"), which is
  /// not shown. `owner` may be null. Style 7 has the buttons of the level: a question yes, no, cancel, an
  /// alert one.
  virtual int box(int level, std::u16string_view text, HostWindow* owner, int style) = 0;
};

/// The running application's box service; null if none runs.
IEvents* Get_IEvents();

/// Tells the user something in an alert of the running application; nothing happens if none runs.
void hostAlert(std::u16string_view text);

/// A box text with its help key cut off; the key is empty if there is none.
struct HostBoxText {
  std::u16string shown;
  std::u16string help_key;
};
HostBoxText splitBoxText(std::u16string_view text);

/// Boxes answered beforehand. A question without an answer is cancelled and counted.
class HostAnsweredEvents : public IEvents {
 public:
  int box(int level, std::u16string_view text, HostWindow* owner, int style) override;

  void answer(HostBoxAnswer answer) { m_answers.push_back(answer); }
  /// What was shown, in its order, without help keys.
  const std::vector<std::u16string>& shown() const { return m_shown; }
  /// Questions that found no answer.
  int unanswered() const { return m_unanswered; }
  /// Answers that no question has used.
  std::size_t answersLeft() const { return m_answers.size(); }

 private:
  std::deque<HostBoxAnswer> m_answers;
  std::vector<std::u16string> m_shown;
  int m_unanswered = 0;
};
