#include "bbgame/BbGamePlayRows.h"

#include "bbgame/BbGameWords.h"
#include "bbgame/XmlDocument.h"
#include "foreign/NameForms.h"
#include "storage/Module1.h"

#include <algorithm>
#include <charconv>

namespace hooptab {

namespace {

constexpr int kHundred = 100;

struct Action {
  EventCode code;
  std::string_view action;
  std::string_view type = {};
};
constexpr std::array kActions = {
    Action{EventCode::SA, "ASSIST"},          Action{EventCode::SBS, "BLOCK"},
    Action{EventCode::SST, "STEAL"},          Action{EventCode::SOR, "REBOUND", "OFF"},
    Action{EventCode::XOR, "REBOUND", "OFF"}, Action{EventCode::SDR, "REBOUND", "DEF"},
    Action{EventCode::XDR, "REBOUND", "DEF"}, Action{EventCode::STO, "TURNOVER"},
    Action{EventCode::XTV, "TURNOVER"},       Action{EventCode::SPF, "FOUL"},
    Action{EventCode::STF, "FOUL"},           Action{EventCode::XCF, "FOUL"},
    Action{EventCode::XTO, "TIMEOUT"},
};

void setIfAny(pugi::xml_node row, const char* name, std::string_view value) {
  if (!value.empty())
    setAttribute(row, name, value);
}
std::string clockOf(const ForeignEvent& event) {
  return Module1::clockText(event.centiseconds / kHundred);
}
std::string_view typeOf(const ForeignEvent& event) {
  switch (event.code) {
  case EventCode::STO:
  case EventCode::XTV: return bbgame::wordOfTurnover(event.detail);
  case EventCode::XTO: return bbgame::wordOfTimeout(event.detail);
  case EventCode::STF:
  case EventCode::XCF: return bbgame::wordOfFoul("T");
  case EventCode::SPF: return bbgame::wordOfFoul(event.detail);
  default: return {};
  }
}

} // namespace

std::string bbGameCallName(const ForeignPlayer& player) {
  const NameParts name = partsOfName(player.name);
  std::string called = name.given.empty() ? name.family : name.family + ',' + name.given;
  std::ranges::transform(called, called.begin(), [](char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  });
  return called;
}

BbGamePlayRows::BbGamePlayRows(const ForeignGame& game)
    : m_game(game), m_origins(shotOrigins(game)), m_isBlocked(game.events.size()) {
  for (const ForeignEvent& event : game.events) {
    if (event.code == EventCode::SBS && event.belongsTo >= 0)
      m_isBlocked[static_cast<std::size_t>(event.belongsTo)] = true;
  }
}

void BbGamePlayRows::write(int period, pugi::xml_node element) {
  for (std::size_t i = 0; i < m_game.events.size(); ++i) {
    if (m_game.events[i].period == period)
      writeEvent(i, element);
  }
}

const ForeignPlayer& BbGamePlayRows::playerOf(const Doer& doer) const {
  return m_game.teams[*doer.team].players[static_cast<std::size_t>(doer.player)];
}

void BbGamePlayRows::writeEvent(std::size_t place, pugi::xml_node period) {
  const ForeignEvent& event = m_game.events[place];
  if (event.kind == ForeignKind::PeriodEnd)
    setAttribute(period.append_child("clock"), "time", clockOf(event));
  if (event.code == EventCode::XJB)
    writeJumpBall(event, period);
  const bool isSubstitution = event.kind == ForeignKind::In || event.kind == ForeignKind::Out;
  const bool isShot = event.kind == ForeignKind::Event && event.code >= EventCode::GFG;
  const auto action = std::ranges::find(kActions, event.code, &Action::code);
  if (!isSubstitution && !isShot && action == kActions.end())
    return;
  pugi::xml_node row = period.append_child("play");
  writeDoer(event, row);
  if (isShot) {
    writeShot(place, row);
    return;
  }
  setAttribute(row, "action", isSubstitution ? "SUB" : action->action);
  if (isSubstitution)
    setAttribute(row, "type", event.kind == ForeignKind::In ? "IN" : "OUT");
  else
    setIfAny(row, "type", action->type.empty() ? typeOf(event) : action->type);
  if (isFoul(event.code))
    writeFoul(event, row);
}

// Only as a remark, as others do: a row for it there is not.
void BbGamePlayRows::writeJumpBall(const ForeignEvent& event, pugi::xml_node period) const {
  if (!event.wonBy)
    return;
  const Side winner = *event.wonBy;
  pugi::xml_node remark = period.append_child("comment");
  setAttribute(remark, "vh", bbgame::kSideLetters[winner]);
  setAttribute(remark, "team", m_game.teams[winner].abbreviation);
  setAttribute(remark, "time", clockOf(event));
  setAttribute(remark, "checkname", bbgame::kTeamName);
  setAttribute(remark, "text", "Jumpball won by " + m_game.teams[winner].abbreviation);
}

void BbGamePlayRows::writeDoer(const ForeignEvent& event, pugi::xml_node row) const {
  if (event.doer.team) {
    setAttribute(row, "vh", bbgame::kSideLetters[*event.doer.team]);
    setAttribute(row, "team", m_game.teams[*event.doer.team].abbreviation);
  }
  setAttribute(row, "time", clockOf(event));
  setAttribute(row, "uni",
               event.doer.isPlayer() ? std::string_view(playerOf(event.doer).jersey) : bbgame::kTeamNumber);
  setAttribute(row, "checkname",
               event.doer.isPlayer() ? bbGameCallName(playerOf(event.doer)) : std::string(bbgame::kTeamName));
}

void BbGamePlayRows::writeShot(std::size_t place, pugi::xml_node row) {
  const ForeignEvent& shot = m_game.events[place];
  const bbgame::ShotWords words = bbgame::wordsOfShot(shot.code, shot.detail);
  setAttribute(row, "action", shot.isMade ? "GOOD" : "MISS");
  setAttribute(row, "type", words.type);
  setIfAny(row, "desc", words.description);
  if (shot.numberOfThrow > 0)
    setAttribute(row, "seq", std::to_string(shot.numberOfThrow) + "OF" + std::to_string(shot.ofThrows));
  if (shot.isMade && shot.doer.team) {
    m_points[*shot.doer.team] += kindOf(shot.code)->points;
    setAttribute(row, "vscore", m_points[Side::Visitor]);
    setAttribute(row, "hscore", m_points[Side::Home]);
  }
  // "N": it would have been, had it gone in. Of shots at the basket the paint is a matter of course.
  const ShotOrigin& origin = m_origins[place];
  const bool isAtBasket = words.type == "LAYUP" || words.type == "DUNK" || shot.code == EventCode::GPB;
  for (const auto& [holds, name] :
       {std::pair(origin.isInPaint && !isAtBasket, "paint"), std::pair(shot.isFastBreak, "fastb"),
        std::pair(origin.isSecondChance, "ch2"), std::pair(origin.isFromTurnover, "to")}) {
    if (holds)
      setAttribute(row, name, shot.isMade ? "Y" : "N");
  }
  if (m_isBlocked[place])
    setAttribute(row, "blocked", "Y");
  if (shot.place)
    writePlace(shot, row);
}

// On the half that teams usually attack: the visitors on the right at first, on the left in the second half
// and behind it. Where they really did is not known, and readers turn places by the side that is named.
void BbGamePlayRows::writePlace(const ForeignEvent& shot, pugi::xml_node row) const {
  constexpr double kPercent = 100;
  const bool isFirstHalf = shot.period * 2 <= m_game.periods;
  const bool isRight = (shot.doer.team == Side::Visitor) == isFirstHalf;
  const auto set = [&](const char* name, double percent) {
    char text[32];
    const double turned = isRight ? kPercent - percent : percent;
    constexpr int kDecimals = 4;
    const auto end = std::to_chars(text, text + sizeof text, turned, std::chars_format::fixed, kDecimals).ptr;
    setAttribute(row, name, std::string_view(text, static_cast<std::size_t>(end - text)));
  };
  set("x", std::clamp(shot.place->first, 0.0, court::kLength) * kPercent / bbgame::kCourtLength);
  set("y", std::clamp(shot.place->second, 0.0, court::kWidth) * kPercent / court::kWidth);
  setAttribute(row, "side", isRight ? "right" : "left");
}

void BbGamePlayRows::writeFoul(const ForeignEvent& foul, pugi::xml_node row) const {
  if (foul.code == EventCode::XCF && foul.detail == "C")
    setAttribute(row, "desc", bbgame::kCoach);
  if (foul.code == EventCode::SPF && foul.detail == "S")
    setAttribute(row, "qualifiers", bbgame::kShooting);
  if (foul.freeThrows >= 0)
    setAttribute(row, "ft", foul.freeThrows);
  if (foul.other.isPlayer()) {
    setAttribute(row, "drawnby", bbGameCallName(playerOf(foul.other)));
    setAttribute(row, "drawnuni", playerOf(foul.other).jersey);
  }
}

} // namespace hooptab
