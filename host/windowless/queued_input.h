#pragma once

#include <deque>
#include <string_view>

#include "host/input.h"

/// Input that is given beforehand; it ends when all is taken.
class WindowlessInput : public HostInputSource {
 public:
  HostInput next() override;

  /// A line typed at the command line.
  void line(std::u16string_view text) { m_inputs.push_back(HostTypedLine{std::u16string(text)}); }
  void cancel() { m_inputs.push_back(HostCancel{}); }
  void message(const HostWindowMessage& message) { m_inputs.push_back(message); }
  /// A left press and its release at a world point.
  void click(const OdGePoint3d& point);
  /// The cursor moves to a world point.
  void move(const OdGePoint3d& point);
  /// A key goes down and up.
  void key(unsigned code);
  bool isEmpty() const { return m_inputs.empty(); }

 private:
  std::deque<HostInput> m_inputs;
};
