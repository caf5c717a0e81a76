#include "game/DetailChoices.h"

#include "game/DetailWords.h"
#include "game/EventDetails.h"
#include "game/EventWords.h"
#include "game/PlayerLookup.h"
#include "storage/Placeholders.h"

#include <algorithm>

namespace hooptab {

namespace {

enum class From { Kinds, Opponents, Awards, Throws, FastBreak, Teams };

struct Row {
  EventCode code; // GFG stands for every field goal
  std::string_view key;
  Text caption;
  From from;
  RecordingLevel level; // from which on it is asked for
};
constexpr RecordingLevel kLeague = RecordingLevel::League;
constexpr RecordingLevel kFull = RecordingLevel::Full;
constexpr Row kRows[] = {
    {EventCode::SPF, detail_key::kKind, Text::InDetail, From::Kinds, kLeague},
    {EventCode::SPF, detail_key::kDrawnBy, Text::DrawnByCaption, From::Opponents, kLeague},
    {EventCode::SPF, detail_key::kFreeThrows, Text::ThrowsAwarded, From::Awards, kLeague},
    {EventCode::STF, detail_key::kDrawnBy, Text::DrawnByCaption, From::Opponents, kLeague},
    {EventCode::STF, detail_key::kFreeThrows, Text::ThrowsAwarded, From::Awards, kLeague},
    {EventCode::XCF, detail_key::kKind, Text::InDetail, From::Kinds, kLeague},
    {EventCode::XCF, detail_key::kFreeThrows, Text::ThrowsAwarded, From::Awards, kLeague},
    {EventCode::SBS, detail_key::kShooter, Text::ShotByCaption, From::Opponents, kLeague},
    {EventCode::GFT, detail_key::kNumberOfThrow, Text::WhichThrow, From::Throws, kLeague},
    {EventCode::XTO, detail_key::kKind, Text::InDetail, From::Kinds, kLeague},
    {EventCode::XJB, detail_key::kWonBy, Text::WonByCaption, From::Teams, kLeague},
    {EventCode::STO, detail_key::kKind, Text::InDetail, From::Kinds, kFull},
    {EventCode::XTV, detail_key::kKind, Text::InDetail, From::Kinds, kFull},
    {EventCode::GFG, detail_key::kKind, Text::InDetail, From::Kinds, kFull},
    {EventCode::GFG, detail_key::kFastBreak, Text::PlayCaption, From::FastBreak, kFull},
};

EventCode rowCode(EventCode code) {
  return code >= EventCode::GFG && code != EventCode::GFT ? EventCode::GFG : code;
}

class Choices {
 public:
  Choices(const Game& game, const GameEvent& event, const Texts& texts)
      : m_game(game), m_event(event), m_texts(texts), m_words(game, texts) {}

  [[nodiscard]] DetailChoice of(const Row& row) const {
    DetailChoice choice{.key = row.key, .caption = row.caption, .values = {{{}, "–"}}};
    add(row.from, choice.values);
    const std::string held(m_event.detail(row.key).value_or(""));
    const auto known = std::ranges::find_if(
        choice.values, [&](const DetailChoice::Value& value) { return isSame(row.from, value.value, held); });
    choice.held = static_cast<std::size_t>(known - choice.values.begin());
    if (known == choice.values.end())
      choice.values.push_back({held, other(row.from, held)});
    return choice;
  }

 private:
  void add(From from, std::vector<DetailChoice::Value>& values) const {
    constexpr int kMostThrows = 3;
    switch (from) {
    case From::Kinds:
      for (const KindWord& kind : detailKinds(m_event.code)) {
        if (kind.value != "MEDIA") // which is nobody's
          values.push_back({std::string(kind.value), std::string(m_texts.text(kind.text))});
      }
      break;
    case From::Opponents: {
      const Side side = otherSide(*m_event.player.team);
      for (const RosterPlayer& player : m_game.roster[side].players())
        values.push_back(
            {std::to_string(numberOf(side)) + '-' + player.jersey, m_words.player({side, player.jersey})});
      break;
    }
    case From::Awards:
      for (int count = 0; count <= kMostThrows; ++count)
        values.push_back({std::to_string(count), std::to_string(count)});
      break;
    case From::Throws:
      for (int most = 1; most <= kMostThrows; ++most)
        for (int number = 1; number <= most; ++number)
          values.push_back(
              {std::to_string(number) + '/' + std::to_string(most),
               withPlaceholders(m_texts.text(Text::ThrowOf), std::to_string(number), std::to_string(most))});
      break;
    case From::FastBreak: values.push_back({"F", std::string(m_texts.text(Text::OnFastBreak))}); break;
    case From::Teams:
      for (const Side side : kSides)
        values.push_back({std::to_string(numberOf(side)), std::string(m_words.team(side))});
      break;
    }
  }
  // What is none of the values that are offered.
  [[nodiscard]] std::string other(From from, const std::string& held) const {
    const auto player = PlayerReference::read(held);
    return from == From::Opponents && player ? m_words.player(*player) : held;
  }
  // A jersey may be written in several ways.
  [[nodiscard]] bool isSame(From from, const std::string& value, const std::string& held) const {
    if (value == held || from != From::Opponents)
      return value == held;
    const auto one = PlayerReference::read(value);
    const auto other = PlayerReference::read(held);
    return one && other && one->team == other->team &&
           findPlayer(m_game.roster[*one->team], one->jersey) ==
               findPlayer(m_game.roster[*one->team], other->jersey);
  }

  const Game& m_game;
  const GameEvent& m_event;
  const Texts& m_texts;
  EventWords m_words;
};

} // namespace

std::vector<DetailChoice> detailChoices(const Game& game, const GameEvent& event, const Texts& texts) {
  if (event.code == EventCode::XTO && !event.player.team) // of which there is one kind
    return {};
  const RecordingLevel level = game.details.recordingLevel();
  const Choices choices(game, event, texts);
  std::vector<DetailChoice> all;
  for (const Row& row : kRows) {
    if (row.code == rowCode(event.code) && (level >= row.level || event.detail(row.key)))
      all.push_back(choices.of(row));
  }
  return all;
}

} // namespace hooptab
