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
constexpr int kMoved = 308;

// The pages that can be asked for, and their files.
struct Page {
  std::string_view address;
  std::string_view file;
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
                               Page{"/season", "season.html"},
                               Page{"/games", "games.html"}};

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
    m_fixed[page == kPages.end() ? "/pages/" + std::string(file.name) : std::string(page->address)] = answer;
  }
  for (const LanguageFacts& facts : kLanguages)
    m_fixed["/words/" + std::string(facts.code) + ".json"] =
        constant(wordsJson(m_texts, facts.language), kJson);
  m_fixed["/court.json"] = constant(courtJson(), kJson);
  m_games.push_back({{}, std::make_unique<WebGame>(m_texts, m_options)});
}

void WebSite::show(const std::string& name, const WebGame::Shown& game, bool isClockKnown,
                   std::optional<std::int64_t> at) {
  WebGame* known = gameNamed(name);
  if (known == nullptr && m_games.front().name.empty()) {
    m_games.front().name = name;
    known = m_games.front().game.get();
  } else if (known == nullptr) {
    m_games.push_back({name, std::make_unique<WebGame>(m_texts, m_options)});
    known = m_games.back().game.get();
  }
  known->show(game, at.value_or(m_clock()), isClockKnown);
}

void WebSite::remove(const std::string& name) {
  if (m_games.size() > 1)
    std::erase_if(m_games, [&name](const Named& named) { return named.name == name; });
  else if (m_games.front().name == name)
    m_games.front().game->show(nullptr, m_clock(), false);
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

WebGame* WebSite::gameNamed(std::string_view name) const {
  const auto found = std::ranges::find(m_games, name, &Named::name);
  return found == m_games.end() ? nullptr : found->game.get();
}

WebSite::Place WebSite::placeOf(std::string_view path) const {
  if (!path.starts_with(kGames))
    return {m_games.front().game.get(), path};
  const std::size_t end = path.find('/', kGames.size());
  if (end == std::string_view::npos)
    return {};
  return {gameNamed(path.substr(kGames.size(), end - kGames.size())), path.substr(end)};
}

bool WebSite::isPrivate(const WebRequest& request) const {
  return placeOf(request.path).rest.starts_with("/api/bench") || placeOf(request.path).rest == "/bench";
}

std::optional<WebAnswer> WebSite::fixed(std::string_view path) const {
  const auto found = m_fixed.find(path);
  return found == m_fixed.end() ? std::nullopt : std::optional(found->second);
}

WebAnswer WebSite::answer(const WebRequest& request) {
  if (request.path == "/api/games")
    return answerOf(gamesJson(), kJson);
  if (request.path == "/api/season" && m_season) {
    WebAnswer answer = answerOf({}, kJson);
    answer.body = m_season;
    return answer;
  }
  const Place place = placeOf(request.path);
  if (request.path.starts_with(kGames) && place.rest.empty() &&
      gameNamed(std::string_view(request.path).substr(kGames.size())) != nullptr) {
    WebAnswer moved = answerOf({}, "text/plain; charset=utf-8");
    moved.status = kMoved;
    moved.location = request.path + '/';
    return moved;
  }
  return place.game == nullptr ? notFound() : answerOfGame(*place.game, place.rest, request);
}

WebAnswer WebSite::answerOfGame(WebGame& game, std::string_view what, const WebRequest& request) {
  if (what == "/api/game") {
    const bool isScore = request.parameter("parts") == "score";
    WebAnswer answer = answerOf({}, kJson);
    answer.body = isScore ? game.feed()->score() : game.feed()->game();
    answer.tag = game.feed()->id() + (isScore ? "-score" : "");
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
  return fixed(what).value_or(notFound());
}

std::shared_ptr<WebStream> WebSite::stream(const WebRequest& request) {
  const Place place = placeOf(request.path);
  if (place.game == nullptr)
    return nullptr;
  if (place.rest == "/events")
    return place.game->feed();
  if (place.rest == "/api/bench/events")
    return place.game->benchStream(sideOf(request), languageOf(request), m_clock());
  return nullptr;
}

std::string WebSite::gamesJson() const {
  JsonWriter json;
  json.beginArray();
  for (const Named& named : m_games) {
    const WebGame::Shown& game = named.game->publicGame();
    if (!game)
      continue;
    json.beginObject();
    json.beginLine();
    json.member("name", named.name);
    json.member("state", feedState(*game));
    json.member("date", game->counted.game.details.date);
    json.member("period", game->period);
    json.name("teams");
    json.beginArray();
    for (const Side team : kSides) {
      json.beginObject();
      json.member("abb", game->counted.game.details.abbreviation[team]);
      json.member("name", game->counted.game.details.name[team]);
      json.member("points", game->counted.state.points(team));
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
