// Counts who is in: connections of each address and all together. Lets in whom the limits let in.
#pragma once

#include "publish/WebLimits.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace hooptab {

class WebDoor {
 public:
  // Must outlive its tickets. `most`: connections that the system allows for.
  WebDoor(const WebLimits& limits, std::size_t most);
  WebDoor(const WebDoor&) = delete;
  WebDoor& operator=(const WebDoor&) = delete;

  // Somebody is in as long as it is held.
  using Ticket = std::shared_ptr<const std::string>;
  // Null: there are too many.
  [[nodiscard]] Ticket admit(const std::string& address, bool isLoopback);

 private:
  [[nodiscard]] bool isCounted(std::string_view address, bool isLoopback) const;

  const WebLimits& m_limits;
  std::size_t m_most;
  std::size_t m_inside = 0;
  std::map<std::string, std::size_t, std::less<>> m_ofAddress;
};

} // namespace hooptab
