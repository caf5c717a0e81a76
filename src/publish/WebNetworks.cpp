#include "publish/WebNetworks.h"

#include <algorithm>
#include <array>
#include <memory>

#if __has_include(<ifaddrs.h>)
#define HOOPTAB_HAS_IFADDRS
#include <arpa/inet.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace hooptab {

#ifdef HOOPTAB_HAS_IFADDRS

namespace {

using Bytes6 = std::array<unsigned char, 16>;

bool isPrivate4(std::uint32_t address) {
  return address >> 24U == 10 || address >> 24U == 127 || address >> 20U == 0xAC1 ||
         address >> 16U == 0xC0A8 || address >> 16U == 0xA9FE;
}

bool isLinkLocal(const Bytes6& address) {
  return address[0] == 0xFE && (address[1] & 0xC0U) == 0x80;
}

bool isPrivate6(const Bytes6& address) {
  constexpr Bytes6 kLoopback = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  return (address[0] & 0xFEU) == 0xFC || isLinkLocal(address) || address == kLoopback;
}

// The address of an interface in figures; empty where it is of another kind.
std::string figuresOf(const sockaddr& address, bool& isIPv6) {
  std::array<char, INET6_ADDRSTRLEN> text = {};
  isIPv6 = address.sa_family == AF_INET6;
  const void* bytes = nullptr;
  if (isIPv6)
    bytes = &reinterpret_cast<const sockaddr_in6&>(address).sin6_addr;
  else if (address.sa_family == AF_INET)
    bytes = &reinterpret_cast<const sockaddr_in&>(address).sin_addr;
  if (bytes == nullptr || ::inet_ntop(address.sa_family, bytes, text.data(), text.size()) == nullptr)
    return {};
  return text.data();
}

} // namespace

std::vector<WebNetwork> webNetworks() {
  ifaddrs* first = nullptr;
  if (::getifaddrs(&first) != 0)
    return {};
  const std::unique_ptr<ifaddrs, decltype(&::freeifaddrs)> all(first, ::freeifaddrs);
  std::vector<WebNetwork> networks;
  for (const ifaddrs* entry = first; entry != nullptr; entry = entry->ifa_next) {
    if (entry->ifa_addr == nullptr || (entry->ifa_flags & static_cast<unsigned>(IFF_UP)) == 0)
      continue;
    WebNetwork network;
    network.address = figuresOf(*entry->ifa_addr, network.isIPv6);
    if (network.address.empty() || network.address.starts_with("fe80:"))
      continue;
    network.interfaceName = entry->ifa_name;
    network.isLoopback = (entry->ifa_flags & static_cast<unsigned>(IFF_LOOPBACK)) != 0;
    network.isPrivate = isPrivateAddress(network.address);
    networks.push_back(std::move(network));
  }
  std::stable_sort(networks.begin(), networks.end(), [](const WebNetwork& left, const WebNetwork& right) {
    return std::pair(left.isLoopback, left.isIPv6) < std::pair(right.isLoopback, right.isIPv6);
  });
  return networks;
}

bool isPrivateAddress(std::string_view address) {
  const std::string text(address);
  in_addr four = {};
  if (::inet_pton(AF_INET, text.c_str(), &four) == 1)
    return isPrivate4(ntohl(four.s_addr));
  Bytes6 six = {};
  return ::inet_pton(AF_INET6, text.c_str(), six.data()) == 1 && isPrivate6(six);
}

std::string machineName() {
  std::array<char, 256> name = {};
  return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : std::string();
}

std::size_t raiseFileLimit(std::size_t files) {
  rlimit limit = {};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
    return 256;
  if (limit.rlim_cur < files) {
    rlimit raised = limit;
    raised.rlim_cur = std::min<rlim_t>(files, limit.rlim_max);
    if (::setrlimit(RLIMIT_NOFILE, &raised) == 0)
      limit = raised;
  }
  return limit.rlim_cur;
}

#else

std::vector<WebNetwork> webNetworks() {
  return {{"", "127.0.0.1", false, true, true}};
}
bool isPrivateAddress(std::string_view address) {
  return address == "127.0.0.1" || address == "::1";
}
std::string machineName() {
  return {};
}
std::size_t raiseFileLimit(std::size_t files) {
  return files;
}

#endif

} // namespace hooptab
