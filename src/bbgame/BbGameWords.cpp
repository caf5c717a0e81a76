#include "bbgame/BbGameWords.h"

#include <algorithm>
#include <array>
#include <span>

namespace hooptab::bbgame {

namespace {

// Of several words for one detail the first is written.
struct Word {
  std::string_view word;
  std::string_view detail;
};

constexpr std::array kTypesOfTwo = {
    Word{"JUMPER", "JUMP"}, Word{"LAYUP", "LAYUP"}, Word{"DUNK", "DUNK"},         Word{"2PTR", ""},
    Word{"TIPIN", "TIPIN"}, Word{"HOOK", "HOOK"},   Word{"FADEAWAY", "FADEAWAY"},
};
// Parts of descriptions. What only says how a jumper came about stands behind all others, and not against a
// type.
constexpr std::array kDescriptions = {
    Word{"TIPINLAYUP", "TIPIN"},  Word{"TIPIN", "TIPIN"},       Word{"HOOKSHOT", "HOOK"},
    Word{"HOOK", "HOOK"},         Word{"FLOATING", "FLOATER"},  Word{"FLOAT", "FLOATER"},
    Word{"FADEAWAY", "FADEAWAY"}, Word{"ALLEYOOP", "ALLEYOOP"}, Word{"JUMPSHOT", "JUMP"},
    Word{"PULLUP", "JUMP"},       Word{"STEPBACK", "JUMP"},     Word{"TURNAROUND", "JUMP"},
};

constexpr std::array kFouls = {
    Word{"PERSONAL", "P"},    Word{"PERSONAL", "S"},        Word{"OFF", "O"},      Word{"OFFENSIVE", "O"},
    Word{"INTENTIONAL", "U"}, Word{"UNSPORTSMANLIKE", "U"}, Word{"FLAGRANT", "U"}, Word{"FLAGRANT1", "U"},
    Word{"FLAGRANT2", "D"},   Word{"DISQUALIFYING", "D"},   Word{"TECH", "T"},     Word{"TECHNICAL", "T"},
};
// Colleges have ten seconds to cross the middle and thirty for a shot; which violation it is does not change.
constexpr std::array kTurnovers = {
    Word{"BADPASS", "BADPASS"}, Word{"LOSTBALL", "HANDLING"}, Word{"BALLHANDLING", "HANDLING"},
    Word{"TRAVEL", "TRAVEL"},   Word{"OUTOFBOUNDS", "OUT"},   Word{"OFFENSIVE", "OFFENSIVE"},
    Word{"OFF", "OFFENSIVE"},   Word{"3SEC", "3S"},           Word{"5SEC", "5S"},
    Word{"10SEC", "8S"},        Word{"8SEC", "8S"},           Word{"SHOTCLOCK", "24S"},
    Word{"24SEC", "24S"},       Word{"30SEC", "24S"},         Word{"OTHER", "OTHER"},
};
constexpr std::array kTimeouts = {Word{"FULL", "FULL"},   Word{"TEAM", "FULL"},   Word{"60SEC", "FULL"},
                                  Word{"30SEC", "SHORT"}, Word{"20SEC", "SHORT"}, Word{"MEDIA", "MEDIA"}};

std::string_view detailIn(std::span<const Word> words, std::string_view word,
                          std::string_view otherwise = {}) {
  const auto found = std::ranges::find(words, word, &Word::word);
  return found == words.end() ? otherwise : found->detail;
}
std::string_view wordIn(std::span<const Word> words, std::string_view detail) {
  const auto found = std::ranges::find(words, detail, &Word::detail);
  return found == words.end() ? std::string_view() : found->word;
}
std::string_view detailDescribed(std::string_view description) {
  const auto found = std::ranges::find_if(
      kDescriptions, [&](const Word& part) { return description.find(part.word) != description.npos; });
  return found == kDescriptions.end() ? std::string_view() : found->detail;
}

} // namespace

std::optional<ShotMeaning> shotOf(std::string_view type, std::string_view description) {
  if (type.empty())
    return std::nullopt;
  if (type.starts_with("F") && type != "FADEAWAY")
    return ShotMeaning{EventCode::GFT};
  const bool isThree = type.starts_with("3");
  ShotMeaning shot{isThree ? EventCode::GF3 : EventCode::GFG, isThree ? "" : detailIn(kTypesOfTwo, type)};
  const std::string_view described = detailDescribed(description);
  if (!described.empty() && (described != "JUMP" || shot.detail.empty()))
    shot.detail = described;
  return shot;
}

ShotWords wordsOfShot(EventCode code, std::string_view detail) {
  const std::string_view description = wordIn(kDescriptions, detail);
  switch (code) {
  case EventCode::GFT: return {"FT"};
  case EventCode::GF3: return {"3PTR", description};
  case EventCode::GLG:
  case EventCode::GLD: return {"LAYUP", description};
  case EventCode::GDK: return {"DUNK", description};
  case EventCode::GPB: return {"JUMPER", wordIn(kDescriptions, "TIPIN")};
  default: break;
  }
  if (!description.empty() && detail != "JUMP")
    return {detail == "ALLEYOOP" ? "LAYUP" : "JUMPER", description};
  return {wordIn(kTypesOfTwo, detail), {}};
}

std::string_view foulOf(std::string_view type, std::string_view qualifiers) {
  const std::string_view detail = detailIn(kFouls, type);
  const bool isPlain = detail.empty() || detail == "P";
  return isPlain && qualifiers.find(kShooting) != qualifiers.npos ? "S" : detail;
}
std::string_view wordOfFoul(std::string_view detail) {
  return wordIn(kFouls, detail);
}

std::string_view turnoverOf(std::string_view type) {
  return type.empty() ? std::string_view() : detailIn(kTurnovers, type, "OTHER");
}
std::string_view wordOfTurnover(std::string_view detail) {
  return detail.empty() ? std::string_view() : wordIn(kTurnovers, detail);
}

std::string_view timeoutOf(std::string_view type) {
  return detailIn(kTimeouts, type);
}
std::string_view wordOfTimeout(std::string_view detail) {
  return wordIn(kTimeouts, detail);
}

} // namespace hooptab::bbgame
