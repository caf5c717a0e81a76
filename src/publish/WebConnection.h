// One connection to the web server: reads requests, writes answers, and holds a stream until one of both
// goes. Each wait has an end, which the server looks after (checkDeadline). Everything on the server's
// thread.
#pragma once

#include "publish/WebDesk.h"
#include "publish/WebDoor.h"

#include <atomic>
#include <boost/asio/ip/tcp.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>
#include <deque>
#include <optional>

namespace hooptab {

// What all connections share; outlives them.
struct WebHall {
  WebDesk& desk;
  const WebLimits& limits;
  std::atomic<int>& viewers;
};

// As it is compared and counted: in figures, an IPv4 address in IPv6 as what it is, without an interface.
[[nodiscard]] std::string figuresOf(const boost::asio::ip::address& address);
[[nodiscard]] bool isLoopback(const boost::asio::ip::address& address);

class WebConnection : public std::enable_shared_from_this<WebConnection> {
 public:
  using Socket = boost::asio::ip::tcp::socket;
  using Clock = std::chrono::steady_clock;
  using Error = boost::system::error_code;

  // It is kept alive by what it waits for.
  WebConnection(Socket socket, const WebHall& hall, WebDoor::Ticket ticket);
  WebConnection(const WebConnection&) = delete;
  WebConnection& operator=(const WebConnection&) = delete;
  ~WebConnection();

  void start();
  void checkDeadline(Clock::time_point now);

 private:
  void prepareSocket();
  void waitUpTo(std::chrono::milliseconds time) { m_deadline = Clock::now() + time; }
  void awaitRequest();
  void readHeader();
  void takeHeader(const Error& error);
  [[nodiscard]] WebAsked asked() const;
  void refuse(int status, std::string_view words);
  void write(const WebReply& reply, bool hasBody);
  void writeHeader(std::string header);
  void afterAnswer(const Error& error);
  void linger();
  void discard(std::size_t most);
  void beginStream(const WebServed& served);
  void keep(const WebStream::Frame& frame);
  void take(const WebStream::Frame& frame);
  void writeFrames();
  void afterFrames(const Error& error);
  void close();

  Socket m_socket;
  const WebHall& m_hall;
  WebDoor::Ticket m_ticket; // the other one's address
  bool m_isPeerLoopback = false;
  std::string m_arrivedAt;
  Clock::time_point m_deadline = Clock::time_point::max();

  boost::beast::flat_buffer m_buffer;
  std::optional<boost::beast::http::request_parser<boost::beast::http::empty_body>> m_parser;
  std::string m_header; // of the answer that is being written
  std::shared_ptr<const std::string> m_body;
  bool m_keepsOpen = false;

  std::shared_ptr<WebStream> m_stream;
  WebStream::Listening m_listening; // while it is open
  std::deque<WebStream::Frame> m_waiting;
  std::size_t m_waitingBytes = 0;
  std::size_t m_mayWait = 0;  // bytes
  std::size_t m_inFlight = 0; // frames that are being written, the first ones of those that wait
  std::vector<boost::asio::const_buffer> m_buffers;
};

} // namespace hooptab
