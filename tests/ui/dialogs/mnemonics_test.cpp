#include "ui/dialogs/mnemonics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using dialogs::with_mnemonics;
using testing::ElementsAre;

TEST(Mnemonics, are_the_first_letters_of_words) {
  EXPECT_THAT(with_mnemonics({u"Auto Height", u"Manual Height", u"Width"}),
              ElementsAre(u"&Auto Height", u"&Manual Height", u"&Width"));
}

TEST(Mnemonics, none_is_there_twice_in_whatever_case) {
  EXPECT_THAT(with_mnemonics({u"Column:", u"Column Number", u"count"}),
              ElementsAre(u"&Column:", u"Column &Number", u"c&ount"));
}

TEST(Mnemonics, are_letters_of_every_alphabet) {
  EXPECT_THAT(with_mnemonics({u"\u0412\u0441\u0435\u0433\u043E:", u"\u0432\u044B"}),
              ElementsAre(u"&\u0412\u0441\u0435\u0433\u043E:", u"\u0432&\u044B"));
}

TEST(Mnemonics, a_label_without_a_free_letter_stays) {
  EXPECT_THAT(with_mnemonics({u"a", u"A", u"...", u""}), ElementsAre(u"&a", u"A", u"...", u""));
}

TEST(Mnemonics, a_sign_of_the_label_itself_is_doubled) {
  EXPECT_THAT(with_mnemonics({u"& Co"}), ElementsAre(u"&& &Co"));
}

}  // namespace
