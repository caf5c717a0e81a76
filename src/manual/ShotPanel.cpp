#include "manual/ShotPanel.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "game/GameEvent.h"
#include "manual/ManualCourt.h"
#include "totals/ManualGame.h"

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>
#include <optional>

namespace hooptab {

namespace {

constexpr int kListWidth = 180;
constexpr int kGap = 6;

// As every reader of the line that the shot becomes.
std::optional<court::Place> placeOf(const ManualShot& shot) {
  const std::string line = "00:00,GFG,0-0," + shot.place;
  const GameEvent event = GameEvent::parse(1, "1", line);
  return event.hasPlace ? std::optional(court::Place{event.x, event.y}) : std::nullopt;
}

} // namespace

ShotPanel::ShotPanel(ManualGame& game, const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_game(game), m_texts(texts), m_court(new ManualCourt(settings, this)),
      m_hint(new PlainLabel(this)), m_list(new QListWidget(this)),
      m_delete(iconButton("CmdDELSHOT", Text::DeleteSelectedShot, Text::DeleteSelectedShot, "delete", this)) {
  m_court->setMinimumSize(200, 300);
  m_court->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setAccessibleNumber(*m_court, Text::CourtKeys);
  setTextNumber(*m_hint, Text::CourtKeys);
  m_hint->setWordWrap(true);
  m_hint->setForegroundRole(QPalette::PlaceholderText);
  m_list->setObjectName(QStringLiteral("fsSHOT"));
  setAccessibleNumber(*m_list, Text::ShotsOfPlayer);
  setToolTipNumber(*m_list, Text::ShotsOfPlayer);
  auto* press = new QShortcut(QKeySequence(Qt::Key_Delete), m_list);
  press->setContext(Qt::WidgetShortcut);

  auto* list = new QVBoxLayout;
  list->setSpacing(kGap);
  list->addWidget(m_list, 1);
  list->addWidget(m_delete);
  auto* shots = new QHBoxLayout;
  shots->setSpacing(kGap);
  shots->addWidget(m_court, 1);
  shots->addLayout(list);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(shots, 1);
  layout->addWidget(m_hint);
  m_list->setFixedWidth(kListWidth);

  connect(m_court, &ManualCourt::pressed, this, &ShotPanel::place);
  connect(m_list, &QListWidget::currentRowChanged, this, &ShotPanel::showMarks);
  connect(m_delete, &QPushButton::clicked, this, &ShotPanel::deleteChosen);
  connect(press, &QShortcut::activated, this, &ShotPanel::deleteChosen);
}

void ShotPanel::place(EventCode kind, int x, int y, bool isMade) {
  if (m_player == 0)
    return emit playerMissing();
  if (m_game.isForReading())
    return;
  m_game.totals.addShot(m_team, m_player, kind, isMade, x, y);
  emit totalsChanged();
  const auto added = std::ranges::find_if(m_entries, [&](const Entry& entry) {
    return entry.kind == kind && entry.index + 1 == m_game.totals.slot(m_team, m_player).shots(kind).size();
  });
  m_list->setCurrentRow(static_cast<int>(added - m_entries.begin()));
}

void ShotPanel::deleteChosen() {
  const int row = m_list->currentRow();
  if (row < 0 || m_game.isForReading())
    return;
  const Entry entry = m_entries[static_cast<std::size_t>(row)];
  m_game.totals.deleteShot(m_team, m_player, entry.kind, entry.index);
  emit totalsChanged();
  m_list->setCurrentRow(std::min(row, m_list->count() - 1));
}

void ShotPanel::showShots(Side team, int player) {
  const bool isSame = team == m_team && player == m_player;
  const int row = isSame ? m_list->currentRow() : -1;
  m_team = team;
  m_player = player;
  {
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    m_entries.clear();
    for (const EventCode kind : {EventCode::GFG, EventCode::GF3}) {
      if (player == 0)
        break;
      const std::vector<ManualShot>& shots = m_game.totals.slot(team, player).shots(kind);
      for (std::size_t index = 0; index < shots.size(); ++index) {
        const QString mark = shots[index].isMade ? QStringLiteral("●") : QStringLiteral("✕");
        const QString place = shots[index].place.empty()
                                  ? caption(m_texts, Text::WithoutPlace)
                                  : toQt(shots[index].place).replace(u',', QStringLiteral(", "));
        m_list->addItem(QStringLiteral("%1 %2   %3").arg(mark, toQt(kindOf(kind)->shortName), place));
        m_entries.push_back({kind, index});
      }
    }
    m_list->setCurrentRow(std::min(row, m_list->count() - 1));
  }
  showMarks();
}

void ShotPanel::showMarks() {
  std::vector<CourtMark> marks;
  QStringList toolTips;
  for (int slot = 1; slot <= ManualTotals::kSlots; ++slot) {
    if (m_player != 0 && slot != m_player)
      continue;
    const RosterPlayer* const player = m_game.roster(m_team).player(slot);
    for (const EventCode kind : {EventCode::GFG, EventCode::GF3}) {
      const std::vector<ManualShot>& shots = m_game.totals.slot(m_team, slot).shots(kind);
      for (const ManualShot& shot : shots) {
        const auto place = placeOf(shot);
        if (!place || player == nullptr)
          continue;
        marks.push_back({*place, shot.isMade});
        toolTips << QStringLiteral("%1 %2: %3")
                        .arg(toQt(player->jersey), toQt(player->name),
                             caption(m_texts, kindOf(kind)->wordsText));
      }
    }
  }
  const int row = m_list->currentRow();
  m_delete->setEnabled(row >= 0 && !m_game.isForReading());
  if (row >= 0) {
    const Entry& entry = m_entries[static_cast<std::size_t>(row)];
    const ManualShot& shot = m_game.totals.slot(m_team, m_player).shots(entry.kind)[entry.index];
    if (const auto place = placeOf(shot)) { // once more, above its neighbours
      marks.push_back({*place, shot.isMade, true});
      toolTips << m_list->item(row)->text();
    }
  }
  m_court->setMarks(std::move(marks), std::move(toolTips));
}

void ShotPanel::relabelPanel() {
  showShots(m_team, m_player);
}

void ShotPanel::applyColours() {
  m_court->applyColours();
}

} // namespace hooptab
