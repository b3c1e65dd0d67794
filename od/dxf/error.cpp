#include "od/dxf/error.h"

namespace dxf {

Error::Error(const std::string& file, const std::string& reason) : Error(file + ": " + reason + ".", 0) {}

Error::Error(const std::string& sentence, std::size_t line) : OdError(eInvalidFile, sentence), line_(line) {}

Error Error::at_line(const std::string& file, std::size_t line, const std::string& reason) {
  return Error(file + ", line " + std::to_string(line) + ": " + reason + ".", line);
}

Error Error::at_offset(const std::string& file, std::size_t offset, const std::string& reason) {
  return Error(file + ", byte " + std::to_string(offset) + ": " + reason + ".", std::size_t{0});
}

}  // namespace dxf
