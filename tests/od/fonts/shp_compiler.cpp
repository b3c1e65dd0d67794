#include "tests/od/fonts/shp_compiler.h"

#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace {

struct Source {
  std::string kind = "shapes";
  std::vector<std::pair<unsigned, unsigned>> leadRanges{};
  std::map<unsigned, std::string> records{};  ///< name, zero byte, instructions
};

std::vector<std::string> split(const std::string& line) {
  std::vector<std::string> tokens;
  std::string token;
  for (char c : line + ",") {
    if (c == ',') {
      if (!token.empty()) tokens.push_back(token);
      token.clear();
    } else if (std::string_view("() \t").find(c) == std::string_view::npos) {
      token += c;
    }
  }
  return tokens;
}

int valueOf(const std::string& token) {
  bool negative = token.front() == '-';
  std::string digits = token.substr(negative ? 1 : 0);
  bool isHex = digits.size() > 1 && digits.front() == '0';
  int value = std::stoi(digits, nullptr, isHex ? 16 : 10);
  // A negative hexadecimal number is sign and magnitude: the octant byte of an arc that runs clockwise.
  if (negative && isHex) return 0x80 + value;
  return negative ? -value : value;
}

void appendBytes(const std::string& token, std::string& record) {
  int value = valueOf(token);
  if (token.size() == 5 && token.front() == '0') record += static_cast<char>(value >> 8);
  record += static_cast<char>(value);
}

bool isUpperCase(const std::string& name) {
  return name.find_first_of("abcdefghijklmnopqrstuvwxyz") == name.npos;
}

Source read(std::string_view text) {
  Source source;
  std::istringstream lines{std::string(text)};
  std::string line;
  std::string* record = nullptr;
  while (std::getline(lines, line)) {
    line = line.substr(0, line.find(';'));
    std::vector<std::string> tokens = split(line);
    if (tokens.empty()) continue;
    if (tokens[0].starts_with("*BIGFONT")) {
      source.kind = "bigfont";
      for (std::size_t i = 2; i + 1 < tokens.size(); i += 2) {
        source.leadRanges.emplace_back(valueOf(tokens[i]), valueOf(tokens[i + 1]));
      }
    } else if (tokens[0].front() == '*') {
      if (tokens[0] == "*UNIFONT") source.kind = "unifont";
      std::string number = tokens[0].substr(1);
      record = &source.records[number == "UNIFONT" ? 0 : static_cast<unsigned>(valueOf(number))];
      if (tokens.size() > 2 && (isUpperCase(tokens[2]) || tokens[0] == "*0")) *record = tokens[2];
      *record += '\0';
    } else {
      if (!record) throw std::invalid_argument("compileShp: bytes before the first record");
      for (const std::string& token : tokens) appendBytes(token, *record);
    }
  }
  return source;
}

std::string word(std::size_t value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

std::string shapesBody(const Source& source) {
  const auto& records = source.records;
  std::string index, data;
  for (const auto& [number, record] : records) {
    index += word(number) + word(record.size());
    data += record;
  }
  return word(records.begin()->first) + word(records.rbegin()->first) + word(records.size()) + index + data +
         "EOF";
}

std::string unifontBody(const Source& source) {
  std::string body = word(source.records.size());
  for (const auto& [number, record] : source.records) body += word(number) + word(record.size()) + record;
  return body;
}

/// The index is a hash table: a record's home is its number, bytes swapped, modulo the number of slots; what
/// finds its home taken goes to the next free slot.
std::string bigfontBody(const Source& source, std::size_t headLength) {
  std::size_t slots = source.records.size() + 3;
  std::string head = word(8) + word(slots) + word(source.leadRanges.size());
  for (const auto& [first, last] : source.leadRanges) head += word(first) + word(last);
  std::vector<std::string> index(slots, std::string(8, '\0'));
  std::string data;
  std::size_t offset = headLength + head.size() + 8 * slots;
  for (const auto& [number, record] : source.records) {
    std::size_t slot = ((number & 0xFF) << 8 | number >> 8) % slots;
    while (index[slot] != std::string(8, '\0')) slot = (slot + 1) % slots;
    std::size_t place = offset + data.size();
    index[slot] = word(number) + word(record.size()) + word(place) + word(place >> 16);
    data += record;
  }
  for (const std::string& slot : index) head += slot;
  return head + data;
}

}  // namespace

std::string compileShp(std::string_view text) {
  Source source = read(text);
  std::string head = "Test " + source.kind + " 1.0\r\n\x1A";
  if (source.kind == "shapes") return head + shapesBody(source);
  if (source.kind == "unifont") return head + unifontBody(source);
  return head + bigfontBody(source, head.size());
}
