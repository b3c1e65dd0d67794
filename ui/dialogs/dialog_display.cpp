#include "ui/dialogs/dialog_display.h"

#include <utility>

namespace dialogs {
namespace {

DialogDisplay*& current() {
  static DialogDisplay* display = nullptr;
  return display;
}

}  // namespace

DialogDisplay* display() { return current(); }

ShowingDialogs::ShowingDialogs(DialogDisplay& display) : m_before(std::exchange(current(), &display)) {}

ShowingDialogs::~ShowingDialogs() { current() = m_before; }

}  // namespace dialogs
