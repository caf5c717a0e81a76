#include "review/ShotsPage.h"

#include "appearance/Card.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "court/CourtView.h"
#include "review/SignLegend.h"
#include "review/TeamCourt.h"
#include "scorecard/ZoneRates.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QToolButton>
#include <algorithm>
#include <cmath>

namespace hooptab {

namespace {

constexpr int kGap = 8;
constexpr int kInset = 10;

enum Average { Opponent, Team, OwnSeason, AllGames };
constexpr Text kAverages[] = {Text::AgainstOpponent, Text::TeamWord, Text::AgainstOwnSeason,
                              Text::AgainstAllGames};

} // namespace

ShotsPage::ShotsPage(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts),
      m_byShot(addSwitch("cmdSHOTS", Text::ByShot, "byshot")),
      m_byZone(addSwitch("cmdZONES", Text::ByZone, "byzone")), m_average(new QComboBox(this)),
      m_noSeason(new ElidedLabel(this)), m_legend(new SignLegend(this)) {
  setObjectName(QStringLiteral("pageSHOTS"));
  m_byShot->setChecked(true);
  m_average->setObjectName(QStringLiteral("cmbAVERAGE"));
  m_average->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  for (std::size_t i = 0; i < std::size(kAverages); ++i)
    m_average->addItem(QString());
  m_noSeason->setObjectName(QStringLiteral("lblNOSEASON"));
  m_noSeason->setForegroundRole(QPalette::PlaceholderText);
  setTextNumber(*m_noSeason, Text::AgainstNeedsSeason);
  auto* kinds = new QButtonGroup(this);
  kinds->addButton(m_byShot);
  kinds->addButton(m_byZone);

  auto* head = new QHBoxLayout;
  head->setSpacing(kGap);
  head->addWidget(m_byShot);
  head->addWidget(m_byZone);
  m_against = captionFor(*m_average, Text::CompareFirst);
  head->addWidget(m_against);
  head->addWidget(m_average);
  head->addWidget(m_noSeason, 1);
  head->addStretch();
  head->addWidget(m_legend);
  auto* halves = new QHBoxLayout;
  halves->setSpacing(kGap);
  for (const Side team : kSides)
    halves->addWidget(makeHalf(team), 1);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(head);
  layout->addLayout(halves, 1);
  connect(m_byZone, &QToolButton::toggled, this, &ShotsPage::showShots);
  connect(m_average, &QComboBox::currentIndexChanged, this, &ShotsPage::showShots);
}

QToolButton* ShotsPage::addSwitch(const char* name, Text text, const char* iconName) {
  auto* button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setCheckable(true);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setIcon(icon(QLatin1String(iconName)));
  setTextNumber(*button, text);
  setToolTipNumber(*button, Text::ShotOrZone);
  return button;
}

QWidget* ShotsPage::makeHalf(Side team) {
  auto* card = new Card(this);
  auto* layout = new QVBoxLayout(card);
  layout->setContentsMargins(kInset, kInset, kInset, kInset);
  m_players[team] = new QComboBox(card);
  m_players[team]->setObjectName(QStringLiteral("cmbPLAYER(%1)").arg(numberOf(team)));
  m_players[team]->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setAccessibleNumber(*m_players[team], Text::PlayerWord);
  m_courts[team] = new TeamCourt(QStringLiteral("SHOTS"), team, m_settings, m_texts, card);
  layout->addWidget(m_players[team]);
  layout->addWidget(m_courts[team], 1);
  connect(m_players[team], &QComboBox::currentIndexChanged, this, &ShotsPage::showShots);
  return card;
}

void ShotsPage::showGame(std::shared_ptr<const CountedGame> game) {
  m_game = std::move(game);
  const QSignalBlocker noChoice(m_average);
  for (int i = 0; i < m_average->count(); ++i)
    m_average->setItemText(i, caption(m_texts, kAverages[i]));
  for (const Side team : kSides)
    fillPlayers(team);
  applyColours(); // and what there is to show
}

// Whoever is chosen stays so while the game is read anew.
void ShotsPage::fillPlayers(Side team) {
  QComboBox& box = *m_players[team];
  const QSignalBlocker noChoice(&box);
  const QVariant chosen = box.currentData();
  box.clear();
  box.addItem(caption(m_texts, Text::All), QString());
  const Roster& roster = m_game->game.roster[team];
  for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
    if (const RosterPlayer* player = roster.player(entry))
      box.addItem(toQt(player->jersey) + u' ' + toQt(player->name), toQt(player->jersey));
  }
  box.setCurrentIndex(std::max(box.findData(chosen), 0));
}

std::vector<Shot> ShotsPage::shotsOf(Side team, bool all) const {
  const int entry = m_players[team]->currentIndex(); // behind "all", in the order of the entries
  return selectedShots(m_game->state, {team, BoxView::Players, all || entry <= 0, {entry}});
}

void ShotsPage::showShots() {
  if (m_game == nullptr)
    return;
  const bool byZone = m_byZone->isChecked();
  m_average->setVisible(byZone);
  m_against->setVisible(byZone);
  m_noSeason->hide();
  for (const Side team : kSides) {
    m_courts[team]->showShots(toQt(m_game->game.details.name[team]), shotsOf(team, false), *m_game);
    showZones(team);
    if (byZone)
      m_courts[team]->court().showZones();
    else
      m_courts[team]->court().showMarks();
  }
  showLegend(byZone);
}

void ShotsPage::showLegend(bool byZone) {
  const Look& look = Theme::look();
  const auto words = [this](Text text) { return caption(m_texts, text); };
  if (byZone)
    m_legend->showSigns({{{}, {}, words(Text::PointsPerShotWord)},
                         {QStringLiteral("■"), look.warningBar, words(Text::FewerPoints)},
                         {QStringLiteral("■"), look.accent, words(Text::MorePoints)}});
  else
    m_legend->showSigns({{QStringLiteral("●"), look.made, words(Text::Made)},
                         {QStringLiteral("✕"), look.missed, words(Text::Missed)}});
}

std::optional<ShotSums> ShotsPage::averageFor(Side team) const {
  const GameDetails& details = m_game->game.details;
  switch (m_average->currentIndex()) {
  case OwnSeason: return m_seasonShots ? m_seasonShots(details, team) : std::nullopt;
  case AllGames: return m_seasonShots ? m_seasonShots(details, std::nullopt) : std::nullopt;
  default: return shotSums(shotsOf(m_average->currentIndex() == Team ? team : otherSide(team), true));
  }
}

void ShotsPage::showZones(Side team) {
  constexpr double kWholeTint = 0.8; // points per shot from which on a zone is tinted fully
  constexpr double kFewTint = 0.12;
  constexpr double kLeastTint = 0.2;
  const std::optional<ShotSums> average = averageFor(team);
  if (!average && m_byZone->isChecked())
    m_noSeason->show();
  std::vector<CourtZoneText> zones;
  for (const ZoneRate& rate : zoneRates(shotSums(shotsOf(team, false)), average.value_or(ShotSums()))) {
    CourtZoneText& zone = zones.emplace_back();
    zone.zone = rate.zone;
    zone.upper = toQt(rate.fraction);
    zone.lower = toQt(rate.pointsPerShot);
    zone.tint = rate.aboveAverage < 0 ? Theme::look().warningBar : Theme::look().accent;
    zone.strength = !average     ? 0
                    : rate.isFew ? kFewTint
                                 : kLeastTint + (1 - kLeastTint) *
                                                    std::min(std::abs(rate.aboveAverage) / kWholeTint, 1.0);
    zone.toolTip = caption(m_texts, court::chartZoneText(rate.zone)) + QStringLiteral("  ") + zone.upper +
                   QStringLiteral("  ") + zone.lower + u' ' + caption(m_texts, Text::PointsPerShotWord);
  }
  m_courts[team]->court().setZones(std::move(zones));
}

void ShotsPage::applyColours() {
  m_byShot->setIcon(icon(QStringLiteral("byshot")));
  m_byZone->setIcon(icon(QStringLiteral("byzone")));
  for (TeamCourt* court : m_courts)
    court->applyColours();
  showShots();
}

} // namespace hooptab
