// Reads arbitrary bytes as the image of a project; what is read must be written again byte by byte.
#include "db/Project_Image.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArrayView input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  QString error;
  const std::optional<Project_Image> image = Project_Image::fromBytes(input, &error);
  if (image ? image->toBytes() != input : error.isEmpty()) {
    std::abort();
  }
  return 0;
}
