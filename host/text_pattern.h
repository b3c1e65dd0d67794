#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What is looked for in the texts of a drawing: words as they stand, or a regular expression.
class HostTextPattern {
 public:
  struct Options {
    bool is_expression = false;  ///< a regular expression as the ICU library reads it
    bool ignores_case = false;
  };
  /// A place where the pattern stands, in UTF-16 units: from `first` up to, not with, `last`.
  struct Match {
    std::size_t first;
    std::size_t last;
    /// What is to stand there instead, with the groups of an expression put in; empty where nothing was
    /// asked for.
    std::u16string replacement;
  };

  /// Throws `std::invalid_argument` with a sentence for the user when `wanted` is empty or no expression.
  HostTextPattern(std::u16string_view wanted, Options options);
  ~HostTextPattern();
  HostTextPattern(HostTextPattern&&) noexcept;
  HostTextPattern& operator=(HostTextPattern&&) noexcept;

  /// Whether it stands anywhere; throws as `matches` does, but looks no further than the first place.
  bool isIn(std::u16string_view text) const;
  /// All places, from first to last; none overlaps another and none is empty. In a `replacement` for an
  /// expression `$1` is its first group and `\$` a dollar sign; otherwise it is taken as it stands. Throws
  /// `std::invalid_argument` when the replacement names a group that is not there, or when the expression
  /// takes too long on this text.
  std::vector<Match> matches(std::u16string_view text,
                             std::optional<std::u16string_view> replacement = {}) const;

 private:
  struct Compiled;
  std::unique_ptr<Compiled> m_compiled;
};
