#include "desk/script/key_chord.h"

#include <gtest/gtest.h>

#include "desk/script/key_character.h"
#include "desk/script/key_names.h"

TEST(KeyChord, modifiers_stand_in_any_order_and_case) {
  EXPECT_EQ(parseKeyChord(u"ALT+shift+Ctrl+f4"), (KeyChord{115, {true, true, true}}));
}

TEST(KeyChord, a_modifier_is_said_once) { EXPECT_FALSE(parseKeyChord(u"Ctrl+Ctrl+A")); }

TEST(KeyChord, the_plus_key_can_be_named_by_its_mark_and_by_its_name) {
  EXPECT_EQ(parseKeyChord(u"Ctrl++")->key, 187);
  EXPECT_EQ(parseKeyChord(u"Plus")->key, 187);
}

TEST(KeyChord, nothing_names_no_key) {
  EXPECT_FALSE(parseKeyChord(u""));
  EXPECT_FALSE(parseKeyChord(u"Ctrl+"));
  EXPECT_FALSE(parseKeyChord(u"F25"));
  EXPECT_FALSE(parseKeyChord(u"F0"));
}

TEST(KeyNames, the_keys_of_the_editor_have_names) {
  EXPECT_EQ(keyByName(u"Backspace"), 8);
  EXPECT_EQ(keyByName(u"enter"), 13);
  EXPECT_EQ(keyByName(u"Esc"), 27);
  EXPECT_EQ(keyByName(u"PageDown"), 34);
  EXPECT_EQ(keyByName(u"Insert"), 45);
  EXPECT_EQ(keyByName(u"Delete"), 46);
  EXPECT_EQ(keyByName(u"z"), 90);
}

TEST(KeyNames, a_unit_that_no_key_gives_comes_as_a_composed_character) {
  EXPECT_EQ(keyOfCharacter(u'\u00E4'), (KeyOfCharacter{231, false}));
  EXPECT_EQ(keyOfCharacter(u'?'), (KeyOfCharacter{191, true}));
}

TEST(KeyCharacter, a_letter_follows_shift) {
  EXPECT_EQ(characterOfChord({'Q', {}}), u'q');
  EXPECT_EQ(characterOfChord({'Q', {.shift = true}}), u'Q');
  EXPECT_EQ(characterOfChord({'3', {.shift = true}}), u'#');
}

TEST(KeyCharacter, control_gives_control_codes) {
  EXPECT_EQ(characterOfChord({'A', {.ctrl = true}}), u'\x01');
  EXPECT_EQ(characterOfChord({13, {.ctrl = true}}), u'\n');
}

TEST(KeyCharacter, arrows_and_menu_chords_have_none) {
  EXPECT_FALSE(characterOfChord({37, {}}));
  EXPECT_FALSE(characterOfChord({'A', {.alt = true}}));
  EXPECT_FALSE(characterOfChord({46, {}}));
}
