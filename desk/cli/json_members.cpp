#include "desk/cli/json_members.h"

#include <algorithm>
#include <sstream>

#include "desk/program/file_error.h"
#include "od/base/unicode.h"

namespace {

/// A number as a person writes it.
std::string written(double value) {
  std::ostringstream out;
  out << value;
  return out.str();
}

std::string range(double least, double most) { return written(least) + " to " + written(most); }

bool isIn(const nlohmann::json& value, double least, double most) {
  return value.is_number() && value.get<double>() >= least && value.get<double>() <= most;
}

}  // namespace

JsonMembers::JsonMembers(const nlohmann::json& object, std::string file, std::string path)
    : m_object(object), m_file(std::move(file)), m_path(std::move(path)) {
  if (object.is_object()) return;
  if (m_path.empty()) throw FileError(m_file, "a style must be one JSON object.");
  throw FileError(m_file, "\"" + m_path.substr(0, m_path.size() - 1) + "\" must be an object.");
}

const nlohmann::json* JsonMembers::find(const char* name) {
  m_asked.insert(name);
  const auto found = m_object.find(name);
  return found == m_object.end() ? nullptr : &*found;
}

void JsonMembers::refuse(const std::string& name, const std::string& reason) const {
  throw FileError(m_file, "\"" + m_path + name + "\" " + reason + ".");
}

bool JsonMembers::number(const char* name, double& value, double least, double most) {
  const nlohmann::json* const found = find(name);
  if (!found) return false;
  if (!isIn(*found, least, most)) refuse(name, "must be a number from " + range(least, most));
  value = found->get<double>();
  return true;
}

bool JsonMembers::count(const char* name, std::uint32_t& value, std::uint32_t most) {
  const nlohmann::json* const found = find(name);
  if (!found) return false;
  if (!found->is_number_unsigned() || found->get<std::uint64_t>() > most)
    refuse(name, "must be a whole number from 0 to " + std::to_string(most));
  value = found->get<std::uint32_t>();
  return true;
}

bool JsonMembers::flag(const char* name, bool& value) {
  const nlohmann::json* const found = find(name);
  if (!found) return false;
  if (!found->is_boolean()) refuse(name, "must be true or false");
  value = found->get<bool>();
  return true;
}

bool JsonMembers::text(const char* name, std::u16string& value) {
  const nlohmann::json* const found = find(name);
  if (!found) return false;
  if (!found->is_string()) refuse(name, "must be a text");
  value = odToUtf16(found->get_ref<const std::string&>());
  return true;
}

bool JsonMembers::numbers(const char* name, std::vector<double>& values, double least, double most,
                          std::size_t longest) {
  const nlohmann::json* const found = find(name);
  if (!found) return false;
  const auto usable = [&](const nlohmann::json& each) { return isIn(each, least, most); };
  if (!found->is_array() || found->empty() || found->size() > longest ||
      !std::all_of(found->begin(), found->end(), usable))
    refuse(name, "must be a list of 1 to " + std::to_string(longest) + " numbers from " + range(least, most));
  values = found->get<std::vector<double>>();
  return true;
}

std::optional<JsonMembers> JsonMembers::object(const char* name) {
  const nlohmann::json* const found = find(name);
  if (!found) return std::nullopt;
  return JsonMembers(*found, m_file, m_path + name + ".");
}

void JsonMembers::end() const {
  for (const auto& [name, value] : m_object.items())
    if (!m_asked.contains(name)) refuse(name, "is no member of a style");
}
