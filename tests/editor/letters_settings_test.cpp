#include "editor/letters_settings.h"

#include <gtest/gtest.h>

#include <array>

#include "host/settings.h"
#include "host/translate.h"
#include "host/windowless/application.h"
#include "od/db/OdDbDatabase.h"

namespace editing {
namespace {

using mtext::marks::default_letters;
using mtext::marks::letters_dictionary;

void add(HostSettings& node, std::u16string_view key, std::u16string_view lower, std::u16string_view upper) {
  HostSettings& child = node.make(key);
  child.setValue(u"name", u"a language");
  child.setValue(u"lower", lower);
  child.setValue(u"upper", upper);
}

/// A root of settings with the alphabets "eng" and "rus", the second with placeholders.
HostSettings two_alphabets() {
  HostSettings root;
  HostSettings& alphabets = root.make(u"NamedListAlphabet");
  add(alphabets, u"eng", u"abc", u"ABC");
  add(alphabets, u"rus", u"-", u"-");
  return root;
}

/// A language pack that translates the letters of `two_alphabets`, in force while it lives.
class russian_pack {
 public:
  russian_pack() { host::set_translations(table); }
  ~russian_pack() { host::set_translations({}); }
  russian_pack(const russian_pack&) = delete;
  russian_pack& operator=(const russian_pack&) = delete;

 private:
  static constexpr auto table =
      std::to_array<TranslatedText>({{u"abc", u"\u0430\u0431\u0432\u0433"}, {u"ABC", u"\u0410\u0411\u0412"}});
};

TEST(FromIparam, every_child_is_an_alphabet_in_the_order_of_the_settings) {
  const HostSettings root = two_alphabets();
  EXPECT_EQ(
      from_iparam(root.child(u"NamedListAlphabet")),
      (letters_dictionary{{u"eng", u"a language", u"abc", u"ABC"}, {u"rus", u"a language", u"-", u"-"}}));
}

TEST(FromIparam, a_missing_value_reads_as_an_empty_string) {
  HostSettings node;
  node.make(u"eng").setValue(u"lower", u"abc");
  EXPECT_EQ(from_iparam(&node), (letters_dictionary{{u"eng", u"", u"abc", u""}}));
}

TEST(FromIparam, no_node_and_a_node_without_children_give_an_empty_dictionary) {
  const HostSettings empty;
  EXPECT_TRUE(from_iparam(nullptr).empty());
  EXPECT_TRUE(from_iparam(&empty).empty());
}

TEST(SessionLetters, without_alphabets_in_the_settings_are_the_default_ones) {
  const HostSettings empty;
  EXPECT_EQ(session_letters(nullptr, u""), default_letters());
  EXPECT_EQ(session_letters(&empty, u"rus"), default_letters());
}

TEST(SessionLetters, the_translation_replaces_the_letters_of_the_users_language_and_nothing_else) {
  const russian_pack pack;
  const HostSettings root = two_alphabets();
  EXPECT_EQ(
      session_letters(&root, u"rus"),
      (letters_dictionary{{u"eng", u"a language", u"abc", u"ABC"},
                          {u"rus", u"a language", u"\u0430\u0431\u0432\u0433", u"\u0410\u0411\u0412"}}));
}

TEST(SessionLetters, with_a_language_for_which_the_settings_hold_no_alphabet_the_list_stays_as_it_was) {
  const russian_pack pack;
  const HostSettings root = two_alphabets();
  EXPECT_EQ(session_letters(&root, u"deu"), from_iparam(root.child(u"NamedListAlphabet")));
}

TEST(SessionLetters, without_a_language_nothing_is_translated) {
  const russian_pack pack;
  const HostSettings root = two_alphabets();
  EXPECT_EQ(session_letters(&root, u""), from_iparam(root.child(u"NamedListAlphabet")));
}

TEST(SessionLetters, a_translation_that_leaves_one_case_as_it_is_counts_as_none) {
  constexpr auto half = std::to_array<TranslatedText>({{u"abc", u"xyz"}});
  host::set_translations(half);
  const HostSettings root = two_alphabets();
  EXPECT_EQ(session_letters(&root, u"rus"), from_iparam(root.child(u"NamedListAlphabet")));
  host::set_translations({});
}

TEST(SessionLetters, the_first_alphabet_itself_may_be_the_users) {
  const russian_pack pack;
  const HostSettings root = two_alphabets();
  EXPECT_EQ(session_letters(&root, u"eng")[0].upper, u"\u0410\u0411\u0412");
}

TEST(SessionLetters, of_the_running_application_are_those_of_its_settings) {
  WindowlessApplication application(OdDbDatabase::createEmpty());
  add(application.settings().make(u"NamedListAlphabet"), u"ell", u"\u03b1\u03b2", u"\u0391\u0392");
  EXPECT_EQ(session_letters(),
            (letters_dictionary{{u"ell", u"a language", u"\u03b1\u03b2", u"\u0391\u0392"}}));
}

TEST(SessionLetters, without_an_application_are_the_default_ones) {
  EXPECT_EQ(session_letters(), default_letters());
}

}  // namespace
}  // namespace editing
