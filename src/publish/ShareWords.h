// What there is to say of a server in words: its address, and why it does not begin.
#pragma once

#include "publish/WebServer.h"
#include "settings/Texts.h"

#include <cstdint>
#include <string>

namespace hooptab {

// "http://192.168.1.20:8310/"; an IPv6 address in brackets.
[[nodiscard]] std::string webAddress(const std::string& address, std::uint16_t port);
[[nodiscard]] std::string shareProblemWords(const WebServerError& error, const WebOptions& options,
                                            const Texts& texts);

} // namespace hooptab
