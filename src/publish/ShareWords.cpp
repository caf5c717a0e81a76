#include "publish/ShareWords.h"

#include <system_error>

namespace hooptab {

std::string webAddress(const std::string& address, std::uint16_t port) {
  const bool isIPv6 = address.find(':') != std::string::npos;
  return "http://" + (isIPv6 ? '[' + address + ']' : address) + ':' + std::to_string(port) + '/';
}

std::string shareProblemWords(const WebServerError& error, const WebOptions& options, const Texts& texts) {
  switch (error.problem()) {
  case WebServerProblem::NoAddress: return texts.withPlaceholder(Text::ShareNoAddress, options.address);
  case WebServerProblem::AddressNotHere:
    return texts.withPlaceholder(Text::ShareAddressNotHere, options.address);
  case WebServerProblem::PortTaken:
    return texts.withPlaceholder(Text::SharePortTaken, std::to_string(options.port));
  case WebServerProblem::NotAllowed:
    return texts.withPlaceholder(Text::SharePortNotAllowed, std::to_string(options.port));
  case WebServerProblem::Other: break;
  }
  return texts.withPlaceholder(Text::ShareFailed, std::generic_category().message(error.errorNumber()));
}

} // namespace hooptab
