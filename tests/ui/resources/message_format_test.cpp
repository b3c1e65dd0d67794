#include "ui/resources/message_format.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "ui/resources/strings.h"

namespace {

using testing::ElementsAre;

TEST(MessageFormat, whole_numbers_have_no_point) {
  EXPECT_EQ(resources::format_message(u"between %d and %d", {2, 100}), u"between 2 and 100");
}

TEST(MessageFormat, decimals_are_as_many_as_the_place_says) {
  EXPECT_EQ(resources::format_message(u"%0.1f, %.3f, %f", {2.25, 1.0, 0.5}), u"2.2, 1.000, 0.500000");
}

TEST(MessageFormat, general_numbers_have_six_digits_at_most_and_no_zeros_at_the_end) {
  EXPECT_EQ(resources::format_message(u"%g %g %g", {0.625, 10, 1234567}), u"0.625 10 1.23457e+06");
}

TEST(MessageFormat, a_text_stands_in_its_place_as_it_is) {
  EXPECT_EQ(resources::format_message(u"\"%s\", %s", {u"50%d", u""}), u"\"50%d\", ");
}

TEST(MessageFormat, a_double_percent_sign_is_one_sign_and_no_place) {
  EXPECT_EQ(resources::format_message(u"%d%% of 100%%", {5}), u"5% of 100%");
  EXPECT_THAT(resources::placeholders(u"100%% of %d"), ElementsAre(u"%d"));
}

TEST(MessageFormat, the_places_of_a_message_are_found_in_their_order) {
  EXPECT_THAT(resources::placeholders(u"%s: %g to %0.1f"), ElementsAre(u"%s", u"%g", u"%0.1f"));
  EXPECT_THAT(resources::placeholders(u"100 % Wolle %"), ElementsAre());
}

TEST(MessageFormat, a_value_too_many_or_too_few_is_an_error) {
  EXPECT_THROW(resources::format_message(u"%d", {}), std::invalid_argument);
  EXPECT_THROW(resources::format_message(u"%d", {1, 2}), std::invalid_argument);
}

TEST(MessageFormat, a_value_of_the_wrong_kind_is_an_error) {
  EXPECT_THROW(resources::format_message(u"%d", {u"two"}), std::invalid_argument);
  EXPECT_THROW(resources::format_message(u"%s", {2}), std::invalid_argument);
}

TEST(MessageFormat, the_string_of_a_number_is_filled_in) {
  resources::register_strings();
  EXPECT_EQ(resources::format_string(1322, {2, 100}), u"Value must be between 2 and 100");
}

}  // namespace
