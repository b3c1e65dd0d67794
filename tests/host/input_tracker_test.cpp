#include "host/input_tracker.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "host/windowless/application.h"
#include "od/gi/OdGiRecorder.h"

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

TEST_F(Tracker, a_rubber_line_runs_from_the_base_point_to_the_cursor_until_the_prompt_is_answered) {
  class Looks : public HostEdMessageFilter {
   public:
    explicit Looks(HostViewOverlay& overlay) : m_overlay(overlay) {}
    bool filterMessage(const HostWindowMessage&, const OdGePoint3d&) override {
      OdGiRecorder recorder;
      for (const auto& layer : m_overlay.layers()) recorder.record(*layer.drawable);
      for (const auto& line : recorder.primitives()) seen.push_back(line.contours[0].back());
      return false;
    }
    std::vector<OdGePoint3d> seen;

   private:
    HostViewOverlay& m_overlay;
  } looks(overlay);
  application.document().messages().pushFilter(looks, 2);
  for (const double x : {1, 2, 3}) input.move({x, 0, 0});
  input.line(u"12<90");
  EXPECT_EQ(prompt.getPoint({.prompt = u"To", .base_point = OdGePoint3d{}, .rubber_line = true}, point),
            kAnswerValue);
  EXPECT_THAT(looks.seen, ElementsAre(OdGePoint3d{1, 0, 0}, OdGePoint3d{2, 0, 0}));
  EXPECT_TRUE(point.isEqualTo({0, 12, 0}));
  EXPECT_TRUE(overlay.layers().empty());
}

TEST_F(Tracker, with_a_rubber_line_what_is_typed_counts_from_its_beginning) {
  const HostPromptRequest request{.prompt = u"To", .base_point = OdGePoint3d{10, 10, 0}, .rubber_line = true};
  input.move({10, 40, 0});
  input.line(u"7");
  prompt.getPoint(request, point);
  EXPECT_TRUE(point.isEqualTo({10, 17, 0}));
  input.move({10, 40, 0});
  input.line(u"<0");
  prompt.getPoint(request, point);
  EXPECT_TRUE(point.isEqualTo({40, 10, 0}));
  input.line(u"@1,2");
  prompt.getPoint(request, point);
  EXPECT_TRUE(point.isEqualTo({11, 12, 0}));
  input.line(u"5");  // no cursor was seen yet at this prompt
  input.cancel();
  EXPECT_EQ(prompt.getPoint(request, point), kAnswerCancel);
}

TEST_F(Tracker, one_that_follows_messages_is_shown_anew_after_each_move) {
  class Filters : public HostEdInputTracker {
   public:
    bool filterMessage(const HostWindowMessage& message, const OdGePoint3d&) override {
      moves += message.number == WM_MOUSEMOVE;
      return false;
    }
    std::vector<OdGiDrawable*> drawables() override {
      asked.push_back(moves);
      return {frame.get()};
    }
    OdGiDrawablePtr frame = odNew<OdGiDrawable>();
    std::vector<int> asked;
    int moves = 0;
  } filters;
  input.move({1, 0, 0});
  input.cancel();
  prompt.getPoint({.prompt = u"To", .tracker = &filters}, point);
  EXPECT_THAT(filters.asked, ElementsAre(0, 1));
}

}  // namespace
