#include "publish/WebServer.h"

#include "publish/WebConnection.h"
#include "publish/WebNetworks.h"

#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/v6_only.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>

#include <algorithm>
#include <cerrno>
#include <thread>

namespace hooptab {

namespace asio = boost::asio;
using asio::ip::tcp;
using Error = boost::system::error_code;

namespace {

constexpr std::chrono::milliseconds kSweep{250};       // how closely the ends of waits are kept
constexpr std::chrono::milliseconds kAcceptPause{100}; // until there may be files again
constexpr std::size_t kFilesOfProgram = 256;           // are not given to connections

WebServerProblem problemOf(int errorNumber) {
  switch (errorNumber) {
  case EADDRINUSE: return WebServerProblem::PortTaken;
  case EADDRNOTAVAIL: return WebServerProblem::AddressNotHere;
  case EACCES:
  case EPERM: return WebServerProblem::NotAllowed;
  default: return WebServerProblem::Other;
  }
}

std::size_t connectionsOfSystem(const WebLimits& limits) {
  const std::size_t files = raiseFileLimit(limits.connections + kFilesOfProgram);
  return files > 2 * kFilesOfProgram ? files - kFilesOfProgram : files / 2;
}

// What somebody's code throws is no reason to stop serving.
template <typename Work>
void guarded(Work&& work) {
  try {
    work();
  } catch (...) {
  }
}

} // namespace

WebServerError::WebServerError(WebServerProblem problem, int errorNumber)
    : std::runtime_error("the web server cannot listen: " + std::system_category().message(errorNumber)),
      m_problem(problem), m_errorNumber(errorNumber) {}

class WebServer::Loop {
 public:
  Loop(WebOptions options, std::unique_ptr<WebSource> source);
  ~Loop();
  Loop(const Loop&) = delete;
  Loop& operator=(const Loop&) = delete;

  [[nodiscard]] std::uint16_t port() const { return m_port; }
  [[nodiscard]] int viewers() const { return m_viewers; }
  void post(std::function<void(WebSource&)> work);

 private:
  void listen();
  void accept();
  void take(tcp::socket socket);
  void sweep();
  void tick();

  const WebOptions m_options;
  const std::unique_ptr<WebSource> m_source;
  std::atomic<int> m_viewers = 0;
  WebDesk m_desk;
  WebDoor m_door;
  const WebHall m_hall{m_desk, m_options.limits, m_viewers};
  std::uint16_t m_port = 0;
  // What waits holds connections, which hold some of the above.
  asio::io_context m_context;
  tcp::acceptor m_acceptor{m_context};
  asio::steady_timer m_pause{m_context};
  asio::steady_timer m_sweep{m_context};
  asio::steady_timer m_second{m_context};
  std::vector<std::weak_ptr<WebConnection>> m_connections;
  std::thread m_thread;
};

WebServer::Loop::Loop(WebOptions options, std::unique_ptr<WebSource> source)
    : m_options(std::move(options)), m_source(std::move(source)),
      m_desk(*m_source, WebHosts(machineName(), m_options.names), WebPass(m_options.passPhrase)),
      m_door(m_options.limits, connectionsOfSystem(m_options.limits)) {
  listen();
  accept();
  sweep();
  tick();
  m_thread = std::thread([this] {
    while (!m_context.stopped())
      guarded([this] { m_context.run(); });
  });
}

WebServer::Loop::~Loop() {
  m_context.stop();
  m_thread.join();
}

void WebServer::Loop::listen() {
  Error error;
  const asio::ip::address address = asio::ip::make_address(m_options.address, error);
  if (error)
    throw WebServerError(WebServerProblem::NoAddress, 0);
  const tcp::endpoint endpoint(address, m_options.port);
  m_acceptor.open(endpoint.protocol(), error);
  if (!error)
    m_acceptor.set_option(tcp::acceptor::reuse_address(true), error);
  if (!error && address.is_v6())
    m_acceptor.set_option(asio::ip::v6_only(!address.is_unspecified()), error);
  if (!error)
    m_acceptor.bind(endpoint, error);
  if (!error)
    m_acceptor.listen(tcp::acceptor::max_listen_connections, error);
  if (!error)
    m_port = m_acceptor.local_endpoint(error).port();
  if (error)
    throw WebServerError(problemOf(error.value()), error.value());
}

void WebServer::Loop::accept() {
  m_acceptor.async_accept([this](const Error& error, tcp::socket socket) {
    if (!error) {
      guarded([&] { take(std::move(socket)); });
      return accept();
    }
    m_pause.expires_after(kAcceptPause);
    m_pause.async_wait([this](const Error&) { accept(); });
  });
}

void WebServer::Loop::take(tcp::socket socket) {
  Error error;
  const asio::ip::address address = socket.remote_endpoint(error).address();
  if (error) // gone again
    return;
  if (WebDoor::Ticket ticket = m_door.admit(figuresOf(address), isLoopback(address))) {
    const auto connection = std::make_shared<WebConnection>(std::move(socket), m_hall, std::move(ticket));
    m_connections.push_back(connection);
    connection->start();
    return;
  }
  const WebReply full{
      wordsOfWeb(503, "There are too many connections.\nIl y a trop de connexions."), true, false, {}};
  const std::string text = headerOf(full, webNow()) + *full.answer.body;
  socket.non_blocking(true, error);
  socket.write_some(asio::buffer(text), error);
}

void WebServer::Loop::sweep() {
  const auto now = WebConnection::Clock::now();
  std::erase_if(m_connections, [&](const std::weak_ptr<WebConnection>& weak) {
    const auto connection = weak.lock();
    if (connection)
      connection->checkDeadline(now);
    return !connection;
  });
  m_sweep.expires_after(kSweep);
  m_sweep.async_wait([this](const Error&) { sweep(); });
}

void WebServer::Loop::tick() {
  m_second.expires_after(std::chrono::seconds(1));
  m_second.async_wait([this](const Error&) {
    guarded([&] { m_source->tick(webNow()); });
    tick();
  });
}

void WebServer::Loop::post(std::function<void(WebSource&)> work) {
  asio::post(m_context, [this, work = std::move(work)] { work(*m_source); });
}

WebServer::WebServer(WebOptions options, std::unique_ptr<WebSource> source)
    : m_loop(std::make_unique<Loop>(std::move(options), std::move(source))) {}
WebServer::~WebServer() = default;
std::uint16_t WebServer::port() const {
  return m_loop->port();
}
int WebServer::viewers() const {
  return m_loop->viewers();
}
void WebServer::post(std::function<void(WebSource&)> work) {
  m_loop->post(std::move(work));
}

} // namespace hooptab
