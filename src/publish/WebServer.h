// The program's web server: connections, who may ask, and streams to thousands who follow a game, on a thread
// of its own. HTTP/1.1, reading alone; it opens no file. What it says is its source's (publish/WebSource).
#pragma once

#include "publish/WebLimits.h"
#include "publish/WebSource.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace hooptab {

struct WebOptions {
  std::string address = "127.0.0.1"; // in figures; "0.0.0.0" or "::" for all of this machine's
  std::uint16_t port = 0;            // 0: any that is free
  std::string passPhrase;            // of what is private; empty: it is for this machine alone
  std::vector<std::string> names;    // under which it may be asked beside this machine's own
  WebLimits limits;
};

enum class WebServerProblem {
  NoAddress,      // not one in figures
  AddressNotHere, // another machine's
  PortTaken,
  NotAllowed, // as ports below 1024 may be
  Other,
};

class WebServerError : public std::runtime_error {
 public:
  WebServerError(WebServerProblem problem, int errorNumber);
  [[nodiscard]] WebServerProblem problem() const { return m_problem; }
  // The system's; 0: no call failed.
  [[nodiscard]] int errorNumber() const { return m_errorNumber; }

 private:
  WebServerProblem m_problem;
  int m_errorNumber;
};

class WebServer {
 public:
  // Listens as soon as it is made; throws WebServerError.
  WebServer(WebOptions options, std::unique_ptr<WebSource> source);
  // Ends all connections. Waits for what the source is just doing, and for nothing else.
  ~WebServer();
  WebServer(const WebServer&) = delete;
  WebServer& operator=(const WebServer&) = delete;

  // These from any thread.
  [[nodiscard]] std::uint16_t port() const;
  // Streams that are held now.
  [[nodiscard]] int viewers() const;
  // Has it done on the server's thread, in the order of the calls, unless the server goes first. Waits for
  // nothing.
  void post(std::function<void(WebSource&)> work);

 private:
  class Loop;
  std::unique_ptr<Loop> m_loop;
};

} // namespace hooptab
