#include "events/EventFilterRow.h"

#include "appearance/relabel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QSignalBlocker>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kPadding = 8;
constexpr int kFewestLetters = 6;
constexpr int kEntries = Roster::kLargestEntry + 1; // a player is chosen as numberOf(team) * kEntries + entry

} // namespace

EventFilterRow::EventFilterRow(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  auto* layout = new QGridLayout(this);
  layout->setContentsMargins(4, 2, 4, 2);
  layout->setSpacing(2);
  m_team = makeBox("cmbTEAM", Text::TeamWord);
  m_period = makeBox("cmbPERIOD", Text::Period);
  m_player = makeBox("cmbPLAYER", Text::Player);
  m_kind = makeBox("cmbKIND", Text::KindOfEvent);
  layout->addWidget(m_team, 0, 0);
  layout->addWidget(m_period, 0, 1);
  layout->addWidget(m_player, 1, 0);
  layout->addWidget(m_kind, 1, 1);
  m_deleted = new QCheckBox(this);
  m_deleted->setObjectName(QStringLiteral("chkDELETED"));
  setTextNumber(*m_deleted, Text::ShowDeleted);
  connect(m_deleted, &QCheckBox::toggled, this, &EventFilterRow::changed);
  layout->addWidget(m_deleted, 2, 0, 1, 2);
}

QComboBox* EventFilterRow::makeBox(const char* name, Text text) {
  auto* box = new QComboBox(this);
  box->setObjectName(QLatin1String(name));
  setAccessibleNumber(*box, text);
  setToolTipNumber(*box, text);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(kFewestLetters);
  connect(box, &QComboBox::currentIndexChanged, this, [this, box] {
    if (box == m_team)
      fillPlayers();
    emit changed();
  });
  return box;
}

// Filled anew only when another choice is to be had: a period more, another language, another game.
void EventFilterRow::fill(QComboBox& box, Text text, const QString& key,
                          const std::vector<std::pair<QString, int>>& items) {
  if (box.property("shown").toString() == key)
    return;
  box.setProperty("shown", key);
  const QVariant chosen = box.currentData();
  const QSignalBlocker quiet(box);
  box.clear();
  box.addItem(caption(m_texts, text), QVariant());
  for (const auto& [words, choice] : items)
    box.addItem(words, choice);
  box.setCurrentIndex(std::max(chosen.isValid() ? box.findData(chosen) : 0, 0));
  box.view()->setMinimumWidth(box.view()->sizeHintForColumn(0) + 3 * kPadding);
}

void EventFilterRow::showGame(const Game& game, const EventWords& words) {
  const int played = game.events.isEmpty() ? 0 : game.events[game.events.size() - 1].period;
  const int periods = std::min(std::max(game.details.periods, played), kLastPeriod);
  const bool hasTeamKinds = game.details.recordingLevel() != RecordingLevel::Basic;
  const QString whole = toQt(game.path) + u'|' +
                        QString::number(game.roster[Side::Visitor].players().size()) +
                        (hasTeamKinds ? u"|teams" : u"");
  const bool isSame = whole == m_game && m_kind->count() > 0;
  m_game = whole;
  std::vector<std::pair<QString, int>> items;
  for (int period = 1; period <= periods; ++period)
    items.emplace_back(toQt(words.periodText(period)), period);
  fill(*m_period, Text::Period, whole + u'|' + QString::number(periods), items);
  if (isSame)
    return;

  fill(*m_team, Text::TeamWord, whole,
       {{toQt(words.team(Side::Visitor)), numberOf(Side::Visitor)},
        {toQt(words.team(Side::Home)), numberOf(Side::Home)}});
  for (const Side team : kSides) {
    auto& players = m_players[team];
    players.clear();
    for (int entry = 1; entry < kEntries; ++entry) {
      if (const RosterPlayer* player = game.roster[team].player(entry))
        players.emplace_back(toQt(words.team(team)) + u' ' + toQt(words.player({team, player->jersey})),
                             numberOf(team) * kEntries + entry);
    }
  }
  fillPlayers();
  items.clear();
  for (const EventKind& kind : eventKinds())
    items.emplace_back(caption(m_texts, kind.wordsText), static_cast<int>(kind.code));
  items.emplace_back(caption(m_texts, Text::Substitution), static_cast<int>(EventCode::ARRET));
  for (const EventKind& kind : kTeamKinds) {
    if (hasTeamKinds)
      items.emplace_back(caption(m_texts, kind.wordsText), static_cast<int>(kind.code));
  }
  fill(*m_kind, Text::KindOfEvent, hasTeamKinds ? QStringLiteral("kinds of teams") : QStringLiteral("kinds"),
       items);
}

void EventFilterRow::relabelRow(const Game& game, const EventWords& words) {
  for (QComboBox* box : {m_team, m_period, m_player, m_kind})
    box->setProperty("shown", {}); // their items are words
  m_game.clear();
  showGame(game, words);
}

// Of the chosen team, or of both.
void EventFilterRow::fillPlayers() {
  const QVariant team = m_team->currentData();
  std::vector<std::pair<QString, int>> items;
  for (const Side side : kSides) {
    const auto& players = m_players[side];
    if (!team.isValid() || team.toInt() == numberOf(side))
      items.insert(items.end(), players.begin(), players.end());
  }
  fill(*m_player, Text::Player, m_game + u'|' + team.toString(), items);
}

EventFilter EventFilterRow::filter() const {
  EventFilter filter;
  if (m_team->currentData().isValid())
    filter.team = sideOf(m_team->currentData().toInt());
  filter.period = m_period->currentData().toInt();
  if (const QVariant player = m_player->currentData(); player.isValid()) {
    filter.team = sideOf(player.toInt() / kEntries);
    filter.player = player.toInt() % kEntries;
  }
  filter.kind = static_cast<EventCode>(m_kind->currentData().toInt());
  filter.showsDeleted = m_deleted->isChecked();
  return filter;
}

void EventFilterRow::clear() {
  for (QComboBox* box : {m_team, m_period, m_player, m_kind}) {
    const QSignalBlocker quiet(box);
    box->setCurrentIndex(0);
  }
  const QSignalBlocker quiet(m_deleted);
  m_deleted->setChecked(false);
  fillPlayers();
  emit changed();
}

void EventFilterRow::choose(Side team, int period) {
  clear();
  m_period->setCurrentIndex(std::max(m_period->findData(period), 0));
  m_team->setCurrentIndex(std::max(m_team->findData(numberOf(team)), 0));
}

} // namespace hooptab
