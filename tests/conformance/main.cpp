#include <iostream>
#include <string>

#include "tests/conformance/answer.h"
#include "ui/resources/strings.h"

/// Answers each request of the standard input by a line on the standard output.
int main() {
  std::ios::sync_with_stdio(false);
  resources::register_strings();
  std::string line;
  while (std::getline(std::cin, line)) {
    if (line.find_first_not_of(" \t\r") == line.npos) continue;
    std::cout << conformance::answer(conformance::json::parse(line)).dump() << '\n';
  }
}
