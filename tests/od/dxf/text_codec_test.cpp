#include "od/dxf/text_codec.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using dxf::Form;
using dxf::TextCodec;

TextCodec western(Form form = Form::ascii) { return TextCodec::code_page("ANSI_1252", form); }

TEST(TextCodec, a_control_character_is_a_caret_and_a_letter_in_a_text_drawing) {
  EXPECT_EQ(western().decode("a^Ib^Jc"), u"a\tb\nc");
  EXPECT_EQ(western().encode(u"a\tb\nc\r"), "a^Ib^Jc^M");
}

TEST(TextCodec, a_caret_is_followed_by_a_blank_in_a_text_drawing) {
  EXPECT_EQ(western().decode("\\S1^ 2;"), u"\\S1^2;");
  EXPECT_EQ(western().encode(u"\\S1^2;"), "\\S1^ 2;");
}

TEST(TextCodec, a_binary_drawing_knows_no_carets) {
  EXPECT_EQ(western(Form::binary).decode("^J\n^*"), u"^J\n^*");
  EXPECT_EQ(western(Form::binary).encode(u"^J\n^*"), "^J\n^*");
}

TEST(TextCodec, a_zero_never_ends_a_string_of_a_binary_drawing) {
  EXPECT_EQ(western(Form::binary).encode(std::u16string_view(u"a\0b", 3)), "a\\U+0000b");
  EXPECT_EQ(western().encode(std::u16string_view(u"a\0b", 3)), "a^@b");
  EXPECT_EQ(western().decode("a^@b"), std::u16string(u"a\0b", 3));
}

TEST(TextCodec, odd_carets_are_read_leniently) {
  EXPECT_EQ(western().decode("^j"), u"\n");
  EXPECT_EQ(western().decode("end^"), u"end^");
  EXPECT_EQ(western().decode("^^"), u"\x1E");
  EXPECT_EQ(western().decode("^\xE9"), u"^é");
}

TEST(TextCodec, a_trail_byte_that_looks_like_a_caret_is_none) {
  const TextCodec chinese = TextCodec::code_page("ANSI_936", Form::ascii);
  const std::u16string text = chinese.decode("\x81\x5E I");
  EXPECT_EQ(text, u"乛 I");
  EXPECT_EQ(chinese.encode(text), "\x81\x5E I");
}

TEST(TextCodec, what_the_code_page_lacks_is_escaped) {
  EXPECT_EQ(western().encode(u"∅ü"), "\\U+2205\xFC");
  EXPECT_EQ(western().encode(u"😀"), "\\U+D83D\\U+DE00");
  EXPECT_EQ(western().escape_missing(u"∅ü"), u"\\U+2205ü");
}

TEST(TextCodec, an_escape_that_was_typed_stays) {
  EXPECT_EQ(western().decode("94\\U+00B0"), u"94\\U+00B0");
  EXPECT_EQ(TextCodec::utf8(Form::ascii).encode(u"94\\U+00B0"), "94\\U+00B0");
}

TEST(TextCodec, utf8_is_read_and_written) {
  const TextCodec codec = TextCodec::utf8(Form::ascii);
  EXPECT_EQ(codec.decode("\xC3\xBC\xE2\x88\x85\xF0\x9F\x98\x80"), u"ü∅😀");
  EXPECT_EQ(codec.encode(u"ü∅😀"), "\xC3\xBC\xE2\x88\x85\xF0\x9F\x98\x80");
}

TEST(TextCodec, half_a_surrogate_pair_is_escaped_in_utf8) {
  EXPECT_EQ(TextCodec::utf8(Form::ascii).encode(std::u16string(1, char16_t{0xD83D}) + u"x"), "\\U+D83Dx");
  EXPECT_EQ(TextCodec::utf8(Form::ascii).encode(std::u16string(1, char16_t{0xDE00})), "\\U+DE00");
}

TEST(TextCodec, a_byte_without_a_meaning_comes_back_as_itself) {
  for (const TextCodec& codec :
       {TextCodec::utf8(Form::ascii), western(), TextCodec::code_page("ANSI_932", Form::ascii)}) {
    for (int byte = 0x80; byte < 0x100; ++byte) {
      const std::string bytes{'a', static_cast<char>(byte)};
      EXPECT_EQ(codec.encode(codec.decode(bytes)), bytes) << byte;
    }
  }
  EXPECT_EQ(TextCodec::utf8(Form::ascii).decode("\xFF"), std::u16string(1, char16_t{0xDCFF}));
}

TEST(TextCodec, ill_formed_utf8_is_kept_byte_by_byte) {
  const TextCodec codec = TextCodec::utf8(Form::ascii);
  const std::string_view surrogate = "\xED\xA0\x80";
  const std::string_view overlong = "\xC0\xAF";
  const std::string_view beyond = "\xF4\x90\x80\x80";
  const std::string_view cut = "a\xE2\x88";
  for (const std::string_view bytes : {surrogate, overlong, beyond, cut})
    EXPECT_EQ(codec.encode(codec.decode(bytes)), bytes);
  EXPECT_EQ(codec.decode(cut), (std::u16string{u'a', 0xDCE2, 0xDC88}));
}

TEST(TextCodec, random_bytes_survive_in_every_encoding) {
  std::mt19937 random(1);
  for (const char* page : {"ANSI_1251", "dos850", "ANSI_874", "big5", "ksc5601", "ANSI_936", "utf8"}) {
    const TextCodec codec = std::string_view(page) == "utf8" ? TextCodec::utf8(Form::binary)
                                                             : TextCodec::code_page(page, Form::binary);
    for (int i = 0; i < 500; ++i) {
      std::string bytes;
      for (int n = 0; n < 40; ++n) bytes += static_cast<char>(1 + random() % 255);
      const std::u16string text = codec.decode(bytes);
      EXPECT_EQ(codec.decode(codec.encode(text)), text) << page;
    }
  }
}

}  // namespace
