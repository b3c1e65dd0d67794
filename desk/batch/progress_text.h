#pragma once

#include <chrono>
#include <optional>
#include <string>

struct BatchTotals;

/// A number as people write it: "12,345".
std::string withCommas(std::size_t number);

/// A time in minutes and seconds, with hours where there are any: "0:42", "1:05:09".
std::string clockTime(std::chrono::seconds time);

/// The time left when `done` of `all` bytes took `elapsed`; nothing before the first are done.
std::optional<std::chrono::seconds> timeLeft(double done, double all, std::chrono::duration<double> elapsed);

/// "120 of 500 drawings, 3,456 texts changed, 1 failed, 0:42 left".
std::string progressText(const BatchTotals& totals, std::optional<std::chrono::seconds> left);

/// The text behind a bar that shows the part that is done, in `columns` columns at most.
std::string progressBar(double part, const std::string& text, std::size_t columns);
