// A small client of the web server for tests: sends what it is told, right or wrong, and waits for what comes
// at most as long as no healthy server needs.
#pragma once

#include <arpa/inet.h>
#include <array>
#include <cstdint>
#include <netinet/in.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace hooptab {

struct WebReceived {
  int status = 0; // 0: nothing came
  std::string header;
  std::string body;

  // Empty where there is none.
  std::string field(const std::string& name) const {
    const std::size_t begin = header.find("\r\n" + name + ": ");
    if (begin == std::string::npos)
      return {};
    const std::size_t value = begin + name.size() + 4;
    return header.substr(value, header.find("\r\n", value) - value);
  }
};

class WebClient {
 public:
  // `systemBytes`: what the system keeps unread for it; 0: as it likes.
  explicit WebClient(std::uint16_t port, int systemBytes = 0) : m_socket(::socket(AF_INET, SOCK_STREAM, 0)) {
    const timeval limit{10, 0};
    ::setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
    if (systemBytes > 0)
      ::setsockopt(m_socket, SOL_SOCKET, SO_RCVBUF, &systemBytes, sizeof systemBytes);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
      ::close(m_socket);
      throw std::runtime_error("nobody listens");
    }
  }
  ~WebClient() { ::close(m_socket); }
  WebClient(const WebClient&) = delete;
  WebClient& operator=(const WebClient&) = delete;

  void send(std::string_view text) { ::send(m_socket, text.data(), text.size(), MSG_NOSIGNAL); }
  void ask(const std::string& line, const std::string& more = {}, const std::string& host = "localhost") {
    send(line + " HTTP/1.1\r\nHost: " + host + "\r\n" + more + "\r\n");
  }
  // What has come up to these words, which must come.
  std::string receiveUntil(std::string_view words) {
    std::size_t end = 0;
    while ((end = m_received.find(words)) == std::string::npos)
      if (!receive())
        return {};
    return take(end + words.size());
  }
  WebReceived answer(bool hasBody = true) {
    WebReceived result;
    result.header = receiveUntil("\r\n\r\n");
    if (result.header.size() < 12)
      return result;
    result.status = std::stoi(result.header.substr(9, 3));
    const std::string length = result.field("Content-Length");
    const std::size_t bytes = hasBody && !length.empty() ? std::stoul(length) : 0;
    while (m_received.size() < bytes && receive()) {
    }
    result.body = take(bytes);
    return result;
  }
  // All that comes until the end.
  std::string rest() {
    while (receive()) {
    }
    return take(m_received.size());
  }
  // Whether the server closes, whatever it says before.
  bool seesTheEnd() {
    (void)rest();
    return m_isClosed;
  }

 private:
  bool receive() {
    std::array<char, 16'384> bytes = {};
    const auto count = ::recv(m_socket, bytes.data(), bytes.size(), 0);
    m_isClosed = count == 0 || (count < 0 && errno == ECONNRESET);
    if (count <= 0)
      return false;
    m_received.append(bytes.data(), static_cast<std::size_t>(count));
    return true;
  }
  std::string take(std::size_t bytes) {
    std::string taken = m_received.substr(0, bytes);
    m_received.erase(0, bytes);
    return taken;
  }

  int m_socket;
  std::string m_received;
  bool m_isClosed = false;
};

} // namespace hooptab
