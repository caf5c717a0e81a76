// How many can follow a game: clients who hold a stream each, and messages of one kilobyte at a pace. Each
// must have every message once, in order. The server is a process of its own, so that its memory and time can
// be told from the clients', who are one thread of this one. bench_feed [CLIENTS [MESSAGES [A_SECOND]]]
#include "publish/WebNetworks.h"
#include "publish/WebServer.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <netinet/in.h>
#include <sys/epoll.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace hooptab;

namespace {

constexpr std::size_t kFrameBytes = 1'024;
constexpr int kDigits = 19;
constexpr std::string_view kIdAt = "id: ";
constexpr std::string_view kDataAt = "\ndata: ";

struct Plan {
  int clients = 2'000;
  int messages = 200;
  int perSecond = 20;
};

// The same clock in both processes.
std::int64_t nanosecondsNow() {
  return std::chrono::steady_clock::now().time_since_epoch().count();
}

std::string digits(std::int64_t number) {
  std::array<char, 32> text = {};
  std::snprintf(text.data(), text.size(), "%0*" PRId64, kDigits, number);
  return text.data();
}

class PacedStream : public WebStream {
 public:
  std::vector<Frame> since(std::string_view) override { return {}; }
  void say(int number) {
    std::string frame = std::string(kIdAt) + digits(number) + std::string(kDataAt) + digits(nanosecondsNow());
    frame.resize(kFrameBytes - 2, 'x');
    tell(std::make_shared<const std::string>(frame + "\n\n"));
  }
};

class PacedSource : public WebSource {
 public:
  WebAnswer answer(const WebRequest&) override { return {}; }
  std::shared_ptr<WebStream> stream(const WebRequest&) override { return paced; }
  bool isPrivate(const WebRequest&) const override { return false; }
  void tick(std::int64_t) override {}
  std::shared_ptr<PacedStream> paced = std::make_shared<PacedStream>();
};

// What the server's process has come to, through the pipe.
struct Cost {
  std::int64_t processorMicroseconds = 0;
  std::int64_t residentBytes = 0;
};

Cost costNow() {
  rusage usage = {};
  ::getrusage(RUSAGE_SELF, &usage);
  const auto microseconds = [](const timeval& time) { return time.tv_sec * 1'000'000 + time.tv_usec; };
  std::int64_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages >> pages;
  return {microseconds(usage.ru_utime) + microseconds(usage.ru_stime), pages * ::sysconf(_SC_PAGESIZE)};
}

template <typename Value>
void put(int pipe, const Value& value) {
  if (::write(pipe, &value, sizeof value) != static_cast<ssize_t>(sizeof value))
    std::exit(2);
}
template <typename Value>
Value get(int pipe) {
  Value value = {};
  if (::read(pipe, &value, sizeof value) != static_cast<ssize_t>(sizeof value))
    std::exit(2);
  return value;
}

// Tells its port and cost; then, when all are there, its cost, all messages, and its cost and who is left.
void runServer(const Plan& plan, int in, int out) {
  WebOptions options;
  options.limits.connections = static_cast<std::size_t>(plan.clients) + 16;
  WebServer server(options, std::make_unique<PacedSource>());
  put(out, server.port());
  put(out, costNow());
  (void)get<char>(in);
  put(out, costNow());
  auto next = std::chrono::steady_clock::now();
  for (int number = 1; number <= plan.messages; ++number) {
    server.post([number](WebSource& source) { static_cast<PacedSource&>(source).paced->say(number); });
    next += std::chrono::nanoseconds(1'000'000'000 / plan.perSecond);
    std::this_thread::sleep_until(next);
  }
  (void)get<char>(in);
  put(out, costNow());
  put(out, server.viewers());
  (void)get<char>(in);
}

struct Client {
  int socket = -1;
  std::string unread;
  bool hasHeader = false;
  int messages = 0;
};

class Clients {
 public:
  Clients(const Plan& plan, std::uint16_t port)
      : m_plan(plan), m_clients(static_cast<std::size_t>(plan.clients)) {
    for (Client& client : m_clients)
      connect(client, port);
  }
  ~Clients() {
    for (const Client& client : m_clients)
      ::close(client.socket);
    ::close(m_epoll);
  }
  Clients(const Clients&) = delete;
  Clients& operator=(const Clients&) = delete;

  // Until all have their header, or all messages.
  void awaitHeaders() {
    readUntil([this] { return m_headers == m_plan.clients; });
  }
  void awaitMessages() {
    readUntil(
        [this] { return m_delays.size() == m_clients.size() * static_cast<std::size_t>(m_plan.messages); });
  }
  [[nodiscard]] std::vector<std::int64_t> delays() const { return m_delays; } // nanoseconds

 private:
  void connect(Client& client, std::uint16_t port);
  template <typename Done>
  void readUntil(Done done);
  void read(Client& client);
  void takeFrames(Client& client);

  Plan m_plan;
  std::vector<Client> m_clients;
  int m_epoll = ::epoll_create1(0);
  int m_headers = 0;
  std::vector<std::int64_t> m_delays;
};

[[noreturn]] void fail(const char* what) {
  std::fprintf(stderr, "%s\n", what);
  std::exit(1);
}

void Clients::connect(Client& client, std::uint16_t port) {
  client.socket = ::socket(AF_INET, SOCK_STREAM, 0);
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  if (client.socket < 0 ||
      ::connect(client.socket, reinterpret_cast<sockaddr*>(&address), sizeof address) != 0)
    fail("a client cannot connect");
  constexpr std::string_view kRequest = "GET /events HTTP/1.1\r\nHost: localhost\r\n\r\n";
  if (::send(client.socket, kRequest.data(), kRequest.size(), 0) != static_cast<ssize_t>(kRequest.size()))
    fail("a client cannot ask");
  epoll_event event = {};
  event.events = EPOLLIN;
  event.data.ptr = &client;
  ::epoll_ctl(m_epoll, EPOLL_CTL_ADD, client.socket, &event);
}

template <typename Done>
void Clients::readUntil(Done done) {
  std::array<epoll_event, 256> events = {};
  while (!done()) {
    const int count = ::epoll_wait(m_epoll, events.data(), static_cast<int>(events.size()), 10'000);
    if (count <= 0)
      fail("nothing comes any more");
    for (int i = 0; i < count; ++i)
      read(*static_cast<Client*>(events[static_cast<std::size_t>(i)].data.ptr));
  }
}

void Clients::read(Client& client) {
  std::array<char, 65'536> bytes; // is filled before it is read
  const ssize_t count = ::recv(client.socket, bytes.data(), bytes.size(), MSG_DONTWAIT);
  if (count <= 0)
    fail("a client was cut off");
  client.unread.append(bytes.data(), static_cast<std::size_t>(count));
  if (!client.hasHeader) {
    const std::size_t end = client.unread.find("\r\n\r\n");
    if (end == std::string::npos)
      return;
    client.hasHeader = true;
    ++m_headers;
    client.unread.erase(0, end + 4);
  }
  takeFrames(client);
}

void Clients::takeFrames(Client& client) {
  const std::int64_t now = nanosecondsNow();
  std::size_t taken = 0;
  for (; client.unread.size() - taken >= kFrameBytes; taken += kFrameBytes) {
    const char* frame = client.unread.data() + taken;
    const char* id = frame + kIdAt.size();
    if (std::strtoll(id, nullptr, 10) != ++client.messages)
      fail("a client missed a message, or had one twice");
    m_delays.push_back(now - std::strtoll(id + kDigits + kDataAt.size(), nullptr, 10));
  }
  client.unread.erase(0, taken);
}

void print(const Plan& plan, const std::array<Cost, 3>& costs, double connecting,
           std::vector<std::int64_t> delays, double seconds) {
  std::sort(delays.begin(), delays.end());
  const auto delay = [&](double part) {
    return static_cast<double>(
               delays[static_cast<std::size_t>(part * static_cast<double>(delays.size() - 1))]) /
           1e6;
  };
  const auto megabytes = [](std::int64_t bytes) { return static_cast<double>(bytes) / 1e6; };
  const double processor =
      static_cast<double>(costs[2].processorMicroseconds - costs[1].processorMicroseconds);
  std::printf("%d clients, %d messages of %zu bytes, %d a second: each client had every one once, in order\n",
              plan.clients, plan.messages, kFrameBytes, plan.perSecond);
  std::printf("connecting        %8.0f ms\n", connecting * 1e3);
  std::printf("delivered         %8.0f messages a second\n", static_cast<double>(delays.size()) / seconds);
  std::printf("delay             %8.1f ms median, %.1f ms for 99 of 100, %.1f ms the longest\n", delay(0.5),
              delay(0.99), delay(1));
  std::printf("server's memory   %8.1f MB before, %.1f MB with all clients, %.1f MB at the end\n",
              megabytes(costs[0].residentBytes), megabytes(costs[1].residentBytes),
              megabytes(costs[2].residentBytes));
  std::printf(
      "server's time     %8.2f s of a processor: %.1f us a message and client, %.0f %% of one processor\n",
      processor / 1e6, processor / static_cast<double>(delays.size()), processor / 1e4 / seconds);
}

int measure(const Plan& plan, int in, int out) {
  const auto files = static_cast<std::size_t>(plan.clients) + 64;
  if (raiseFileLimit(files) < files)
    fail("the system does not allow for so many connections");
  std::array<Cost, 3> costs;
  const auto port = get<std::uint16_t>(in);
  costs[0] = get<Cost>(in);
  const auto secondsFrom = [](std::int64_t begin) {
    return static_cast<double>(nanosecondsNow() - begin) / 1e9;
  };
  std::int64_t begin = nanosecondsNow();
  Clients clients(plan, port);
  clients.awaitHeaders();
  const double connecting = secondsFrom(begin);
  put(out, 'a');
  costs[1] = get<Cost>(in);
  begin = nanosecondsNow();
  clients.awaitMessages();
  const double seconds = secondsFrom(begin);
  put(out, 'b');
  costs[2] = get<Cost>(in);
  const bool allLeft = get<int>(in) == plan.clients;
  put(out, 'c');
  print(plan, costs, connecting, clients.delays(), seconds);
  return allLeft ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  Plan plan;
  const std::array<int*, 3> numbers = {&plan.clients, &plan.messages, &plan.perSecond};
  for (int i = 1; i < argc && i <= 3; ++i)
    *numbers[static_cast<std::size_t>(i - 1)] = std::max(1, std::atoi(argv[i]));
  std::array<int, 2> toServer = {};
  std::array<int, 2> fromServer = {};
  if (::pipe(toServer.data()) != 0 || ::pipe(fromServer.data()) != 0)
    return 2;
  const pid_t child = ::fork();
  if (child == 0) {
    ::close(toServer[1]); // so that it ends with the one who measures
    runServer(plan, toServer[0], fromServer[1]);
    return 0;
  }
  ::close(fromServer[1]);
  const int result = measure(plan, fromServer[0], toServer[1]);
  ::waitpid(child, nullptr, 0);
  return result;
}
