#include "host/message_filter.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

/// Writes its letter when it is asked, and consumes the message or not.
class Asked : public HostEdMessageFilter {
 public:
  Asked(std::string& order, char letter, bool consumes = false)
      : m_order(order), m_letter(letter), m_consumes(consumes) {}
  bool filterMessage(const HostWindowMessage&, const OdGePoint3d&) override {
    m_order += m_letter;
    if (meanwhile) meanwhile();
    return m_consumes;
  }
  std::function<void()> meanwhile;

 private:
  std::string& m_order;
  char m_letter;
  bool m_consumes;
};

TEST(MessageFilter, the_higher_level_is_asked_first_and_within_a_level_the_later_one) {
  std::string order;
  Asked low(order, 'l'), first(order, 'a'), second(order, 'b'), high(order, 'h');
  HostMessages messages;
  messages.pushFilter(high, 2);
  messages.pushFilter(low, 0);
  messages.pushFilter(first, 1);
  messages.pushFilter(second, 1);
  EXPECT_FALSE(messages.offer({.number = WM_MOUSEMOVE}));
  EXPECT_EQ(order, "hbal");
}

TEST(MessageFilter, the_first_one_that_consumes_a_message_ends_its_road) {
  std::string order;
  Asked low(order, 'l'), high(order, 'h', true);
  HostMessages messages;
  messages.pushFilter(low, 0);
  messages.pushFilter(high, 2);
  EXPECT_TRUE(messages.offer({.number = WM_KEYDOWN}));
  EXPECT_EQ(order, "h");
}

TEST(MessageFilter, a_filter_may_leave_while_it_is_asked_and_take_another_along) {
  std::string order;
  Asked low(order, 'l'), middle(order, 'm'), high(order, 'h');
  HostMessages messages;
  messages.pushFilter(low, 0);
  messages.pushFilter(middle, 1);
  messages.pushFilter(high, 2);
  high.meanwhile = [&] {
    messages.popFilter(high);
    messages.popFilter(middle);
  };
  messages.offer({.number = WM_KEYDOWN});
  EXPECT_EQ(order, "hl");
  EXPECT_EQ(messages.size(), 1u);
}

TEST(MessageFilter, one_that_comes_while_another_is_asked_waits_for_the_next_message) {
  std::string order;
  Asked low(order, 'l'), late(order, 'n');
  HostMessages messages;
  messages.pushFilter(low, 0);
  low.meanwhile = [&] {
    messages.pushFilter(late, 5);
    low.meanwhile = nullptr;
  };
  messages.offer({.number = WM_KEYDOWN});
  EXPECT_EQ(order, "l");
  messages.offer({.number = WM_KEYDOWN});
  EXPECT_EQ(order, "lnl");
}

TEST(MessageFilter, a_filter_gets_the_world_point_of_the_cursor) {
  class Pointed : public HostEdMessageFilter {
   public:
    bool filterMessage(const HostWindowMessage&, const OdGePoint3d& point) override {
      seen = point;
      return true;
    }
    OdGePoint3d seen;
  } filter;
  HostMessages messages;
  messages.pushFilter(filter, 2);
  messages.offer({.number = WM_LBUTTONDOWN, .point = {3, 4, 0}});
  EXPECT_EQ(filter.seen, (OdGePoint3d{3, 4, 0}));
}

}  // namespace
