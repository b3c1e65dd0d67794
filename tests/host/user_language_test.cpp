#include "host/user_language.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace {

/// Sets a variable of the environment while it lives.
class environment_variable {
 public:
  environment_variable(const char* name, const char* value) : m_name(name) {
    if (const char* before = std::getenv(name)) m_before = before;
    setenv(name, value, 1);
  }
  ~environment_variable() { m_before ? setenv(m_name, m_before->c_str(), 1) : unsetenv(m_name); }
  environment_variable(const environment_variable&) = delete;
  environment_variable& operator=(const environment_variable&) = delete;

 private:
  const char* m_name;
  std::optional<std::string> m_before;
};

TEST(UserLanguage, a_locale_has_the_three_letters_of_its_language) {
  EXPECT_EQ(host::language_of_locale("en_US.UTF-8"), u"eng");
  EXPECT_EQ(host::language_of_locale("de_DE@euro"), u"deu");
  EXPECT_EQ(host::language_of_locale("ru"), u"rus");
}

TEST(UserLanguage, a_locale_without_a_language_has_none) {
  for (const char* name : {"", "C", "POSIX", "xx_YY", "no such locale"})
    EXPECT_EQ(host::language_of_locale(name), u"") << name;
}

TEST(UserLanguage, is_that_of_the_first_variable_that_is_set_to_something) {
  const environment_variable language("LANG", "de_DE.UTF-8");
  const environment_variable messages("LC_MESSAGES", "");
  const environment_variable all("LC_ALL", "");
  EXPECT_EQ(host::user_language(), u"deu");
  const environment_variable nearer("LC_MESSAGES", "ru_RU");
  EXPECT_EQ(host::user_language(), u"rus");
  const environment_variable nearest("LC_ALL", "C");
  EXPECT_EQ(host::user_language(), u"");
}

}  // namespace
