#include "publish/WebConnection.h"

#include <boost/asio/write.hpp>
#include <boost/beast/http/read.hpp>

#include <span>

#if __has_include(<netinet/tcp.h>)
#include <netinet/tcp.h>
#include <sys/socket.h>
#endif

namespace hooptab {

namespace asio = boost::asio;
namespace http = boost::beast::http;

namespace {

// What the system keeps for one who reads slowly; without a limit it would be megabytes for each.
constexpr int kSystemBytes = 64 * 1024;
constexpr std::size_t kFramesAtOnce = 32;
// For one who is refused and goes on sending: as long as he needs to read why.
constexpr std::chrono::milliseconds kLinger{2'000};
constexpr std::size_t kMostDiscarded = std::size_t{64} * 1024;

std::string_view viewOf(boost::beast::string_view text) {
  return {text.data(), text.size()};
}

bool isTooMuch(const boost::system::error_code& error) {
  return error == http::error::header_limit || error == http::error::buffer_overflow;
}

bool isMalformed(const boost::system::error_code& error) {
  return error.category() == make_error_code(http::error::bad_method).category() &&
         error != http::error::end_of_stream && error != http::error::partial_message;
}

asio::ip::address plain(const asio::ip::address& address) {
  if (address.is_v6() && address.to_v6().is_v4_mapped())
    return asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6());
  return address;
}

} // namespace

std::string figuresOf(const asio::ip::address& address) {
  const std::string figures = plain(address).to_string();
  return figures.substr(0, figures.find('%'));
}

bool isLoopback(const asio::ip::address& address) {
  return plain(address).is_loopback();
}

WebConnection::WebConnection(Socket socket, const WebHall& hall, WebDoor::Ticket ticket)
    : m_socket(std::move(socket)), m_hall(hall), m_ticket(std::move(ticket)),
      m_buffer(hall.limits.headerBytes) {}

WebConnection::~WebConnection() {
  close();
}

void WebConnection::start() {
  Error error;
  const auto peer = m_socket.remote_endpoint(error);
  const auto own = error ? peer : m_socket.local_endpoint(error);
  if (error) // gone again
    return;
  m_isPeerLoopback = isLoopback(peer.address());
  m_arrivedAt = figuresOf(own.address());
  prepareSocket();
  waitUpTo(m_hall.limits.headerTime);
  readHeader();
}

void WebConnection::prepareSocket() {
  Error ignored;
  m_socket.set_option(asio::ip::tcp::no_delay(true), ignored);
  m_socket.set_option(asio::socket_base::send_buffer_size(kSystemBytes), ignored);
#ifdef TCP_USER_TIMEOUT
  // A telephone that left the hall says nothing; the system notices by what is not acknowledged.
  const auto time = static_cast<unsigned>(m_hall.limits.writeTime.count());
  ::setsockopt(m_socket.native_handle(), IPPROTO_TCP, TCP_USER_TIMEOUT, &time, sizeof time);
#endif
}

void WebConnection::checkDeadline(Clock::time_point now) {
  if (now >= m_deadline)
    close();
}

void WebConnection::awaitRequest() {
  if (m_buffer.size() > 0) { // came along with the one before
    waitUpTo(m_hall.limits.headerTime);
    readHeader();
    return;
  }
  waitUpTo(m_hall.limits.idleTime);
  m_socket.async_wait(Socket::wait_read, [self = shared_from_this()](const Error& error) {
    if (error)
      return self->close();
    self->waitUpTo(self->m_hall.limits.headerTime);
    self->readHeader();
  });
}

void WebConnection::readHeader() {
  m_keepsOpen = false;
  m_parser.emplace();
  m_parser->header_limit(static_cast<std::uint32_t>(m_hall.limits.headerBytes));
  http::async_read_header(
      m_socket, m_buffer, *m_parser,
      [self = shared_from_this()](const Error& error, std::size_t) { self->takeHeader(error); });
}

void WebConnection::takeHeader(const Error& error) {
  if (isTooMuch(error))
    return refuse(431, "The header of this request is too long.");
  if (isMalformed(error))
    return refuse(400, "This is no request.");
  if (error)
    return close();
  const WebServed served = m_hall.desk.serve(asked(), Clock::now());
  if (!served.stream)
    write(served.reply, served.hasBody);
  else if (served.hasBody)
    beginStream(served);
  else
    writeHeader(headerOfStream(webNow()));
}

WebAsked WebConnection::asked() const {
  const auto& request = m_parser->get();
  const auto field = [&](auto name) { return viewOf(request[name]); };
  WebAsked asked;
  asked.method = viewOf(request.method_string());
  asked.target = viewOf(request.target());
  if (request.count(http::field::host) == 1)
    asked.host = field(http::field::host);
  asked.authorization = field(http::field::authorization);
  asked.ifNoneMatch = field(http::field::if_none_match);
  asked.lastEventId = field("Last-Event-ID");
  asked.hasBody =
      m_parser->content_length().value_or(0) > 0 || request.count(http::field::transfer_encoding) > 0;
  for (const char* name : {"Forwarded", "X-Forwarded-For", "X-Forwarded-Host", "X-Real-IP", "Via"})
    asked.isForwarded = asked.isForwarded || request.count(name) > 0;
  asked.keepsOpen = m_parser->keep_alive();
  asked.peer = *m_ticket;
  asked.isPeerLoopback = m_isPeerLoopback;
  asked.arrivedAt = m_arrivedAt;
  return asked;
}

void WebConnection::refuse(int status, std::string_view words) {
  write({wordsOfWeb(status, words), true, false, {}}, true);
}

void WebConnection::write(const WebReply& reply, bool hasBody) {
  m_body = hasBody ? reply.answer.body : nullptr;
  m_keepsOpen = reply.keepsOpen;
  writeHeader(headerOf(reply, webNow()));
}

void WebConnection::writeHeader(std::string header) {
  m_header = std::move(header);
  const std::array<asio::const_buffer, 2> buffers = {asio::buffer(m_header),
                                                     m_body ? asio::buffer(*m_body) : asio::const_buffer()};
  const auto self = shared_from_this();
  waitUpTo(m_hall.limits.writeTime);
  asio::async_write(
      m_socket, buffers,
      [self](const Error& error, std::size_t) { // each part that is taken is a sign of life
        self->waitUpTo(self->m_hall.limits.writeTime);
        return error ? 0 : kMostDiscarded;
      },
      [self](const Error& error, std::size_t) { self->afterAnswer(error); });
}

void WebConnection::afterAnswer(const Error& error) {
  m_header = {};
  m_body = nullptr;
  if (error)
    close();
  else if (m_keepsOpen)
    awaitRequest();
  else
    linger();
}

// Closed at once, what he is still sending would make the system throw away the answer that he has not read.
void WebConnection::linger() {
  Error ignored;
  m_socket.shutdown(Socket::shutdown_send, ignored);
  waitUpTo(kLinger);
  discard(kMostDiscarded);
}

void WebConnection::discard(std::size_t most) {
  m_buffer.consume(m_buffer.size());
  m_socket.async_read_some(m_buffer.prepare(m_buffer.max_size()),
                           [self = shared_from_this(), most](const Error& error, std::size_t bytes) {
                             if (error || bytes >= most)
                               self->close();
                             else
                               self->discard(most - bytes);
                           });
}

void WebConnection::beginStream(const WebServed& served) {
  m_parser.reset();
  m_buffer = boost::beast::flat_buffer();
  m_stream = served.stream;
  ++m_hall.viewers;
  m_listening = m_stream->listen([weak = weak_from_this()](const WebStream::Frame& frame) {
    if (const auto self = weak.lock())
      self->take(frame);
  });
  keep(std::make_shared<const std::string>(headerOfStream(webNow())));
  for (const WebStream::Frame& frame : served.missed)
    keep(frame);
  // What was missed may be much, and is no sign of a slow reader.
  m_mayWait = m_waitingBytes + m_hall.limits.waitingBytes;
  writeFrames();
  // Nothing more is expected of him: that there is something to read means that he has closed.
  m_socket.async_wait(Socket::wait_read, [self = shared_from_this()](const Error&) { self->close(); });
}

void WebConnection::keep(const WebStream::Frame& frame) {
  if (!frame || frame->empty())
    return;
  m_waiting.push_back(frame);
  m_waitingBytes += frame->size();
}

// Who is cut off asks again with what he has, and costs the others nothing until then.
void WebConnection::take(const WebStream::Frame& frame) {
  const bool waits = !m_waiting.empty();
  keep(frame);
  if (waits && m_waitingBytes > m_mayWait)
    close();
  else if (m_inFlight == 0)
    writeFrames();
}

void WebConnection::writeFrames() {
  if (m_waiting.empty() || !m_listening)
    return;
  m_inFlight = std::min(m_waiting.size(), kFramesAtOnce);
  m_buffers.clear();
  for (std::size_t i = 0; i < m_inFlight; ++i)
    m_buffers.push_back(asio::buffer(*m_waiting[i]));
  const auto self = shared_from_this();
  waitUpTo(m_hall.limits.writeTime);
  asio::async_write(
      m_socket, std::span<const asio::const_buffer>(m_buffers),
      [self](const Error& error, std::size_t) {
        self->waitUpTo(self->m_hall.limits.writeTime);
        return error ? 0 : kMostDiscarded;
      },
      [self](const Error& error, std::size_t) { self->afterFrames(error); });
}

void WebConnection::afterFrames(const Error& error) {
  for (; m_inFlight > 0; --m_inFlight) {
    m_waitingBytes -= m_waiting.front()->size();
    m_waiting.pop_front();
  }
  if (error)
    return close();
  if (m_waiting.empty()) {
    m_mayWait = m_hall.limits.waitingBytes;
    m_deadline = Clock::time_point::max();
  }
  writeFrames();
}

// The stream itself is kept to the end: it may be the one that is just telling.
void WebConnection::close() {
  if (m_listening) {
    m_listening = nullptr;
    --m_hall.viewers;
  }
  m_deadline = Clock::time_point::max();
  Error ignored;
  m_socket.shutdown(Socket::shutdown_both, ignored);
  m_socket.close(ignored);
}

} // namespace hooptab
