#include "host/timer.h"

#include <gtest/gtest.h>

#include "host/timer_clients.h"
#include "host/windowless/clock.h"
#include "host/windowless/window.h"

namespace {

struct Blinks {
  int count = 0;
  bool reloads = true;
};

void blink(void* data, HostTimer& timer) {
  auto* blinks = static_cast<Blinks*>(data);
  ++blinks->count;
  if (blinks->reloads) timer.reload();
}

TEST(Timer, a_reload_of_7_fires_at_the_eighth_tick_which_is_after_400_ms) {
  WindowlessClock clock;
  Blinks blinks;
  CCALLBACK_CLIENT client(blink, &blinks);
  HostTimer timer(clock);
  timer.addClient(client);
  timer.start(7);
  clock.advance(399);
  EXPECT_EQ(blinks.count, 0);
  clock.advance(1);
  EXPECT_EQ(blinks.count, 1);
}

TEST(Timer, a_client_that_reloads_fires_every_400_ms) {
  WindowlessClock clock;
  Blinks blinks;
  CCALLBACK_CLIENT client(blink, &blinks);
  HostTimer timer(clock);
  timer.addClient(client);
  timer.start(7);
  clock.advance(4000);
  EXPECT_EQ(blinks.count, 10);
}

TEST(Timer, without_a_reload_the_count_stays_at_minus_one_and_nothing_fires_again) {
  WindowlessClock clock;
  Blinks blinks{.reloads = false};
  CCALLBACK_CLIENT client(blink, &blinks);
  HostTimer timer(clock);
  timer.addClient(client);
  timer.start(1);
  clock.advance(10000);
  EXPECT_EQ(blinks.count, 1);
  EXPECT_EQ(timer.count(), -1);
}

TEST(Timer, every_client_is_called_once_a_fire) {
  WindowlessClock clock;
  WindowlessWindow window;
  CWND_CLIENT posts(window, 1024);
  CSYNC_CLIENT signals;
  HostTimer timer(clock);
  timer.addClient(posts);
  timer.addClient(signals);
  timer.start(0);
  clock.advance(50);
  EXPECT_EQ(window.posted(), std::vector<unsigned>{1024});
  EXPECT_TRUE(signals.takeSignal());
  EXPECT_FALSE(signals.takeSignal());
}

TEST(Timer, a_client_may_leave_while_it_is_called) {
  WindowlessClock clock;
  CSYNC_CLIENT behind;
  struct Data {
    HostTimer* timer;
    ITIMER_CLIENT* removes;
  };
  HostTimer timer(clock);
  Data data{&timer, &behind};
  CCALLBACK_CLIENT remover(
      [](void* raw, HostTimer& fired) { fired.removeClient(*static_cast<Data*>(raw)->removes); }, &data);
  timer.addClient(remover);
  timer.addClient(behind);
  timer.start(0);
  clock.advance(50);
  EXPECT_FALSE(behind.takeSignal());
}

TEST(Timer, a_stopped_timer_and_one_that_is_gone_fire_no_more) {
  WindowlessClock clock;
  CSYNC_CLIENT signals;
  {
    HostTimer timer(clock);
    timer.addClient(signals);
    timer.start(0);
    timer.stop();
    clock.advance(100);
    timer.start(3);
  }
  clock.advance(1000);
  EXPECT_FALSE(signals.takeSignal());
}

TEST(WindowlessClock, it_stands_still_until_it_is_moved_and_ticks_in_the_order_of_time) {
  WindowlessClock clock;
  std::string order;
  clock.start(30, [&] { order += 'a'; });
  clock.start(50, [&] { order += 'b'; });
  EXPECT_EQ(order, "");
  clock.advance(100);
  EXPECT_EQ(order, "abaab");
  EXPECT_EQ(clock.now(), 100);
}

TEST(WindowlessClock, a_tick_may_stop_itself) {
  WindowlessClock clock;
  int ticks = 0;
  HostTickSource::Subscription own = 0;
  own = clock.start(10, [&] {
    ++ticks;
    clock.stop(own);
  });
  clock.advance(100);
  EXPECT_EQ(ticks, 1);
}

}  // namespace
