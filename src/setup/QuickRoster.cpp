#include "setup/QuickRoster.h"

#include "game/Roster.h"
#include "teams/TeamRecord.h"

#include <algorithm>

namespace hooptab {

QuickRoster quickRoster(std::string_view typed) {
  using enum QuickRoster::Problem;
  constexpr std::string_view kSeparators = " ,;\t\r\n";
  QuickRoster roster;
  std::size_t begin = 0;
  while ((begin = typed.find_first_not_of(kSeparators, begin)) != std::string_view::npos) {
    const std::string_view part =
        typed.substr(begin, std::min(typed.find_first_of(kSeparators, begin), typed.size()) - begin);
    const auto wrong = [&](QuickRoster::Problem problem, std::string other = {}) {
      return QuickRoster{
          .problem = problem, .part = std::string(part), .place = begin, .other = std::move(other)};
    };
    if (!isJersey(part))
      return wrong(NoJersey);
    const auto same = std::ranges::find_if(roster.jerseys, [&](const std::string& jersey) {
      return jersey == part || Roster::areOneNumber(jersey, part);
    });
    if (same != roster.jerseys.end())
      return wrong(*same == part ? Twice : WrittenOtherwise, *same);
    if (roster.jerseys.size() == static_cast<std::size_t>(kMostPlayers))
      return wrong(OneTooMany);
    roster.jerseys.emplace_back(part);
    begin += part.size();
  }
  return roster;
}

} // namespace hooptab
