#pragma once

#include <functional>
#include <future>
#include <string_view>
#include <vector>

class QWidget;

/// Whether the user gets a button to leave a long work.
enum class CancelButton { shown, hidden };

/// Long works in threads beside the window.
class Progress {
 public:
  /// `parent` has to outlive this.
  explicit Progress(QWidget& parent) : m_parent(parent) {}
  /// Waits for works that were left.
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Does `work` while the window shows what is done if it takes longer than a moment, and takes no input.
  /// What `work` throws comes through. When the user leaves, OdError is thrown, and `work` goes on alone to
  /// its end, unheard: it has to own what it touches.
  void run(std::u16string_view what, CancelButton cancel, std::function<void()> work);

 private:
  QWidget& m_parent;
  std::vector<std::future<void>> m_left;
};
