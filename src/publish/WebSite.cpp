#include "publish/WebSite.h"

#include "feed/BoxText.h"
#include "feed/CourtJson.h"
#include "feed/JsonWriter.h"
#include "publish/PageFiles.h"

#include <algorithm>
#include <array>
#include <functional>

namespace hooptab {

namespace {

constexpr std::string_view kGames = "/g/";
constexpr std::string_view kJson = "application/json; charset=utf-8";
constexpr std::string_view kHtml = "text/html; charset=utf-8";
constexpr int kNotFound = 404;
constexpr int kFound = 302; // elsewhere, for now
constexpr int kMoved = 308;

// The pages that can be asked for, and their files.
struct Page {
  std::string_view address;
  std::string_view file;
  bool isOfGame = true;
};
constexpr std::array kPages = {Page{"/", "score.html"},
                               Page{"/box", "box.html"},
                               Page{"/plays", "plays.html"},
                               Page{"/shots", "shots.html"},
                               Page{"/flow", "flow.html"},
                               Page{"/bench", "bench.html"},
                               Page{"/announcer", "announcer.html"},
                               Page{"/hall", "hall.html"},
                               Page{"/overlay", "overlay.html"},
                               Page{"/season", "season.html", false},
                               Page{"/games", "games.html", false}};

std::string_view typeOf(std::string_view file) {
  const std::string_view ending = file.substr(std::min(file.rfind('.'), file.size()));
  if (ending == ".html")
    return kHtml;
  if (ending == ".js")
    return "text/javascript; charset=utf-8";
  if (ending == ".css")
    return "text/css; charset=utf-8";
  return ending == ".svg" ? "image/svg+xml" : "application/octet-stream";
}

WebAnswer answerOf(std::string body, std::string_view type) {
  WebAnswer answer;
  answer.type = type;
  answer.body = std::make_shared<const std::string>(std::move(body));
  return answer;
}
// What stays as long as the program runs; asked for anew each time, and told by its tag that it is the same.
WebAnswer constant(std::string body, std::string_view type) {
  const std::size_t tag = std::hash<std::string>()(body);
  WebAnswer answer = answerOf(std::move(body), type);
  answer.tag = std::to_string(tag);
  return answer;
}
WebAnswer notFound() {
  WebAnswer answer = answerOf("404: there is nothing at this address.\n", "text/plain; charset=utf-8");
  answer.status = kNotFound;
  return answer;
}

WebAnswer moved(int status, std::string location) {
  WebAnswer answer = answerOf({}, "text/plain; charset=utf-8");
  answer.status = status;
  answer.location = std::move(location);
  return answer;
}

std::string wordsJson(const Texts& texts, Language language) {
  JsonWriter json;
  json.beginObject();
  for (const PageWord& word : pageWords()) {
    std::string key(word.key);
    key.front() = static_cast<char>(key.front() | 0x20);
    json.member(key, texts.text(word.text, language));
  }
  json.endObject();
  return json.text();
}

Side sideOf(const WebRequest& request) {
  return request.parameter("team") == "1" ? Side::Home : Side::Visitor;
}
Language languageOf(const WebRequest& request) {
  return request.parameter("lang") == factsOf(Language::French).code ? Language::French : Language::English;
}

} // namespace

WebSite::WebSite(Clock clock, const FeedOptions& options) : m_clock(std::move(clock)), m_options(options) {
  for (const PageFile& file : pageFiles()) {
    const WebAnswer answer = constant(std::string(file.content), typeOf(file.name));
    const auto page = std::ranges::find(kPages, file.name, &Page::file);
    if (page == kPages.end())
      m_files["/pages/" + std::string(file.name)] = answer;
    else
      (page->isOfGame ? m_pages : m_files)[std::string(page->address)] = answer;
  }
  for (const LanguageFacts& facts : kLanguages)
    m_files["/words/" + std::string(facts.code) + ".json"] =
        constant(wordsJson(m_texts, facts.language), kJson);
  m_files["/court.json"] = constant(courtJson(), kJson);
}

void WebSite::show(const std::string& name, const WebGame::Moment& moment) {
  // Who came before the first game was there sees it begin.
  if (m_shelf == nullptr && m_games.size() == 1 && m_games.front().name.empty())
    m_games.front().name = name;
  WebGame* game = known(name);
  (game == nullptr ? add(name) : *game).show(moment);
}

WebGame& WebSite::add(const std::string& name) {
  constexpr std::size_t kMost = 64; // that are kept though nobody follows them
  if (m_games.size() >= kMost)
    std::erase_if(m_games, [](const Named& named) { return !named.game->isHeard(); });
  m_games.push_back({name, std::make_unique<WebGame>(m_texts, m_options)});
  return *m_games.back().game;
}

void WebSite::refresh(const std::string& name) {
  WebGame* game = known(name);
  if (game == nullptr || m_shelf == nullptr)
    return;
  // One that cannot be read for a moment, while another program writes it, stays as it was.
  if (const std::optional<WebGame::Moment> moment = m_shelf->load(name))
    game->show(*moment);
  else if (std::ranges::find(m_shelf->games(), name, &WebListing::name) == m_shelf->games().end())
    std::erase_if(m_games, [&name](const Named& named) { return named.name == name; });
}

void WebSite::setOptions(const FeedOptions& options) {
  m_options = options;
  for (const Named& named : m_games)
    named.game->setOptions(options, m_clock());
}

void WebSite::setSeason(std::shared_ptr<const std::string> json) {
  m_season = std::move(json);
}

void WebSite::tick(std::int64_t now) {
  for (const Named& named : m_games)
    named.game->tick(now);
}

WebGame* WebSite::known(std::string_view name) const {
  const auto found = std::ranges::find(m_games, name, &Named::name);
  return found == m_games.end() ? nullptr : found->game.get();
}

WebGame* WebSite::gameNamed(std::string_view name) {
  WebGame* game = known(name);
  if (game != nullptr || m_shelf == nullptr)
    return game;
  const std::optional<WebGame::Moment> moment = m_shelf->load(name);
  if (!moment)
    return nullptr;
  game = &add(std::string(name));
  game->show(*moment);
  return game;
}

// The only game; where none is recorded, one that says so.
WebGame* WebSite::atRoot() {
  if (m_shelf != nullptr)
    return m_shelf->games().size() == 1 ? gameNamed(m_shelf->games().front().name) : nullptr;
  return m_games.empty() ? &add({}) : m_games.back().game.get();
}

WebSite::Place WebSite::placeOf(std::string_view path) {
  if (!path.starts_with(kGames))
    return {atRoot(), path};
  const std::size_t end = path.find('/', kGames.size());
  if (end == std::string_view::npos)
    return {gameNamed(path.substr(kGames.size())), {}};
  return {gameNamed(path.substr(kGames.size(), end - kGames.size())), path.substr(end)};
}

bool WebSite::isPrivate(const WebRequest& request) const {
  std::string_view path = request.path;
  if (path.starts_with(kGames))
    path.remove_prefix(std::min(path.find('/', kGames.size()), path.size()));
  return path.starts_with("/api/bench") || path == "/bench";
}

WebAnswer WebSite::answer(const WebRequest& request) {
  if (const auto file = m_files.find(request.path); file != m_files.end())
    return file->second;
  if (request.path == "/api/games")
    return answerOf(gamesJson(), kJson);
  if (request.path == "/api/season" && m_season) {
    WebAnswer answer = answerOf({}, kJson);
    answer.body = m_season;
    return answer;
  }
  const Place place = placeOf(request.path);
  if (place.game == nullptr && request.path == "/")
    return m_files.at("/games");
  if (place.game == nullptr) // of several games none stands at the root
    return m_pages.contains(request.path) ? moved(kFound, "/") : notFound();
  if (place.rest.empty())
    return moved(kMoved, request.path + '/');
  return answerOfGame(*place.game, place.rest, request);
}

WebAnswer WebSite::answerOfGame(WebGame& game, std::string_view what, const WebRequest& request) {
  if (what == "/api/game" || what == "/api/bench/game") {
    const FeedChannel& feed = what == "/api/game" ? *game.feed() : *game.direct();
    const bool isScore = request.parameter("parts") == "score";
    WebAnswer answer = answerOf({}, kJson);
    answer.body = isScore ? feed.score() : feed.game();
    answer.tag = feed.id() + (isScore ? "-score" : "");
    answer.maxAge = 1;
    return answer;
  }
  if (what == "/api/events")
    return answerOf(game.feed()->changesSince(request.parameter("after")), kJson);
  if (what == "/api/bench") {
    WebAnswer answer = answerOf({}, kJson);
    answer.body = game.bench(sideOf(request), languageOf(request), m_clock());
    return answer;
  }
  if (what == "/text" && game.publicGame()) {
    m_texts.setLanguage(languageOf(request));
    return answerOf(boxText(game.publicGame()->counted, m_texts), "text/plain; charset=utf-8");
  }
  const auto page = m_pages.find(what);
  return page == m_pages.end() ? notFound() : page->second;
}

std::shared_ptr<WebStream> WebSite::stream(const WebRequest& request) {
  const Place place = placeOf(request.path);
  if (place.game == nullptr)
    return nullptr;
  if (place.rest == "/events")
    return place.game->feed();
  if (place.rest == "/api/bench/changes")
    return place.game->direct();
  if (place.rest == "/api/bench/events")
    return place.game->benchStream(sideOf(request), languageOf(request), m_clock());
  return nullptr;
}

WebListing webListing(const std::string& name, const RunningGame& game) {
  const GameDetails& details = game.counted.game.details;
  return {name,
          details.date,
          std::string(feedState(game)),
          game.period,
          details.abbreviation,
          details.name,
          {game.counted.state.points(Side::Visitor), game.counted.state.points(Side::Home)}};
}

std::string WebSite::gamesJson() const {
  std::vector<WebListing> listings;
  if (m_shelf != nullptr)
    listings.assign(m_shelf->games().begin(), m_shelf->games().end());
  for (const Named& named : m_games) {
    if (m_shelf == nullptr && named.game->publicGame())
      listings.push_back(webListing(named.name, *named.game->publicGame()));
  }
  JsonWriter json;
  json.beginArray();
  for (const WebListing& listing : listings) {
    json.beginObject();
    json.beginLine();
    json.member("name", listing.name);
    json.member("state", listing.state);
    json.member("date", listing.date);
    json.member("period", listing.period);
    json.name("teams");
    json.beginArray();
    for (const Side team : kSides) {
      json.beginObject();
      json.member("abb", listing.abbreviation[team]);
      json.member("name", listing.team[team]);
      json.member("points", listing.points[team]);
      json.endObject();
    }
    json.endArray();
    json.endObject();
    json.endLine();
  }
  json.endArray();
  return json.text();
}

std::string webName(std::string_view fileName) {
  std::string name;
  for (const char letter : fileName.substr(0, fileName.rfind('.'))) {
    const bool isPlain = (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
                         (letter >= '0' && letter <= '9') || letter == '_';
    if (isPlain)
      name += letter;
    else if (!name.empty() && name.back() != '-')
      name += '-';
  }
  while (name.ends_with('-'))
    name.pop_back();
  return name;
}

} // namespace hooptab
