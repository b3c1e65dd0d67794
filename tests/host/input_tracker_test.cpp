#include "host/input_tracker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/windowless/application.h"

namespace {

using testing::ElementsAre;

/// Follows the cursor, and shows a drawable from its second point on.
class Follower : public HostEdPointTracker {
 public:
  bool filterMessage(const HostWindowMessage& message, const OdGePoint3d&) override {
    offered.push_back(message.number);
    return false;
  }
  void setPoint(const OdGePoint3d& point) override { points.push_back(point); }
  std::vector<OdGiDrawable*> drawables() override {
    if (points.size() < 2) return {};
    return {frame.get()};
  }
  void ended() override { ++ends; }

  OdGiDrawablePtr frame = odNew<OdGiDrawable>();
  std::vector<unsigned> offered;
  std::vector<OdGePoint3d> points;
  int ends = 0;
};

class Tracker : public testing::Test {
 protected:
  WindowlessApplication application{OdDbDatabase::createEmpty()};
  WindowlessInput& input = application.input();
  HostPromptLoop& prompt = application.document().prompt();
  HostViewOverlay& overlay = application.document().view().overlay();
  Follower follower;
  OdGePoint3d point;
};

TEST_F(Tracker, it_gets_every_moved_point_and_the_pressed_one) {
  input.move({1, 0, 0});
  input.move({2, 0, 0});
  input.click({3, 0, 0});
  prompt.getPoint({.prompt = u"Corner", .tracker = &follower}, point);
  EXPECT_THAT(follower.points, ElementsAre(OdGePoint3d{1, 0, 0}, OdGePoint3d{2, 0, 0}, OdGePoint3d{3, 0, 0}));
}

TEST_F(Tracker, it_is_offered_the_messages_as_a_filter_while_the_prompt_waits) {
  input.move({1, 0, 0});
  input.click({3, 0, 0});
  prompt.getPoint({.prompt = u"Corner", .tracker = &follower}, point);
  EXPECT_THAT(follower.offered, ElementsAre(WM_MOUSEMOVE, WM_LBUTTONDOWN));
  EXPECT_EQ(application.document().messages().size(), 0u);
}

TEST_F(Tracker, its_drawables_stand_above_the_drawing_while_the_prompt_waits) {
  class Looks : public HostEdMessageFilter {
   public:
    explicit Looks(HostViewOverlay& overlay) : m_overlay(overlay) {}
    bool filterMessage(const HostWindowMessage&, const OdGePoint3d&) override {
      layers.push_back(m_overlay.layers().size());
      return false;
    }
    std::vector<std::size_t> layers;

   private:
    HostViewOverlay& m_overlay;
  } looks(overlay);
  application.document().messages().pushFilter(looks, 2);
  for (const double x : {1, 2, 3}) input.move({x, 0, 0});
  input.cancel();
  prompt.getPoint({.prompt = u"Corner", .tracker = &follower}, point);
  EXPECT_THAT(looks.layers, ElementsAre(0u, 0u, 1u));
  EXPECT_TRUE(overlay.layers().empty());
}

TEST_F(Tracker, it_is_told_the_end_of_the_wait_however_that_comes) {
  input.cancel();
  prompt.getPoint({.prompt = u"Corner", .tracker = &follower}, point);
  prompt.getPoint({.prompt = u"Corner", .tracker = &follower}, point);
  EXPECT_EQ(follower.ends, 2);
}

TEST_F(Tracker, a_filter_that_consumes_a_move_keeps_it_from_the_tracker) {
  class Consumes : public HostEdMessageFilter {
   public:
    bool filterMessage(const HostWindowMessage&, const OdGePoint3d&) override { return true; }
  } consumes;
  application.document().messages().pushFilter(consumes, 2);
  input.move({1, 0, 0});
  input.cancel();
  prompt.getPoint({.prompt = u"Corner", .tracker = &follower}, point);
  EXPECT_TRUE(follower.points.empty());
}

}  // namespace
