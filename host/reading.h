#pragma once

#include <functional>
#include <string>

#include "host/keyword_list.h"
#include "od/ge/OdGePoint3d.h"

/// How one prompt takes what comes.
struct HostReading {
  std::u16string prompt;  ///< as it is shown
  HostKeywordList keywords;
  std::u16string default_answer;
  bool may_be_empty = false;
  bool takes_blanks = false;  ///< a line of blanks alone is no empty one
  bool is_command = false;    ///< the command line's own prompt
  /// What is told when something else is typed: one sentence.
  std::u16string wanted;
  /// Takes a typed line; false when it is not what is wanted.
  std::function<bool(std::u16string_view line)> take_line;
  /// Takes a press in the view; null when presses mean nothing here.
  std::function<bool(const OdGePoint3d& point)> take_press = nullptr;
};
