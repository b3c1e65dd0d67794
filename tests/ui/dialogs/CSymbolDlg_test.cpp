#include "ui/dialogs/CSymbolDlg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/ui/dialogs/dialog_host.h"
#include "ui/dialogs/recent_symbols.h"

namespace {

using testing::ElementsAre;

const mtext::format::string kFont{.font = u"Liberation Sans"};

TEST(SymbolDialog, begins_with_the_degree_sign_in_its_block) {
  const CSymbolDlg dialog(kFont, nullptr);
  EXPECT_EQ(dialog.selected(), U'\u00B0');
  EXPECT_THAT(dialog.characters(), testing::Contains(U'\u00B0'));
  EXPECT_EQ(dialog.blocks().at(dialog.block()).first, U'\u00A1');
}

TEST(SymbolDialog, shows_the_characters_of_a_block) {
  CSymbolDlg dialog(kFont, nullptr);
  dialog.showBlock(0);
  EXPECT_EQ(dialog.characters().size(), 94u);
  EXPECT_EQ(dialog.characters().front(), U'!');
  EXPECT_EQ(dialog.selected(), U'\u00B0');
}

TEST(SymbolDialog, a_search_selects_what_it_finds_first_and_its_end_goes_back_to_the_block) {
  CSymbolDlg dialog(kFont, nullptr);
  const auto block = dialog.characters();
  dialog.search(u"empty set");
  EXPECT_EQ(dialog.selected(), U'\u2205');
  dialog.search(u" ");
  EXPECT_EQ(dialog.characters(), block);
  EXPECT_EQ(dialog.selected(), U'\u2205');
}

TEST(SymbolDialog, a_search_that_finds_nothing_leaves_the_selection) {
  CSymbolDlg dialog(kFont, nullptr);
  dialog.search(u"no such sign anywhere");
  EXPECT_TRUE(dialog.characters().empty());
  EXPECT_EQ(dialog.selected(), U'\u00B0');
}

TEST(SymbolDialog, remembers_what_was_used_newest_first_and_once) {
  DialogHost host;
  ScriptedDisplay user;
  for (const char32_t each : {U'\u00B1', U'\u2205', U'\U0001D6FC', U'\u00B1'}) {
    user.on_symbol = [each](CSymbolDlg& dialog) {
      dialog.select(each);
      return true;
    };
    EXPECT_TRUE(hostGetSymbol(kFont).has_value());
  }
  const CSymbolDlg next(kFont, &host.profile());
  EXPECT_THAT(next.recent(), ElementsAre(U'\u00B1', U'\U0001D6FC', U'\u2205'));
  EXPECT_EQ(next.selected(), U'\u00B1');
}

TEST(SymbolDialog, cancelled_gives_nothing_and_remembers_nothing) {
  DialogHost host;
  ScriptedDisplay user;
  EXPECT_EQ(hostGetSymbol(kFont), std::nullopt);
  EXPECT_TRUE(dialogs::recent_symbols(host.profile()).empty());
}

TEST(SymbolDialog, gives_two_units_for_a_character_beyond_the_first_plane) {
  ScriptedDisplay user;
  user.on_symbol = [](CSymbolDlg& dialog) {
    dialog.search(u"U+1D6FC");
    return true;
  };
  EXPECT_EQ(hostGetSymbol(kFont), u"\U0001D6FC");
}

TEST(RecentSymbols, are_as_many_as_the_dialog_has_places_for) {
  HostMemoryProfile profile;
  for (char32_t each = U'A'; each <= U'Z'; ++each) dialogs::remember_symbol(profile, each);
  EXPECT_EQ(dialogs::recent_symbols(profile).size(), dialogs::kMostRecent);
  EXPECT_EQ(dialogs::recent_symbols(profile).front(), U'Z');
}

TEST(RecentSymbols, what_a_profile_holds_by_mistake_is_left_out) {
  HostMemoryProfile profile;
  profile.setText(u"Symbols", u"Recent", u"A\x07 A\xD800\u00B0");
  EXPECT_THAT(dialogs::recent_symbols(profile), ElementsAre(U'A', U'\u00B0'));
}

}  // namespace
