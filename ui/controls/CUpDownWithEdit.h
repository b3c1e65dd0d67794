#pragma once

#include <cstdint>
#include <functional>

#include "ui/controls/CEditEx.h"
#include "ui/controls/CUpDownCtrlEx.h"

/// What a spin edit counts in.
struct spin_range {
  std::int32_t factor;  ///< steps to one unit of the value; above 0
  double low;           ///< lowest value, a multiple of a step
  double high;          ///< highest value, a multiple of a step
};

/// A real number with arrows. A value has the position round(value times the factor), half away from zero;
/// an arrow moves one position. The number is shown with three digits behind its point.
class CUpDownWithEdit {
 public:
  CUpDownWithEdit(const spin_range& range, double value);
  CUpDownWithEdit(const CUpDownWithEdit&) = delete;
  CUpDownWithEdit& operator=(const CUpDownWithEdit&) = delete;

  /// Takes a value that the user gave; false puts the old one back.
  std::function<bool(double)> changed;

  /// The box: the user's text, Enter and leaving go to it.
  CEditEx& edit() { return m_edit; }
  const CEditEx& edit() const { return m_edit; }
  const CUpDownCtrlEx& spin() const { return m_spin; }
  /// Position of the number that was shown last; the lowest one after `clear`.
  std::int32_t position() const { return m_position; }

  /// An arrow was pressed: `delta` positions up, or down if negative.
  void arrow(std::int32_t delta);
  /// Shows a value of the text. It may lie out of the range; the arrows go on from the nearest limit.
  void set(double value);
  /// Shows no number: several values are meant. The arrows go on from the lowest one.
  void clear();

 private:
  bool confirmText(const std::u16string& text);
  /// Shows `position` and has the owner take it; false if the owner did not.
  bool change(std::int32_t position);
  void showPosition(std::int32_t position);
  double valueAt(std::int32_t position) const;

  std::int32_t m_factor;
  CUpDownCtrlEx m_spin;
  CEditEx m_edit;
  std::int32_t m_position = 0;
};
