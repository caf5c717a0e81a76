#include "publish/WebDoor.h"

#include <algorithm>

namespace hooptab {

WebDoor::WebDoor(const WebLimits& limits, std::size_t most)
    : m_limits(limits), m_most(std::min(limits.connections, most)) {}

bool WebDoor::isCounted(std::string_view address, bool isLoopback) const {
  const std::vector<std::string>& proxies = m_limits.proxies;
  return (!isLoopback || m_limits.countsLoopback) &&
         std::find(proxies.begin(), proxies.end(), address) == proxies.end();
}

WebDoor::Ticket WebDoor::admit(const std::string& address, bool isLoopback) {
  const auto found = m_ofAddress.find(address);
  const std::size_t sofar = found == m_ofAddress.end() ? 0 : found->second;
  if (m_inside >= m_most || (isCounted(address, isLoopback) && sofar >= m_limits.connectionsOfAddress))
    return nullptr;
  const auto leave = [this](const std::string* ticket) {
    const auto count = m_ofAddress.find(*ticket);
    if (--count->second == 0)
      m_ofAddress.erase(count);
    --m_inside;
    delete ticket;
  };
  auto ticket = std::make_unique<const std::string>(address);
  ++m_ofAddress[address];
  ++m_inside;
  return Ticket(ticket.release(), leave);
}

} // namespace hooptab
