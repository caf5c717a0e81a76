#include "publish/GameShare.h"

#include "publish/WebSite.h"

#include <chrono>

namespace hooptab {

namespace {

constexpr std::string_view kGameName = "game"; // in addresses: it is the only one

std::int64_t wallClock() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

void show(WebServer& server, const WebGame::Moment& moment) {
  server.post([moment](WebSource& source) {
    static_cast<WebSite&>(source).show(std::string(kGameName), moment); // which is what it was given
  });
}

} // namespace

WebOptions webOptionsOf(const ShareChoice& choice) {
  WebOptions options;
  options.address = choice.address;
  options.port = choice.port;
  options.passPhrase = choice.passPhrase;
  return options;
}

GameShare::GameShare(const ShareChoice& choice)
    : m_server(std::make_shared<WebServer>(webOptionsOf(choice),
                                           std::make_unique<WebSite>(wallClock, choice.feed))) {}

GameShare::~GameShare() = default;

void GameShare::follow(GameSession& session) {
  m_following.reset();
  m_following = session.follow([reached = std::weak_ptr(m_server)](const RunningGame& game) {
    if (const std::shared_ptr<WebServer> server = reached.lock())
      show(*server, {std::make_shared<const RunningGame>(game), wallClock(), true});
    return true;
  });
}

void GameShare::leave() {
  m_following.reset();
  show(*m_server, {nullptr, wallClock(), false});
}

void GameShare::setFeed(const FeedOptions& options) {
  m_server->post([options](WebSource& source) { static_cast<WebSite&>(source).setOptions(options); });
}

} // namespace hooptab
