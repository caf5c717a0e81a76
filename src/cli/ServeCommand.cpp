#include "cli/ServeCommand.h"

#include "catalogue/GameCatalogue.h"
#include "feed/SeasonJson.h"
#include "publish/FolderWatch.h"
#include "publish/GameFiles.h"
#include "publish/ShareWords.h"
#include "publish/WebServer.h"
#include "publish/WebSite.h"
#include "storage/Placeholders.h"

#include <chrono>
#include <csignal>
#include <filesystem>

namespace hooptab {

namespace {

volatile std::sig_atomic_t isEnding = 0;

void end(int /*signal*/) {
  isEnding = 1;
}

std::int64_t wallClock() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

bool isFolder(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_directory(path, error);
}

class Serving {
 public:
  Serving(const Options& options, const Texts& texts, const Complain& complain)
      : m_options(options), m_texts(texts), m_complain(complain) {}

  bool run(Output& output) {
    auto site = std::make_unique<WebSite>(wallClock, FeedOptions{.names = m_options.serve.names});
    auto files = std::make_unique<GameFiles>(m_options.files, wallClock);
    for (const GameFiles::Fault& fault : files->faults())
      m_complain(withPlaceholders(m_texts.text(Text::SubjectAndWords), fault.path,
                                  gameProblemWords(fault.problem, m_texts)));
    if (files->isEmpty() && !isFolder(m_options.files.front())) {
      m_complain(std::string(m_texts.text(Text::ServeNoGame)));
      return false;
    }
    const std::size_t games = files->games().size();
    site->setShelf(std::move(files));
    site->setSeason(season());
    WebOptions web;
    web.address = m_options.serve.address;
    web.port = static_cast<std::uint16_t>(m_options.serve.port);
    web.passPhrase = m_options.serve.passPhrase;
    web.names = m_options.serve.hosts;
    try {
      WebServer server(web, std::move(site));
      tell(output, games, webAddress(web.address, server.port()));
      follow(server);
      return true;
    } catch (const WebServerError& error) {
      m_complain(shareProblemWords(error, web, m_texts));
      return false;
    }
  }

 private:
  void tell(Output& output, std::size_t games, const std::string& address) const {
    output.write(
        (games == 1 ? m_texts.withPlaceholder(Text::ServeOneGame, address)
                    : withPlaceholders(m_texts.text(Text::ServeListening), std::to_string(games), address)) +
        '\n');
    if (m_options.serve.passPhrase.empty())
      m_complain(std::string(m_texts.text(Text::ServeBenchHere)));
  }

  // Until a signal ends it. What has changed is read on the server's thread, where the games are.
  void follow(WebServer& server) {
    FolderWatch watch(m_options.files);
    if (!watch.isWatching())
      m_complain(std::string(m_texts.text(Text::ServeCannotWatch)));
    std::signal(SIGTERM, end);
    std::signal(SIGINT, end);
    // A season of thousands of games is not read for each basket of one of them.
    constexpr std::chrono::seconds kSeasonAnew{10};
    auto seasonAt = std::chrono::steady_clock::now();
    bool isSeasonOld = false;
    while (isEnding == 0) {
      constexpr std::chrono::milliseconds kLongest{500}; // a signal between two waits is not missed for long
      const std::vector<std::string> changed = watch.wait(kLongest);
      if (!changed.empty()) {
        isSeasonOld = true;
        tellChanged(server, changed);
      }
      if (!isSeasonOld || std::chrono::steady_clock::now() - seasonAt < kSeasonAnew)
        continue;
      isSeasonOld = false;
      seasonAt = std::chrono::steady_clock::now();
      if (const auto json = season())
        server.post([json](WebSource& source) { static_cast<WebSite&>(source).setSeason(json); });
    }
  }
  static void tellChanged(WebServer& server, const std::vector<std::string>& changed) {
    server.post([changed](WebSource& source) {
      auto& site = static_cast<WebSite&>(source); // which is what this server was given
      auto& shelf = static_cast<GameFiles&>(*site.shelf());
      for (const std::string& name : shelf.look(changed))
        site.refresh(name);
    });
  }

  // Of the folder that is served; null where files are.
  [[nodiscard]] std::shared_ptr<const std::string> season() {
    if (m_options.files.size() != 1 || !isFolder(m_options.files.front()))
      return nullptr;
    FileSystem system;
    GameCatalogue catalogue(system);
    if (catalogue.scan({m_options.files.front(), false}) != ScanOutcome::Done)
      return nullptr;
    const SeasonStatistics statistics(catalogue, catalogue.select({}), {{}, std::nullopt});
    return std::make_shared<const std::string>(
        seasonJson(statistics, std::nullopt, {}, PublicSeason{m_options.serve.names}));
  }

  const Options& m_options;
  const Texts& m_texts;
  const Complain& m_complain;
};

} // namespace

bool serveGames(const Options& options, const Texts& texts, Output& output, const Complain& complain) {
  return Serving(options, texts, complain).run(output);
}

} // namespace hooptab
