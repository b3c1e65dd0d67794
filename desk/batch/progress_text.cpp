#include "desk/batch/progress_text.h"

#include <algorithm>
#include <cmath>

#include "desk/batch/batch_totals.h"

namespace {

std::string twoDigits(long number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

std::string withCommas(std::size_t number) {
  constexpr std::size_t kGroup = 3;
  std::string text = std::to_string(number);
  for (std::size_t at = text.size(); at > kGroup;) text.insert(at -= kGroup, ",");
  return text;
}

std::string clockTime(std::chrono::seconds time) {
  const long seconds = time.count() % 60, minutes = time.count() / 60 % 60, hours = time.count() / 3600;
  if (hours == 0) return std::to_string(minutes) + ":" + twoDigits(seconds);
  return std::to_string(hours) + ":" + twoDigits(minutes) + ":" + twoDigits(seconds);
}

std::optional<std::chrono::seconds> timeLeft(double done, double all, std::chrono::duration<double> elapsed) {
  if (done <= 0) return std::nullopt;
  return std::chrono::ceil<std::chrono::seconds>(elapsed * std::max(0.0, all - done) / done);
}

std::string progressText(const BatchTotals& totals, std::optional<std::chrono::seconds> left) {
  std::string text = withCommas(totals.done()) + " of " + withCommas(totals.drawings) + " drawings, " +
                     withCommas(totals.texts) + " texts changed";
  if (totals.failed > 0) text += ", " + withCommas(totals.failed) + " failed";
  if (left) text += ", " + clockTime(*left) + " left";
  return text;
}

std::string progressBar(double part, const std::string& text, std::size_t columns) {
  constexpr std::size_t kLongest = 30, kShortest = 5, kFrame = 3;
  if (columns < text.size() + kShortest + kFrame) return text.substr(0, columns);
  const std::size_t length = std::min(kLongest, columns - text.size() - kFrame);
  const auto filled = static_cast<std::size_t>(std::floor(std::clamp(part, 0.0, 1.0) * double(length)));
  return "[" + std::string(filled, '#') + std::string(length - filled, '.') + "] " + text;
}
