// The addresses of this machine, to offer them to whoever shall find its server; and what else the server
// wants to know of the machine. All that differs between systems stands behind these functions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

struct WebNetwork {
  std::string interfaceName; // as the system calls it: "wlan0"
  std::string address;       // in figures, without brackets
  bool isIPv6 = false;
  bool isLoopback = false;
  bool isPrivate = false; // of a network at home or in a hall; else the whole world may find it
};

// Of networks that are up; this machine's own (loopback) last, IPv4 before IPv6. Without those that hold on
// one cable alone, which a browser cannot be told.
[[nodiscard]] std::vector<WebNetwork> webNetworks();
// Whether an IPv4 or IPv6 address in figures is one that the internet does not lead to.
[[nodiscard]] bool isPrivateAddress(std::string_view address);

// Empty where it has none.
[[nodiscard]] std::string machineName();
// Asks the system for that many open files at a time. How many there may be now, at least.
[[nodiscard]] std::size_t raiseFileLimit(std::size_t files);

} // namespace hooptab
