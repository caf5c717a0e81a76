// A scanned sheet and the game it belongs to: which team, which player each of its parts is for, and the
// game's totals with the sheet's counts added or in their place. Changes nothing itself: it gives new totals.
#pragma once

#include "forms/CheckedSheet.h"
#include "game/GameDetails.h"
#include "game/Roster.h"
#include "game/Side.h"
#include "totals/ManualTotals.h"

#include <array>
#include <string>
#include <vector>

namespace hooptab {

// Which of a game's two teams a sheet can be of: a prepared one says, a blank one may be of both.
[[nodiscard]] PerSide<bool> teamsOf(const FormIdentifier& identifier, const GameDetails& details);

class ScannedTotals {
 public:
  static constexpr int kNobody = 0; // no slot

  ScannedTotals() = default;
  ScannedTotals(CheckedSheet read, Side team, Roster roster);

  CheckedSheet sheet; // the user's to correct; then match()
  void match();       // numbers may have changed: every player whom nobody has assigned is found again
  void setTeam(Side team, Roster roster); // what was assigned goes
  Side team() const { return m_team; }
  const Roster& roster() const { return m_roster; }

  // The slot that a player of the sheet counts for: of his number, or as the user says, kNobody to leave him
  // out.
  int slot(int player) const { return m_players[static_cast<std::size_t>(player)].slot; }
  void assign(int player, int slot);
  bool isAssigned(int player) const { return m_players[static_cast<std::size_t>(player)].isAssigned; }
  // He has counts, no slot, and the user has not said that he is left out.
  [[nodiscard]] bool isUnknown(int player) const;

  enum class Way { Add, Replace };
  // What taking the sheet over would do. Players of the sheet without a slot are left out; two for the same
  // slot are added together.
  struct Outcome {
    ManualTotals totals;
    int tooMany =
        kNobody; // a slot one of whose counts would be too large; then the totals are those of before
    int placedShotsGone = 0;
    bool isAgain = false;     // added, though the game has the very counts of the sheet already
    std::vector<int> twice;   // slots that two players of the sheet are for
    std::vector<int> unknown; // players of the sheet
  };
  [[nodiscard]] Outcome outcome(Way way, const ManualTotals& before) const;

 private:
  struct Player {
    int slot = kNobody;
    bool isAssigned = false; // by the user
  };
  Side m_team = Side::Visitor;
  Roster m_roster;
  std::array<Player, FormLayout::kPlayers> m_players;
};

} // namespace hooptab
