#include "events/LiveEventRows.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "checks/FindingWords.h"
#include "checks/GameCheck.h"
#include "game/EventDetails.h"

#include <algorithm>

namespace hooptab {

LiveEventRows::LiveEventRows(const Texts& texts, QObject* parent)
    : QSortFilterProxyModel(parent), m_texts(texts), m_events(texts, EventListModel::Words::Short) {
  setSourceModel(&m_events);
  sort(0, Qt::DescendingOrder);
}

// What a row shows of others is known before the rows come, for the filter asks for it.
void LiveEventRows::show(const Game& game) {
  m_findings = checkGame(game);
  std::erase_if(m_findings, [](const Finding& finding) { return !finding.hasEvent(); });
  std::vector<Row> rows = rowsOf(game);
  const std::size_t before = m_ofEvents.size();
  const std::size_t now = rows.size();
  rows.resize(std::max(before, now)); // those that go are looked at while they go
  m_ofEvents.swap(rows);
  m_events.show(game);
  m_ofEvents.resize(now);
  // Findings may have come or gone with an event far behind.
  for (std::size_t event = 0; event < std::min(before, m_ofEvents.size()); ++event) {
    if (rows[event] == m_ofEvents[event])
      continue;
    const QModelIndex row = rowOf(event);
    if (row.isValid())
      emit dataChanged(row, row.siblingAtColumn(EventListModel::ColumnCount - 1));
  }
}

std::vector<LiveEventRows::Row> LiveEventRows::rowsOf(const Game& game) const {
  std::vector<Row> rows(game.events.size());
  const std::vector<FoulNumber> fouls = foulNumbers(game);
  const Rosters rosters{game.roster[Side::Visitor], game.roster[Side::Home]};
  OnCourt onCourt = {};
  std::string_view lists; // of the last stop that counts, as written
  std::size_t place = 0;
  for (auto each = game.events.begin(); each != game.events.end(); ++each, ++place) {
    const GameEvent& event = *each;
    if (!event.isUnderstood)
      continue;
    rows[place].foul = fouls[place];
    if (event.code != EventCode::ARRET)
      continue;
    const std::string_view code = ",ARRET,";
    const std::string_view written = event.line.substr(std::min(event.line.find(code), event.line.size()));
    if (written == lists) // most stops change nobody
      continue;
    const OnCourt now = listsOf(event, rosters);
    rows[place].changed = {onCourt[Side::Visitor] ^ now[Side::Visitor],
                           onCourt[Side::Home] ^ now[Side::Home]};
    if (event.isDeleted)
      continue;
    onCourt = now;
    lists = written;
  }
  for (const Finding& finding : m_findings) {
    QString& words = rows[finding.event].findings;
    words += (words.isEmpty() ? QString() : QStringLiteral("\n")) + toQt(wordsOf(finding, game, m_texts));
  }
  return rows;
}

std::vector<std::size_t> LiveEventRows::doubtful() const {
  std::vector<std::size_t> marked;
  for (std::size_t event = 0; event < game().events.size(); ++event) {
    if (game().events[event].isDoubtful && !game().events[event].isDeleted)
      marked.push_back(event);
  }
  return marked;
}

void LiveEventRows::relabel() {
  m_ofEvents = rowsOf(game());
  m_events.relabel();
}

void LiveEventRows::setFilter(const EventFilter& filter) {
  if (filter == m_filter)
    return;
  m_filter = filter;
  invalidateFilter();
}

std::size_t LiveEventRows::eventAt(const QModelIndex& row) const {
  return static_cast<std::size_t>(mapToSource(row).row());
}

QModelIndex LiveEventRows::rowOf(std::size_t event) const {
  return mapFromSource(m_events.index(static_cast<int>(event), 0));
}

QVariant LiveEventRows::data(const QModelIndex& index, int role) const {
  const QVariant value = QSortFilterProxyModel::data(index, role);
  if (!index.isValid())
    return value;
  const Row& row = m_ofEvents[eventAt(index)];
  const GameEvent& event = game().events[eventAt(index)];
  const bool isDoubtful = event.isDoubtful && !event.isDeleted;
  if (role == Whole)
    return QVariant::fromValue(whole(eventAt(index)));
  if (role == HasFinding)
    return !row.findings.isEmpty() || isDoubtful;
  if (row.findings.isEmpty())
    return value;
  if (role == Qt::ToolTipRole)
    return value.isNull() ? row.findings : QString(row.findings + u'\n' + value.toString());
  return value;
}

LiveEventRow LiveEventRows::whole(std::size_t place) const {
  const GameEvent& event = game().events[place];
  const EventWords::Parts parts = words().parts(place);
  LiveEventRow row;
  row.clock = toQt(words().clock(place));
  if (parts.team)
    row.team = colourOf(game().details.teamColour[*parts.team]);
  row.number = toQt(parts.jersey);
  row.name = toQt(parts.name);
  row.action = toQt(parts.action);
  row.score = m_events.index(static_cast<int>(place), EventListModel::Score).data().toString();
  row.score.replace(u'-', u'–');
  row.isUnderstood = event.isUnderstood;
  if (event.isUnderstood && event.isClock()) {
    const bool changes = m_ofEvents[place].changed != OnCourt{};
    row.action.prepend(event.code == EventCode::DEPART ? QStringLiteral("▸ ")
                       : changes                       ? QStringLiteral("⇄ ")
                                                       : QStringLiteral("■ "));
  }
  if (const FoulNumber& foul = m_ofEvents[place].foul; foul.ofPlayer > 0) {
    row.action = caption(m_texts, event.code == EventCode::STF ? Text::Technical : Text::Foul);
    row.extra = toQt(ordinalText(foul.ofPlayer, m_texts));
    // Who drew it is asked for to be looked at again; the team's count stands on its card as well.
    const auto drawnBy = PlayerReference::read(event.detail(detail_key::kDrawnBy).value_or(""));
    row.tail = toQt(drawnBy ? m_texts.withPlaceholder(Text::DrawnBy, drawnBy->jersey)
                            : m_texts.withPlaceholder(Text::TeamFoul, std::to_string(foul.ofTeam)));
  }
  row.isShot = event.isUnderstood && event.isShot();
  row.isMade = event.isMade;
  row.isDeleted = event.isDeleted;
  row.isDoubtful = event.isDoubtful && !event.isDeleted;
  row.hasFinding = !m_ofEvents[place].findings.isEmpty();
  row.isLatest = place + 1 == game().events.size();
  return row;
}

bool LiveEventRows::filterAcceptsRow(int row, const QModelIndex&) const {
  const auto place = static_cast<std::size_t>(row);
  const GameEvent& event = game().events[place];
  if (event.isDeleted && !m_filter.showsDeleted)
    return false;
  if (m_filter == EventFilter())
    return true;
  if (m_filter.period > 0 && event.period != m_filter.period)
    return false;
  if (m_filter.kind != EventCode::Unknown && event.code != m_filter.kind)
    return false;
  const OnCourt& changed = m_ofEvents[place].changed;
  if (!m_filter.team)
    return m_filter.kind != EventCode::ARRET || changed != OnCourt{};
  const Side team = *m_filter.team;
  if (event.code == EventCode::ARRET)
    return m_filter.player > 0 ? (changed[team] & (1U << static_cast<unsigned>(m_filter.player))) != 0
                               : changed[team] != 0;
  return event.player.team == team &&
         (m_filter.player == 0 || game().roster[team].entryOf(event.player.jersey) == m_filter.player);
}

bool LiveEventRows::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  return left.row() < right.row();
}

} // namespace hooptab
