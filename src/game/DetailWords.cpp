#include "game/DetailWords.h"

#include "game/EventDetails.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <optional>
#include <span>

namespace hooptab {

namespace {

constexpr KindWord kFouls[] = {{"P", Text::KindPersonal, false},
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
constexpr KindWord kTimeOuts[] = {
    {"FULL", Text::FullTimeOut, false}, {"SHORT", Text::ShortTimeOut}, {"MEDIA", Text::MediaTimeOut, false}};
constexpr KindWord kTechnicals[] = {{"C", Text::OfCoach, false}, {"B", Text::OfBench, false}};

} // namespace

std::span<const KindWord> detailKinds(EventCode code) {
  switch (code) {
  case EventCode::SPF: return kFouls;
  case EventCode::STO:
  case EventCode::XTV: return kTurnovers;
  case EventCode::XTO: return kTimeOuts;
  case EventCode::XCF: return kTechnicals;
  case EventCode::GFT: return {};
  default: return code >= EventCode::GFG ? std::span<const KindWord>(kShots) : std::span<const KindWord>();
  }
}

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
    const auto kinds = detailKinds(event.code);
    const auto known = std::ranges::find(kinds, *kind, &KindWord::value);
    add(known == kinds.end() ? *kind : known->isSaid ? texts.text(known->text) : "");
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
    add(texts.withPlaceholder(Text::WonBy, words.team(*winner == "0" ? Side::Visitor : Side::Home)));
  return all;
}

} // namespace hooptab
