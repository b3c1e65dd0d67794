#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace {

/// One application without a screen around all tests. It ends before the process does: the toolkit's devices
/// do not outlive what they are made of.
class OffscreenApplication : public testing::Environment {
 public:
  void SetUp() override {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    m_application = std::make_unique<QApplication>(m_count, m_arguments);
  }
  void TearDown() override { m_application.reset(); }

 private:
  char m_name[5] = "test";
  char* m_arguments[2] = {m_name, nullptr};
  int m_count = 1;
  std::unique_ptr<QApplication> m_application;
};

[[maybe_unused]] const testing::Environment* const registered =
    testing::AddGlobalTestEnvironment(new OffscreenApplication);

}  // namespace
