// What the scorecard window shows of a game: which team, players or lines, which columns, which rows are
// checked and what that means for chart and totals. All of it survives a new reading of the file. Draws
// nothing and reads nothing.
#pragma once

#include "game/Side.h"
#include "scorecard/BoxScore.h"
#include "scorecard/ShotChart.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace hooptab {

class ScorecardView {
 public:
  // What chart and totals stand for: the checked rows, or the whole team whatever is checked.
  enum class Scope : std::uint8_t { Checked, All };
  enum class CheckMark : std::uint8_t { None, Some, All };

  // The texts must outlive it.
  explicit ScorecardView(const Texts& texts) : m_texts(texts) {}
  void show(std::shared_ptr<const CountedGame> game);
  // Another game: every row is checked again.
  void forgetChecks();

  Side team() const { return m_team; }
  void setTeam(Side team);
  BoxView view() const { return m_view; }
  void setView(BoxView view);
  Scope scope() const { return m_scope; }
  void setScope(Scope scope);
  bool hidesMadeAttempted() const { return m_hidesMadeAttempted; }
  void setHidesMadeAttempted(bool hides) { m_hidesMadeAttempted = hides; }
  [[nodiscard]] bool isShown(const BoxColumn& column) const;

  // The total comes last; with Scope::Checked it is that of the checked rows.
  const std::vector<BoxRow>& rows() const { return m_rows; }
  // Of the total: whether all, some or none of the others are checked.
  [[nodiscard]] CheckMark checkMark(const BoxRow& row) const;
  // The total checks or unchecks all others.
  void check(const BoxRow& row, bool isChecked);

  // In the order of the game; those without a place included.
  [[nodiscard]] std::vector<Shot> shots() const;

 private:
  using RowKeys = std::set<std::string, std::less<>>;
  RowKeys& unchecked() { return m_unchecked[m_team][static_cast<std::size_t>(m_view)]; }
  const RowKeys& unchecked() const { return m_unchecked[m_team][static_cast<std::size_t>(m_view)]; }
  void fill();

  const Texts& m_texts;
  std::shared_ptr<const CountedGame> m_game;
  Side m_team = Side::Visitor;
  BoxView m_view = BoxView::Players;
  Scope m_scope = Scope::Checked;
  bool m_hidesMadeAttempted = false;
  // Rows by team and view. Whoever comes on court later is in none of them, hence checked.
  PerSide<std::array<RowKeys, 2>> m_unchecked;
  std::vector<BoxRow> m_rows;
};

// Made and attempted field goals, for the line under the chart.
struct ShotSummary {
  ZoneSum twoPoints;
  ZoneSum threePoints;
};
[[nodiscard]] ShotSummary shotSummary(const std::vector<Shot>& shots);

} // namespace hooptab
