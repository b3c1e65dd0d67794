#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <vector>

/// The members of a JSON object that a person wrote. Each is asked for once; one that is absent leaves what
/// it would fill in as it is. What is of another kind or out of its range, and in the end what nobody asked
/// for, throws FileError with a sentence that names the member.
class JsonMembers {
 public:
  /// `object` has to outlive the members; `file` is what messages call the document.
  JsonMembers(const nlohmann::json& object, std::string file) : JsonMembers(object, std::move(file), "") {}

  // Each is true when the member is there.
  bool number(const char* name, double& value, double least, double most);
  bool count(const char* name, std::uint32_t& value, std::uint32_t most);
  bool flag(const char* name, bool& value);
  bool text(const char* name, std::u16string& value);
  /// One number at least, and `longest` at most.
  bool numbers(const char* name, std::vector<double>& values, double least, double most, std::size_t longest);
  /// The members of an object within this one; nothing if it is absent.
  std::optional<JsonMembers> object(const char* name);

  /// All have been asked for.
  void end() const;

  /// Throws: `reason` goes on behind the member's name.
  [[noreturn]] void refuse(const std::string& name, const std::string& reason) const;

 private:
  JsonMembers(const nlohmann::json& object, std::string file, std::string path);
  const nlohmann::json* find(const char* name);

  const nlohmann::json& m_object;
  std::string m_file;
  std::string m_path;  ///< of the object in its document, with a dot behind it; empty for the outermost
  std::set<std::string> m_asked;
};
