#include "publish/FeedChannel.h"

#include "publish/JsonLines.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <random>

namespace hooptab {

namespace {

// One that no other start of a server has had.
std::string newEpoch() {
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
  std::random_device source;
  std::string epoch;
  for (int letter = 0; letter < 8; ++letter)
    epoch += kLetters[source() % kLetters.size()];
  return epoch;
}

FeedJson scoreOf(FeedJson game) {
  game.erase("flow");
  if (const auto teams = game.find("teams"); teams != game.end()) {
    for (FeedJson& team : *teams)
      team.erase("players");
  }
  const auto plays = game.find("plays");
  if (plays == game.end())
    return game;
  FeedJson last = FeedJson::array();
  for (auto play = plays->rbegin(); play != plays->rend() && last.size() < FeedChannel::kPlaysOfScore; ++play)
    if (play->value("kind", "") != "substitution")
      last.insert(last.begin(), *play);
  *plays = std::move(last);
  return game;
}

} // namespace

FeedChannel::FeedChannel() : m_epoch(newEpoch()) {}
FeedChannel::~FeedChannel() = default;

std::string FeedChannel::id() const {
  return m_epoch + '-' + std::to_string(m_number);
}

void FeedChannel::show(const std::string& game, bool isAnother) {
  FeedJson after = FeedJson::parse(game);
  if (!m_document || isAnother) {
    ++m_number;
    m_changes.clear();
    keep(std::move(after));
    tell(resetFrame());
    return;
  }
  const std::optional<FeedJson> difference = feedChange(*m_document, after);
  if (!difference)
    return;
  ++m_number;
  FeedJson change = {{"id", id()}};
  change.update(*difference);
  Change kept{oneLine(change), nullptr};
  kept.frame = std::make_shared<const std::string>("id: " + id() + "\ndata: " + kept.data + "\n\n");
  m_changes.push_back(std::move(kept));
  if (m_changes.size() > kKept)
    m_changes.pop_front();
  keep(std::move(after));
  tell(m_changes.back().frame);
}

void FeedChannel::keep(FeedJson game) {
  game["id"] = id();
  m_game = std::make_shared<const std::string>(oneLine(game) + '\n');
  m_score = std::make_shared<const std::string>(oneLine(scoreOf(game)) + '\n');
  m_document = std::make_unique<FeedJson>(std::move(game));
}

void FeedChannel::beat(std::int64_t now) {
  const FeedJson data = {{"at", now}, {"id", id()}};
  tell(std::make_shared<const std::string>("event: beat\ndata: " + oneLine(data) + "\n\n"));
}

std::optional<std::size_t> FeedChannel::behind(std::string_view lastId) const {
  const std::size_t dash = lastId.find('-');
  if (dash == std::string_view::npos || lastId.substr(0, dash) != m_epoch)
    return std::nullopt;
  const std::string_view digits = lastId.substr(dash + 1);
  std::int64_t number = -1;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  const std::int64_t missed = m_number - number;
  if (read.ec != std::errc() || read.ptr != digits.data() + digits.size() || missed < 0 ||
      missed > static_cast<std::int64_t>(m_changes.size()))
    return std::nullopt;
  return static_cast<std::size_t>(missed);
}

WebStream::Frame FeedChannel::resetFrame() const {
  const FeedJson data = {{"id", id()}};
  return std::make_shared<const std::string>("event: reset\nid: " + id() + "\ndata: " + oneLine(data) +
                                             "\n\n");
}

std::vector<WebStream::Frame> FeedChannel::since(std::string_view lastId) {
  if (lastId.empty())
    return {};
  const std::optional<std::size_t> missed = behind(lastId);
  if (!missed)
    return {resetFrame()};
  std::vector<Frame> frames;
  for (std::size_t place = m_changes.size() - *missed; place < m_changes.size(); ++place)
    frames.push_back(m_changes[place].frame);
  return frames;
}

std::string FeedChannel::changesSince(std::string_view lastId) const {
  const std::optional<std::size_t> missed = behind(lastId);
  std::string answer = R"({"id":")" + id() + '"';
  if (!missed)
    return answer + ",\"reset\":true}\n";
  answer += ",\"changes\":[";
  for (std::size_t place = m_changes.size() - *missed; place < m_changes.size(); ++place)
    answer += (place + *missed == m_changes.size() ? "" : ",") + m_changes[place].data;
  return answer + "]}\n";
}

} // namespace hooptab
