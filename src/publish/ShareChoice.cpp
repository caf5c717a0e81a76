#include "publish/ShareChoice.h"

#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <utility>

namespace hooptab {

namespace {

constexpr std::string_view kYouthRules = "FIBAJEUNES";
constexpr int kOfAge = 18;

// Small letters without accents: those of age groups' names.
std::string plain(std::string_view text) {
  std::string letters;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    const bool isAccented =
        byte == 0xC3 && at + 1 < text.size() && ((static_cast<unsigned char>(text[at + 1]) & 0xDFU) == 0x89U);
    if (isAccented) { // É and é
      letters += 'e';
      ++at;
    } else {
      letters += static_cast<char>(std::tolower(byte));
    }
  }
  return letters;
}

bool isYoung(std::string_view category) {
  constexpr std::array<std::string_view, 7> kGroups = {"mini",   "atome",    "benjamin", "cadet",
                                                       "minime", "juvenile", "youth"};
  const std::string text = plain(category);
  if (std::ranges::any_of(kGroups, [&text](std::string_view group) { return text.find(group) != text.npos; }))
    return true;
  // An age stands beside a letter: a league may be called 3, or 2014.
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto isDigit = [&text](std::size_t place) {
      return place < text.size() && text[place] >= '0' && text[place] <= '9';
    };
    if (!isDigit(at) || (at > 0 && isDigit(at - 1)))
      continue;
    std::size_t end = at;
    while (isDigit(end))
      ++end;
    const int age = Module1::wholeNumber(text.substr(at, end - at));
    const auto isAgeLetter = [](char letter) { return letter == 'u' || letter == 'm' || letter == 'f'; };
    const std::size_t before = at > 0 && (text[at - 1] == '-' || text[at - 1] == ' ') ? at - 1 : at;
    const bool hasLetter =
        (before > 0 && isAgeLetter(text[before - 1])) || (end < text.size() && text[end] == 'u');
    if (hasLetter && age >= 5 && age < kOfAge)
      return true;
  }
  return false;
}

} // namespace

std::string shareChoiceText(const ShareChoice& choice) {
  return choice.address + ' ' + std::to_string(choice.port) + ' ' + std::to_string(choice.feed.delaySeconds) +
         ' ' + (choice.feed.first == Side::Visitor ? "visitor" : "home");
}

ShareChoice readShareChoice(std::string_view text) {
  ShareChoice choice;
  std::array<std::string, 4> words;
  for (std::string& word : words) {
    const std::size_t end = std::min(text.find(' '), text.size());
    word = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  constexpr int kMostPort = 65535;
  if (!words[0].empty())
    choice.address = words[0];
  if (const int port = Module1::wholeNumber(words[1]); port > 0 && port <= kMostPort)
    choice.port = static_cast<std::uint16_t>(port);
  if (const int delay = Module1::wholeNumber(words[2]); delay > 0 && delay <= ShareChoice::kMostDelay)
    choice.feed.delaySeconds = delay;
  choice.feed.first = words[3] == "home" ? Side::Home : Side::Visitor;
  return choice;
}

std::string_view nameFormKey(NameForm form) {
  switch (form) {
  case NameForm::Initial: return "initial";
  case NameForm::Number: return "number";
  case NameForm::Full: break;
  }
  return "full";
}

NameForm readNameForm(std::string_view key) {
  return key == "number" ? NameForm::Number : key == "initial" ? NameForm::Initial : NameForm::Full;
}

bool areMinors(const GameDetails& details) {
  return details.ruleSet == kYouthRules ||
         std::ranges::any_of(kSides, [&details](Side team) { return isYoung(details.category[team]); });
}

NameForm offeredNames(std::string_view chosen, const GameDetails& details) {
  if (!chosen.empty())
    return readNameForm(chosen);
  return areMinors(details) ? NameForm::Number : NameForm::Full;
}

std::string categoriesOf(const GameDetails& details) {
  const std::string& visitors = details.category[Side::Visitor];
  const std::string& home = details.category[Side::Home];
  return visitors == home || home.empty() ? visitors : visitors.empty() ? home : visitors + ", " + home;
}

} // namespace hooptab
