#include "desk/window/progress.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProgressDialog>
#include <QTimer>

#include "desk/window/qt_text.h"
#include "od/base/OdError.h"
#include "od/base/unicode.h"

namespace {

constexpr int kMomentMilliseconds = 300;
constexpr int kLookEveryMilliseconds = 10;

bool isDone(const std::future<void>& work) {
  return work.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

/// Waits with the window painted but deaf; whether the work is done.
bool waitAMoment(const std::future<void>& work) {
  for (int waited = 0; waited < kMomentMilliseconds && !isDone(work); waited += kLookEveryMilliseconds) {
    work.wait_for(std::chrono::milliseconds(kLookEveryMilliseconds));
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  return isDone(work);
}

/// Shows the work until it is done or left; whether it is done.
bool waitWithDialog(QWidget& parent, const QString& what, CancelButton cancel,
                    const std::future<void>& work) {
  QProgressDialog dialog(what, QObject::tr("Cancel"), 0, 0, &parent);
  dialog.setWindowModality(Qt::WindowModal);
  dialog.setMinimumDuration(0);
  if (cancel == CancelButton::hidden) dialog.setCancelButton(nullptr);
  dialog.show();
  QEventLoop loop;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &loop, [&] {
    const bool left = cancel == CancelButton::shown && dialog.wasCanceled();
    if (left || isDone(work)) loop.quit();
  });
  look.start(kLookEveryMilliseconds);
  loop.exec();
  return isDone(work);
}

}  // namespace

Progress::~Progress() {
  for (const std::future<void>& work : m_left) work.wait();
}

void Progress::run(std::u16string_view what, CancelButton cancel, std::function<void()> work) {
  std::future<void> running = std::async(std::launch::async, std::move(work));
  if (!waitAMoment(running) && !waitWithDialog(m_parent, toQt(what), cancel, running)) {
    m_left.push_back(std::move(running));
    throw OdError(odToUtf8(what) + " was cancelled.");
  }
  running.get();
}
