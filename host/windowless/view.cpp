#include "host/windowless/view.h"

namespace {

constexpr double kScreenWidth = 800;
constexpr double kScreenHeight = 600;

}  // namespace

WindowlessView::WindowlessView() {
  m_view.setDeviceRect({0, 0, kScreenWidth, kScreenHeight});
  // A pixel is a unit until somebody zooms.
  m_view.setView({0, 0, 1}, {0, 0, 0}, {0, 1, 0}, kScreenWidth, kScreenHeight);
}
