// The names under which the server may be asked. A page of a stranger can make a browser ask this machine, by
// a name of its own that leads here; it would then read the answers. An address in figures cannot be
// forged that way.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace hooptab {

class WebHosts {
 public:
  // Names and addresses beside those of this machine itself, with or without a port.
  WebHosts(std::string_view machineName, const std::vector<std::string>& names);

  // Of the header Host, and the address of this machine at which the connection came in. Any port will do: it
  // may have come through a tunnel or a router that has another one.
  [[nodiscard]] bool areOurs(std::string_view host, std::string_view arrivedAt) const;
  // Whether a browser that asks so sits at this machine.
  [[nodiscard]] static bool isLoopback(std::string_view host);

 private:
  std::vector<std::string> m_names; // in small letters, without port
};

} // namespace hooptab
