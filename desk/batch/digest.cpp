#include "desk/batch/digest.h"

#include <QCryptographicHash>
#include <array>
#include <fstream>

namespace {

std::string shown(const QCryptographicHash& hash) { return hash.result().toHex().toStdString(); }

}  // namespace

std::string digestOf(std::string_view bytes) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return shown(hash);
}

std::string fileDigest(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream || !std::filesystem::is_regular_file(file)) return {};
  QCryptographicHash hash(QCryptographicHash::Sha256);
  std::array<char, 1 << 16> block;
  while (stream.read(block.data(), block.size()) || stream.gcount() > 0)
    hash.addData(QByteArrayView(block.data(), static_cast<qsizetype>(stream.gcount())));
  return stream.bad() ? std::string() : shown(hash);
}
