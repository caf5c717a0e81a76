#include "scorecard/ScorecardView.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace hooptab {

namespace {

void add(BoxNumbers& sum, const BoxNumbers& numbers) {
  using Limits = std::numeric_limits<std::int16_t>;
  for (std::size_t i = 0; i < kCounterCount; ++i) {
    const int count = sum.counters.counts[i] + numbers.counters.counts[i];
    sum.counters.counts[i] = static_cast<std::int16_t>(std::clamp<int>(count, Limits::min(), Limits::max()));
  }
  sum.seconds += numbers.seconds;
}

} // namespace

void ScorecardView::show(std::shared_ptr<const CountedGame> game) {
  m_game = std::move(game);
  fill();
}

void ScorecardView::forgetChecks() {
  m_unchecked = {};
  fill();
}

void ScorecardView::setTeam(Side team) {
  m_team = team;
  fill();
}

void ScorecardView::setView(BoxView view) {
  m_view = view;
  fill();
}

void ScorecardView::setScope(Scope scope) {
  m_scope = scope;
  fill();
}

bool ScorecardView::isShown(const BoxColumn& column) const {
  return column.widthTwips > 0 && !(m_hidesMadeAttempted && column.isMadeOrAttempted);
}

ScorecardView::CheckMark ScorecardView::checkMark(const BoxRow& row) const {
  if (row.kind != BoxRowKind::Total)
    return unchecked().contains(boxRowKey(row)) ? CheckMark::None : CheckMark::All;
  const auto others =
      std::ranges::count_if(m_rows, [](const BoxRow& each) { return each.kind != BoxRowKind::Total; });
  const auto checked = std::ranges::count_if(m_rows, [this](const BoxRow& each) {
    return each.kind != BoxRowKind::Total && !unchecked().contains(boxRowKey(each));
  });
  if (checked == others)
    return CheckMark::All;
  return checked == 0 ? CheckMark::None : CheckMark::Some;
}

void ScorecardView::check(const BoxRow& row, bool isChecked) {
  const auto set = [&](const BoxRow& one) {
    const std::string key(boxRowKey(one));
    if (isChecked)
      unchecked().erase(key);
    else
      unchecked().insert(key);
  };
  if (row.kind != BoxRowKind::Total) {
    set(row);
  } else {
    for (const BoxRow& each : m_rows) {
      if (each.kind != BoxRowKind::Total)
        set(each);
    }
  }
  fill();
}

std::vector<Shot> ScorecardView::shots() const {
  if (m_game == nullptr)
    return {};
  ShotSelection selection{m_team, m_view, m_scope == Scope::All, {}};
  for (const BoxRow& row : m_rows) {
    if (row.kind != BoxRowKind::Total && checkMark(row) == CheckMark::All)
      selection.entries.push_back(row.entry);
  }
  return selectedShots(m_game->state, selection);
}

void ScorecardView::fill() {
  if (m_game == nullptr)
    return;
  m_rows = boxRows(*m_game, m_team, m_view, m_texts);
  if (m_scope == Scope::All || m_rows.empty() || checkMark(m_rows.back()) == CheckMark::All)
    return;
  BoxNumbers sum;
  int selected = 0;
  for (const BoxRow& row : m_rows) {
    if (row.kind != BoxRowKind::Total && checkMark(row) == CheckMark::All) {
      add(sum, row.numbers);
      ++selected;
    }
  }
  m_rows.back().numbers = sum;
  m_rows.back().name = std::string(m_texts.text(Text::Selected)) + " (" + std::to_string(selected) + ')';
}

ShotSummary shotSummary(const std::vector<Shot>& shots) {
  ShotSummary summary;
  for (const Shot& shot : shots) {
    ZoneSum& sum = shot.isThree ? summary.threePoints : summary.twoPoints;
    ++sum.attempted;
    sum.made += shot.isMade ? 1 : 0;
  }
  return summary;
}

} // namespace hooptab
