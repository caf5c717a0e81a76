#include "game/GameDetails.h"

#include "storage/Module1.h"
#include "storage/cinifile.h"
#include "storage/codepage.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace hooptab {

namespace {

std::string textOf(std::string_view value) {
  return codepage::toUtf8(value);
}
int intOf(std::string_view value) {
  return Module1::leadingNumber(value);
}
std::uint32_t colourOf(std::string_view value) {
  return static_cast<std::uint32_t>(std::clamp(intOf(value), 0, 0xFFFFFF));
}
std::string typedOr(const GameDetails& details, std::string TypedRules::*rule, int number) {
  return details.typedRules ? (*details.typedRules).*rule : std::to_string(number);
}

// "312 1763790000".
GameDetails::ClosedInPlay closedInPlayOf(std::string_view value) {
  const std::size_t blank = std::min(value.find(' '), value.size());
  GameDetails::ClosedInPlay closed;
  const std::string_view time = value.substr(std::min(blank + 1, value.size()));
  const auto [end, error] = std::from_chars(time.data(), time.data() + time.size(), closed.time);
  closed.event = Module1::wholeNumber(value.substr(0, blank));
  return error == std::errc() && closed.event > 0 ? closed : GameDetails::ClosedInPlay();
}

constexpr std::string_view kLevels[] = {"BASIC", "LEAGUE", "FULL"};

std::string positive(int number) {
  return number > 0 ? std::to_string(number) : std::string();
}

struct Detail {
  std::string_view key;
  void (*read)(GameDetails&, std::string_view value);
  std::string (*write)(const GameDetails&); // null for what a new game does not get
  bool isOptional = false;                  // a new game gets it only where it says something
};

// In the order in which a game is written, so that reading finds each key where the one before ended.
constexpr std::array kDetails = std::to_array<Detail>({
    {"VERSION", [](GameDetails& d, std::string_view value) { d.version = textOf(value); },
     [](const GameDetails& d) { return d.version; }},
    {"INPUTTYPE", [](GameDetails& d, std::string_view value) { d.inputType = intOf(value); },
     [](const GameDetails& d) { return std::to_string(d.inputType); }},
    {"DATE", [](GameDetails& d, std::string_view value) { d.date = textOf(value); },
     [](const GameDetails& d) { return d.date; }},
    {"OKPRINCIPAL", [](GameDetails& d, std::string_view value) { d.mainTeam = intOf(value) != 0 ? Side::Home : Side::Visitor; },
     [](const GameDetails& d) { return std::to_string(numberOf(d.mainTeam)); }},
    {"EQUIPE0ID", [](GameDetails& d, std::string_view value) { d.teamId[Side::Visitor] = intOf(value); },
     [](const GameDetails& d) { return std::to_string(d.teamId[Side::Visitor]); }},
    {"EQUIPE1ID", [](GameDetails& d, std::string_view value) { d.teamId[Side::Home] = intOf(value); },
     [](const GameDetails& d) { return std::to_string(d.teamId[Side::Home]); }},
    {"EQUIPE0COL", [](GameDetails& d, std::string_view value) { d.teamColour[Side::Visitor] = colourOf(value); },
     [](const GameDetails& d) { return std::to_string(d.teamColour[Side::Visitor]); }},
    {"EQUIPE1COL", [](GameDetails& d, std::string_view value) { d.teamColour[Side::Home] = colourOf(value); },
     [](const GameDetails& d) { return std::to_string(d.teamColour[Side::Home]); }},
    {"EQUIPE0ABB", [](GameDetails& d, std::string_view value) { d.abbreviation[Side::Visitor] = textOf(value); },
     [](const GameDetails& d) { return d.abbreviation[Side::Visitor]; }},
    {"EQUIPE1ABB", [](GameDetails& d, std::string_view value) { d.abbreviation[Side::Home] = textOf(value); },
     [](const GameDetails& d) { return d.abbreviation[Side::Home]; }},
    {"EQUIPE0NOM", [](GameDetails& d, std::string_view value) { d.name[Side::Visitor] = textOf(value); },
     [](const GameDetails& d) { return d.name[Side::Visitor]; }},
    {"EQUIPE1NOM", [](GameDetails& d, std::string_view value) { d.name[Side::Home] = textOf(value); },
     [](const GameDetails& d) { return d.name[Side::Home]; }},
    {"EQUIPE0CAT", [](GameDetails& d, std::string_view value) { d.category[Side::Visitor] = textOf(value); },
     [](const GameDetails& d) { return d.category[Side::Visitor]; }},
    {"EQUIPE1CAT", [](GameDetails& d, std::string_view value) { d.category[Side::Home] = textOf(value); },
     [](const GameDetails& d) { return d.category[Side::Home]; }},
    {"SUPP0", [](GameDetails& d, std::string_view value) { d.statisticLabel[0] = textOf(value); },
     [](const GameDetails& d) { return d.statisticLabel[0]; }},
    {"SUPP1", [](GameDetails& d, std::string_view value) { d.statisticLabel[1] = textOf(value); },
     [](const GameDetails& d) { return d.statisticLabel[1]; }},
    {"ENDROIT", [](GameDetails& d, std::string_view value) { d.place = textOf(value); },
     [](const GameDetails& d) { return d.place; }},
    {"SAISIEPAR", [](GameDetails& d, std::string_view value) { d.statistician = textOf(value); },
     [](const GameDetails& d) { return d.statistician; }},
    {"NBREPERIODE", [](GameDetails& d, std::string_view value) { d.periods = intOf(value); },
     [](const GameDetails& d) { return typedOr(d, &TypedRules::periods, d.periods); }},
    {"DUREE",
     [](GameDetails& d, std::string_view value) {
       const int minutes = intOf(value);
       d.minutesPerPeriod = std::clamp(minutes, 0, kMostMinutes);
       const bool isPossible = d.minutesPerPeriod == minutes;
       d.impossibleMinutes = isPossible ? std::nullopt : std::optional(minutes);
     },
     [](const GameDetails& d) { return typedOr(d, &TypedRules::minutesPerPeriod, d.minutesPerPeriod); }},
    {"BONUS", [](GameDetails& d, std::string_view value) { d.bonus = intOf(value); },
     [](const GameDetails& d) { return typedOr(d, &TypedRules::bonus, d.bonus); }},
    {"PFMAX", [](GameDetails& d, std::string_view value) { d.personalFoulLimit = intOf(value); },
     [](const GameDetails& d) { return typedOr(d, &TypedRules::personalFoulLimit, d.personalFoulLimit); }},
    {"TFMAX", [](GameDetails& d, std::string_view value) { d.technicalFoulLimit = intOf(value); },
     [](const GameDetails& d) { return typedOr(d, &TypedRules::technicalFoulLimit, d.technicalFoulLimit); }},
    {"TYPE", [](GameDetails& d, std::string_view value) { d.type = intOf(value); },
     [](const GameDetails& d) { return std::to_string(d.type); }},
    {"NOTES", [](GameDetails& d, std::string_view value) { d.notes = textOf(value); },
     [](const GameDetails& d) { return d.notes; }},
    {"IDPARTIE", [](GameDetails& d, std::string_view value) { d.id = textOf(value); },
     [](const GameDetails& d) { return d.id; }, true},
    {"REGLES", [](GameDetails& d, std::string_view value) { d.ruleSet = textOf(value); },
     [](const GameDetails& d) { return d.ruleSet; }, true},
    {"NIVEAU", [](GameDetails& d, std::string_view value) { d.level = levelOf(value); },
     [](const GameDetails& d) { return d.level ? std::string(levelKey(*d.level)) : std::string(); }, true},
    {"COMPETITION", [](GameDetails& d, std::string_view value) { d.competition = textOf(value); },
     [](const GameDetails& d) { return d.competition; }, true},
    {"RONDE", [](GameDetails& d, std::string_view value) { d.round = textOf(value); },
     [](const GameDetails& d) { return d.round; }, true},
    {"ARBITRES", [](GameDetails& d, std::string_view value) { d.referees = textOf(value); },
     [](const GameDetails& d) { return d.referees; }, true},
    {"ASSISTANCE", [](GameDetails& d, std::string_view value) { d.attendance = textOf(value); },
     [](const GameDetails& d) { return d.attendance; }, true},
    {"ENTRAINEUR0", [](GameDetails& d, std::string_view value) { d.coach[Side::Visitor] = textOf(value); },
     [](const GameDetails& d) { return d.coach[Side::Visitor]; }, true},
    {"ENTRAINEUR1", [](GameDetails& d, std::string_view value) { d.coach[Side::Home] = textOf(value); },
     [](const GameDetails& d) { return d.coach[Side::Home]; }, true},
    {"CAPITAINE0", [](GameDetails& d, std::string_view value) { d.captain[Side::Visitor] = textOf(value); },
     [](const GameDetails& d) { return d.captain[Side::Visitor]; }, true},
    {"CAPITAINE1", [](GameDetails& d, std::string_view value) { d.captain[Side::Home] = textOf(value); },
     [](const GameDetails& d) { return d.captain[Side::Home]; }, true},
    {"SCORECIBLE",
     [](GameDetails& d, std::string_view value) { d.targetScore = std::max(intOf(value), 0); },
     [](const GameDetails& d) { return positive(d.targetScore); }, true},
    {"EVENUM", [](GameDetails& d, std::string_view value) { d.nextEventNumber = intOf(value); }, nullptr},
    {"LIGNE3",
     [](GameDetails& d, std::string_view value) {
       if (const int radius = intOf(value); radius > 0)
         d.threePointRadius = radius;
     },
     nullptr},
    {"LIGNE3COIN",
     [](GameDetails& d, std::string_view value) {
       if (const int corner = intOf(value); corner > 0)
         d.threePointCorner = corner;
     },
     nullptr},
    {"DUREEPROL",
     [](GameDetails& d, std::string_view value) {
       d.overtimeMinutes = std::clamp(intOf(value), 0, kMostMinutes);
     },
     [](const GameDetails& d) { return positive(d.overtimeMinutes); }, true},
    {"KEEPBONUS", [](GameDetails& d, std::string_view value) { d.keepsBonus = Module1::flag(value); },
     nullptr},
    {"TERMINE", [](GameDetails& d, std::string_view value) { d.isFinished = value == "1"; }, nullptr},
    {"QUITTE", [](GameDetails& d, std::string_view value) { d.closedInPlay = closedInPlayOf(value); },
     nullptr},
});

} // namespace

void readDetails(const ProfileText& text, GameDetails& details) {
  static_assert(kDetails.size() <= 64);
  std::uint64_t seen = 0; // the first of two equal keys wins, also one without a value
  std::size_t next = 0;
  for (const ProfileText::Line& line : text.section(kDetailsSection)) {
    if (line.name.empty())
      continue;
    for (std::size_t tried = 0; tried < kDetails.size(); ++tried) {
      const std::size_t place = (next + tried) % kDetails.size();
      if (!codepage::equalNames(kDetails[place].key, line.name))
        continue;
      if ((seen & (std::uint64_t{1} << place)) == 0 && line.kind == ProfileText::Line::Kind::KeyValue)
        kDetails[place].read(details, line.value.substr(0, cinifile::kLongestValue));
      seen |= std::uint64_t{1} << place;
      next = place + 1;
      break;
    }
  }
}

void setDetail(GameDetails& details, std::string_view key, std::string_view value) {
  const auto detail = std::ranges::find(kDetails, key, &Detail::key);
  if (detail != kDetails.end())
    detail->read(details, codepage::fromUtf8(value));
}

std::string_view levelKey(RecordingLevel level) {
  return kLevels[static_cast<std::size_t>(level)];
}

std::optional<RecordingLevel> levelOf(std::string_view value) {
  const auto known = std::ranges::find(kLevels, value);
  return known == std::end(kLevels) ? std::nullopt
                                    : std::optional(static_cast<RecordingLevel>(known - kLevels));
}

void writeNewDetails(const GameDetails& details, ProfileBatch& batch) {
  for (const Detail& detail : kDetails) {
    if (detail.write == nullptr)
      continue;
    std::string value = detail.write(details);
    if (!detail.isOptional || !value.empty())
      batch.set(std::string(kDetailsSection), std::string(detail.key), std::move(value));
  }
}

} // namespace hooptab
