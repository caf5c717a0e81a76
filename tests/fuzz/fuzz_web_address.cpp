// Any bytes as the address of a request: what is read has no way out of its path and no command in it, and
// comes out the same when it is written plainly once more.
#include "publish/WebAddress.h"

#include <algorithm>
#include <cstdlib>

using namespace hooptab;

namespace {

void require(bool holds) {
  if (!holds)
    std::abort();
}

std::string escaped(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string result;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    result += {'%', kDigits[byte >> 4U], kDigits[byte & 0xFU]};
  }
  return result;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto [request, problem] = readWebAddress({reinterpret_cast<const char*>(data), size});
  if (problem != WebAddressProblem::None) {
    require(request.path.empty() && request.query.empty());
    return 0;
  }
  require(request.path.starts_with('/'));
  std::string again;
  for (std::size_t begin = 0; begin < request.path.size();) {
    const std::size_t end = std::min(request.path.find('/', begin + 1), request.path.size());
    const std::string_view part = std::string_view(request.path).substr(begin + 1, end - begin - 1);
    require(part != "." && part != ".." && (!part.empty() || end == request.path.size()));
    again += '/' + escaped(part);
    begin = end;
  }
  for (const char letter : request.path)
    require(static_cast<unsigned char>(letter) >= 0x20 && letter != 0x7F && letter != '\\');
  char separator = '?';
  for (const auto& [name, value] : request.query) {
    require(!name.empty());
    again += separator + escaped(name) + '=' + escaped(value);
    separator = '&';
  }
  const WebAddressReading reading = readWebAddress(again);
  require(reading.problem == WebAddressProblem::TooLong ||
          (reading.request.path == request.path && reading.request.query == request.query));
  return 0;
}
