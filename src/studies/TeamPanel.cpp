#include "studies/TeamPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/TableContent.h"
#include "appearance/relabel.h"
#include "season/GamePictures.h"
#include "season/SeriesView.h"
#include "season/ZoneChart.h"
#include "settings/CountWords.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QSignalBlocker>
#include <QSplitter>

namespace hooptab {

namespace {

constexpr int kTeamWidth = 200;

QString balanceText(const SeasonTeamRow& team, const Texts& texts) {
  const auto count = [&](int number, Text one, Text many) {
    return countWords(static_cast<std::size_t>(number), one, many, texts);
  };
  return toQt(count(team.wins, Text::OneWin, Text::TeamWins) + ", " +
              count(team.losses, Text::OneLoss, Text::TeamLosses) + ", " +
              count(team.ties, Text::OneTie, Text::TeamTies)) +
         QStringLiteral("  ·  ") + toQt(Module1::quotientText(team.pointsFor, team.games, 1)) +
         QStringLiteral(" – ") + toQt(Module1::quotientText(team.pointsAgainst, team.games, 1));
}

} // namespace

TeamPanel::TeamPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_team(new QComboBox(this)), m_balance(new PlainLabel(this)) {
  m_team->setObjectName(QStringLiteral("lstTEAM"));
  m_team->setMinimumWidth(kTeamWidth);
  setAccessibleNumber(*m_team, Text::ShownTeam);
  setToolTipNumber(*m_team, Text::ShownTeam);
  m_balance->setObjectName(QStringLiteral("lblBALANCE"));
  auto* parts = new QSplitter(Qt::Horizontal, this);
  parts->setObjectName(QStringLiteral("teamParts"));
  parts->setChildrenCollapsible(false);
  m_picture = new SeriesView(QStringLiteral("picMARGINS"), parts);
  m_shots = new ZoneChart(QStringLiteral("picTEAMSHOTS"), texts, parts);
  parts->addWidget(m_picture);
  parts->addWidget(m_shots);
  parts->setStretchFactor(0, 3);
  parts->setStretchFactor(1, 2);
  parts->setSizes({760, 540});
  auto* head = new QHBoxLayout;
  head->addWidget(m_team);
  head->addWidget(m_balance);
  head->addStretch();
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(4, 4, 4, 4);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(parts, 1);
  connect(m_team, &QComboBox::currentIndexChanged, this, &TeamPanel::showTeam);
  connect(m_picture, &SeriesView::valueAsked, this,
          [this](int value) { emit gameAsked(m_margins.points[static_cast<std::size_t>(value)].game); });
}

void TeamPanel::showSeason(std::shared_ptr<const Season> season) {
  m_season = std::move(season);
  {
    const QSignalBlocker quiet(m_team);
    const QString chosen = m_team->currentText();
    m_team->clear();
    if (m_season != nullptr) {
      for (const SeasonTeamRow& team : m_season->statistics().teams())
        m_team->addItem(toQt(m_season->catalogue().teams()[team.team].key));
      m_team->setCurrentIndex(std::max(m_team->findText(chosen), 0));
    }
  }
  showTeam();
}

// Nothing happens where the statistics do not have it.
void TeamPanel::chooseTeam(SeasonId team) {
  const int place =
      m_season == nullptr ? -1 : m_team->findText(toQt(m_season->catalogue().teams()[team].key));
  if (place >= 0)
    m_team->setCurrentIndex(place);
}

void TeamPanel::relabelPanel() {
  showTeam();
}

void TeamPanel::applyColours() {
  m_shots->applyColours();
  m_picture->update();
}

void TeamPanel::showTeam() {
  if (m_season == nullptr || m_team->currentIndex() < 0) {
    m_balance->setText(caption(m_texts, Text::NotGenerated));
    m_picture->show({}, {});
    return m_shots->showShots({}, {});
  }
  const SeasonStatistics& statistics = m_season->statistics();
  const SeasonTeamRow& team = statistics.teams()[static_cast<std::size_t>(m_team->currentIndex())];
  m_balance->setText(balanceText(team, m_texts));
  for (QWidget* each : {static_cast<QWidget*>(m_picture), static_cast<QWidget*>(m_shots)})
    setExportTitle(*each, m_team->currentText());
  m_margins = seriesOfMargins(statistics, team.team);
  SeriesWithToolTips picture = pictureOfMargins(m_margins, team.team, *m_season, m_texts);
  m_picture->show(std::move(picture.drawing), std::move(picture.toolTips));
  m_shots->showShots(shotsOfTeam(m_season->catalogue(), statistics.games(), team.team), m_season->shots());
}

} // namespace hooptab
