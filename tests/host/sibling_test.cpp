#include "host/sibling.h"

#include <gtest/gtest.h>

#include "host/regula_desk.h"

namespace {

class desk_of_number : public CKrUnknownImpl<IRegulaDesk> {
 public:
  explicit desk_of_number(int number) : m_number(number) {}
  int showMenu(HostWindow*, const char16_t*, const HostMenu&, int, int, int) override { return m_number; }
  void search(HostWindow*, const char16_t*, int, int) override {}

 private:
  int m_number;
};

/// Another product, which has no such interface.
class stranger : public CKrUnknownImpl<IKrUnknown> {};

int shown() {
  const auto desk = host::sibling<IRegulaDesk>();
  return desk ? desk->showMenu(nullptr, nullptr, {}, 0, 0, -1) : 0;
}

}  // namespace

TEST(Sibling, nothing_is_found_where_nobody_offers_it) {
  stranger other;
  const host::SiblingOffer offer(other);
  EXPECT_FALSE(host::sibling<IRegulaDesk>());
}

TEST(Sibling, an_offer_is_found_as_long_as_it_lives) {
  desk_of_number one(1);
  {
    const host::SiblingOffer offer(one);
    EXPECT_EQ(shown(), 1);
  }
  EXPECT_EQ(shown(), 0);
  EXPECT_EQ(one.references(), 1) << "a lookup kept a reference";
}

TEST(Sibling, the_newest_offer_counts) {
  desk_of_number one(1), two(2);
  const host::SiblingOffer older(one);
  {
    const host::SiblingOffer newer(two);
    EXPECT_EQ(shown(), 2);
  }
  EXPECT_EQ(shown(), 1);
}
