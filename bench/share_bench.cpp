// What sharing costs the one who records: events of a running game while nobody shares it, and while it is
// shared with so many viewers, who hold a stream each in a process of their own. bench_share [VIEWERS...]
#include "live_measure.h"

#include "publish/GameShare.h"
#include "publish/WebNetworks.h"

#include <arpa/inet.h>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <netinet/in.h>
#include <optional>
#include <sys/epoll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace hooptab;

namespace {

constexpr int kEvents = 300;
constexpr std::chrono::milliseconds kPace{60}; // faster than anybody talks

// Holds so many streams and reads them until it is killed.
[[noreturn]] void watch(std::uint16_t port, int viewers) {
  if (raiseFileLimit(static_cast<std::size_t>(viewers) + 64) < static_cast<std::size_t>(viewers))
    std::_Exit(EXIT_FAILURE);
  const int events = ::epoll_create1(0);
  constexpr std::string_view kRequest = "GET /events HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n";
  sockaddr_in address = {};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  for (int viewer = 0; viewer < viewers; ++viewer) {
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    epoll_event event = {};
    event.events = EPOLLIN;
    event.data.fd = socket;
    if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        ::send(socket, kRequest.data(), kRequest.size(), MSG_NOSIGNAL) < 0 ||
        ::epoll_ctl(events, EPOLL_CTL_ADD, socket, &event) != 0)
      std::_Exit(EXIT_FAILURE);
  }
  std::array<epoll_event, 256> ready = {};
  std::array<char, 65536> bytes = {};
  for (;;) {
    const int count = ::epoll_wait(events, ready.data(), static_cast<int>(ready.size()), -1);
    for (int i = 0; i < count; ++i)
      (void)::recv(ready.at(static_cast<std::size_t>(i)).data.fd, bytes.data(), bytes.size(), 0);
  }
}

void measure(const std::filesystem::path& folder, std::optional<int> viewers) {
  FileSystem files;
  ProfileStore store(files);
  StandingTime time;
  GameSession session(store, time);
  if (session.change()->open(liveGameOf(600, folder)) != GameFileProblem::None ||
      !putFiveOnCourt(*session.change()))
    std::exit(EXIT_FAILURE);
  std::optional<GameShare> share;
  pid_t watching = 0;
  if (viewers) {
    ShareChoice choice;
    choice.port = 0;
    share.emplace(choice);
    share->follow(session);
    watching = ::fork();
    if (watching == 0)
      watch(share->port(), *viewers);
    while (share->viewers() < *viewers)
      std::this_thread::sleep_for(kPace);
  }
  std::vector<double> spent;
  for (int event = 0; event < kEvents; ++event) {
    const BenchClock::time_point start = BenchClock::now();
    const bool isRecorded = session.change()->recordAction(*sideOf(event % 2), 1 + event % 5, EventCode::STO);
    spent.push_back(milliseconds(BenchClock::now() - start));
    if (!isRecorded)
      std::exit(EXIT_FAILURE);
    std::this_thread::sleep_for(kPace);
  }
  const std::string what = !viewers ? "not shared" : "shared, viewers " + std::to_string(*viewers);
  if (viewers && share->viewers() != *viewers)
    std::printf("%s: only %d were left at the end\n", what.c_str(), share->viewers());
  printFigures(what.c_str(), std::move(spent));
  if (watching > 0) {
    ::kill(watching, SIGKILL);
    ::waitpid(watching, nullptr, 0);
  }
}

} // namespace

int main(int argc, char* argv[]) {
  const std::filesystem::path folder = liveBenchFolder();
  measure(folder, std::nullopt);
  if (argc < 2)
    for (const int viewers : {0, 500, 2000})
      measure(folder, viewers);
  for (int argument = 1; argument < argc; ++argument)
    measure(folder, std::atoi(argv[argument]));
  measure(folder, std::nullopt);
  return EXIT_SUCCESS;
}
