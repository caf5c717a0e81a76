#include "exchange/PlayerNames.h"

#include "exchange/NameJoins.h"
#include "storage/codepage.h"

#include <algorithm>
#include <tuple>

namespace hooptab {

namespace {

// Small and without accents, in alphabetical order: "Roy, J.-P." gives "j", "p", "roy".
std::vector<std::string> wordsOf(std::string_view name) {
  std::vector<std::string> words(1);
  for (const char letter : codepage::fromUtf8(name)) {
    const char plain =
        static_cast<char>(codepage::foldCase(static_cast<unsigned char>(codepage::plainLetter(letter))));
    if (plain == '\'')
      continue; // "O'Neil" and "ONeil"
    if (plain == ' ' || plain == ',' || plain == '.' || plain == '-' || plain == '\t')
      words.emplace_back();
    else
      words.back() += plain;
  }
  std::erase(words, std::string());
  std::ranges::sort(words);
  return words;
}

// Of both, what the other lacks.
void dropCommon(std::vector<std::string>& left, std::vector<std::string>& right) {
  std::vector<std::string> onlyLeft;
  std::vector<std::string> onlyRight;
  std::ranges::set_difference(left, right, std::back_inserter(onlyLeft));
  std::ranges::set_difference(right, left, std::back_inserter(onlyRight));
  left = std::move(onlyLeft);
  right = std::move(onlyRight);
}

bool isInitialOf(const std::string& initial, const std::string& word) {
  return initial.size() == 1 && word.size() > 1 && word.front() == initial.front();
}

bool mayBeOne(std::vector<std::string> left, std::vector<std::string> right) {
  if (left.size() != right.size() || left.empty())
    return false;
  const auto isWhole = [](const std::string& word) { return word.size() > 1; };
  if (std::ranges::none_of(left, isWhole) || std::ranges::none_of(right, isWhole))
    return false;
  const std::size_t words = left.size();
  dropCommon(left, right);
  if (left.size() == words)
    return false; // nothing in common but letters
  for (const std::string& word : left) {
    const auto partner = std::ranges::find_if(right, [&](const std::string& other) {
      return isInitialOf(word, other) || isInitialOf(other, word);
    });
    if (partner == right.end())
      return false;
    right.erase(partner);
  }
  return true;
}

// The higher, the better a name to be written.
auto rankOf(const std::string& name, int games) {
  const std::string stored = codepage::fromUtf8(name);
  const std::vector<std::string> words = wordsOf(name);
  const auto whole = std::ranges::count_if(words, [](const std::string& word) { return word.size() > 1; });
  const bool hasSmall =
      std::ranges::any_of(stored, [](char letter) { return letter >= 'a' && letter <= 'z'; });
  const bool hasCapital =
      std::ranges::any_of(stored, [](char letter) { return letter >= 'A' && letter <= 'Z'; });
  const auto accents =
      std::ranges::count_if(stored, [](char letter) { return codepage::plainLetter(letter) != letter; });
  const bool isTurned = name.find(',') != std::string::npos;
  return std::tuple(whole, hasSmall && hasCapital, !isTurned, accents, games);
}

} // namespace

bool mayBeOneName(std::string_view left, std::string_view right) {
  return mayBeOne(wordsOf(left), wordsOf(right));
}

void PlayerNames::add(const ForeignGame& game) {
  for (const ForeignTeam& team : game.teams) {
    std::vector<std::pair<const std::string*, std::vector<std::string>>> met;
    for (const ForeignPlayer& player : team.players) {
      if (player.name.empty())
        continue;
      ++m_names[{shortNameOf(team), player.jersey}][player.name];
      std::vector<std::string> words = wordsOf(player.name);
      for (const auto& [other, theirs] : met) {
        if (mayBeOne(words, theirs))
          m_together[shortNameOf(team)].insert(std::minmax(*other, player.name));
      }
      met.emplace_back(&player.name, std::move(words));
    }
  }
}

bool PlayerNames::canJoin(const std::string& team, const std::string& left, const std::string& right) const {
  const auto together = m_together.find(team);
  return mayBeOneName(left, right) &&
         (together == m_together.end() || !together->second.contains(std::minmax(left, right)));
}

std::vector<NameProposal> PlayerNames::proposals() const {
  std::vector<NameProposal> proposals;
  for (const auto& [place, names] : m_names) {
    const std::string& team = place.first;
    const std::string& jersey = place.second;
    if (names.size() < 2)
      continue;
    for (const auto& [name, games] : names) {
      std::vector<const Names::value_type*> fitting;
      for (const Names::value_type& other : names) {
        if (other.first != name && canJoin(team, name, other.first))
          fitting.push_back(&other);
      }
      const bool fitsOnePerson = std::ranges::all_of(fitting, [&](const auto* one) {
        return std::ranges::all_of(fitting, [&](const auto* other) {
          return one == other || canJoin(team, one->first, other->first);
        });
      });
      if (fitting.empty() || !fitsOnePerson)
        continue;
      const auto* best = *std::ranges::max_element(
          fitting, {}, [](const auto* other) { return rankOf(other->first, other->second); });
      // Of equals the first one is written.
      const auto own = rankOf(name, games);
      const auto theirs = rankOf(best->first, best->second);
      if (theirs > own || (theirs == own && best->first < name))
        proposals.push_back({team, jersey, name, best->first});
    }
  }
  return proposals;
}

} // namespace hooptab
