#include "game/DetailWords.h"

#include "game/EventDetails.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <optional>
#include <span>

namespace hooptab {

namespace {

struct KindWord {
  std::string_view value;
  Text text; // None: the usual one, of which nothing is said
};
constexpr KindWord kFouls[] = {{"P", Text::None},
                               {"S", Text::FoulShooting},
                               {"O", Text::FoulOffensive},
                               {"U", Text::FoulUnsportsmanlike},
                               {"D", Text::FoulDisqualifying}};
constexpr KindWord kTurnovers[] = {{"BADPASS", Text::BadPass},         {"HANDLING", Text::BallHandling},
                                   {"TRAVEL", Text::Travelling},       {"OUT", Text::OutOfBounds},
                                   {"OFFENSIVE", Text::OffensiveFoul}, {"3S", Text::ThreeSeconds},
                                   {"5S", Text::FiveSeconds},          {"8S", Text::EightSeconds},
                                   {"24S", Text::ShotClock},           {"OTHER", Text::OtherTurnover}};
constexpr KindWord kShots[] = {{"JUMP", Text::JumpShot},   {"HOOK", Text::HookShot},
                               {"FLOATER", Text::Floater}, {"ALLEYOOP", Text::AlleyOop},
                               {"TIPIN", Text::TipIn},     {"LAYUP", Text::Layup},
                               {"DUNK", Text::Dunk},       {"FADEAWAY", Text::Fadeaway}};
// Most of those of a team's events are in their names.
constexpr KindWord kTeams[] = {{"FULL", Text::None},
                               {"SHORT", Text::ShortTimeOut},
                               {"MEDIA", Text::None},
                               {"C", Text::None},
                               {"B", Text::None}};

std::span<const KindWord> kindsOf(const GameEvent& event) {
  if (event.code == EventCode::SPF)
    return kFouls;
  if (event.code == EventCode::STO || event.code == EventCode::XTV)
    return kTurnovers;
  if (event.isShot())
    return kShots;
  return event.isOfTeam() ? std::span<const KindWord>(kTeams) : std::span<const KindWord>();
}

} // namespace

std::string detailWords(const GameEvent& event, const EventWords& words, const Texts& texts) {
  std::string all;
  const auto add = [&all](std::string_view part) {
    if (!part.empty())
      all.append(all.empty() ? "" : ", ").append(part);
  };
  const auto addPlayer = [&](std::string_view key, Text text) {
    if (const auto who = PlayerReference::read(event.detail(key).value_or("")))
      add(texts.withPlaceholder(text, words.player(*who)));
  };
  if (event.detailsAt == 0)
    return all;
  if (const auto kind = event.detail(detail_key::kKind)) {
    const auto kinds = kindsOf(event);
    const auto known = std::ranges::find(kinds, *kind, &KindWord::value);
    add(known == kinds.end() ? *kind : known->text == Text::None ? "" : texts.text(known->text));
  }
  if (event.detail(detail_key::kFastBreak) == "F")
    add(texts.text(Text::OnFastBreak));
  addPlayer(detail_key::kDrawnBy, Text::DrawnBy);
  addPlayer(detail_key::kShooter, Text::ShotOf);
  if (const auto throws = event.detail(detail_key::kFreeThrows))
    add(texts.withPlaceholder(Text::FreeThrowsAwarded, *throws));
  if (const auto number = event.detail(detail_key::kNumberOfThrow)) {
    const std::size_t slash = std::min(number->find('/'), number->size());
    add(withPlaceholders(texts.text(Text::ThrowOf), number->substr(0, slash),
                         number->substr(std::min(slash + 1, number->size()))));
  }
  if (const auto winner = event.detail(detail_key::kWonBy); winner == "0" || winner == "1")
    add(texts.withPlaceholder(Text::WonBy, words.team(*winner == "0" ? 0 : 1)));
  return all;
}

} // namespace hooptab
