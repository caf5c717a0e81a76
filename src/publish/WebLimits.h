// How much of itself the web server gives to those who ask: what a hall full of telephones never reaches, and
// what keeps one who means harm from holding all of it.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace hooptab {

struct WebLimits {
  std::size_t headerBytes = std::size_t{8} * 1024;    // of a request, its first line with it
  std::chrono::milliseconds headerTime{5'000};        // in which it must be there
  std::chrono::milliseconds idleTime{30'000};         // between two requests of a connection
  std::chrono::milliseconds writeTime{30'000};        // without a byte taken: nobody is there any more
  std::size_t waitingBytes = std::size_t{256} * 1024; // for one who reads a stream too slowly
  std::size_t connections = 4'096;
  std::size_t connectionsOfAddress = 64;
  // Addresses that may have as many as there are: this machine's programs, and those through which many
  // others come. What they say of whom they speak for is not believed.
  bool countsLoopback = false;
  std::vector<std::string> proxies;
};

} // namespace hooptab
