// Feeds every file of the given corpus folder to the fuzz target it is linked with; fails when there is none.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: %s CORPUS-FOLDER\n", argv[0]);
    return 2;
  }
  std::size_t replayed = 0;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(argv[1], error)) {
    if (!entry.is_regular_file()) {
      continue;
    }
    // Named before it runs, so that the file is known when the target does not return.
    std::printf("%s\n", entry.path().c_str());
    std::fflush(stdout);
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    // A copy of exactly the input's size lets the address sanitizer see a read behind its end.
    const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(input.data(), input.size());
    ++replayed;
  }
  if (replayed == 0) {
    std::fprintf(stderr, "%s: no file to replay\n", argv[1]);
    return 1;
  }
  return 0;
}
