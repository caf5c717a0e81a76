#include "manual/ScoreCheck.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "totals/ManualGame.h"

#include <QBoxLayout>
#include <QIntValidator>
#include <QLineEdit>

#include <cstdlib>

namespace hooptab {

namespace {

constexpr int kFieldWidth = 48;
constexpr int kHighestScore = 9999;
constexpr int kGap = 6;

} // namespace

ScoreCheck::ScoreCheck(const ManualGame& game, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_game(game), m_texts(texts) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  auto* caption = new PlainLabel(this);
  setTextNumber(*caption, Text::FinalScore);
  for (int team = 0; team < 2; ++team) {
    const auto named = [team](const char* name) {
      return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(team);
    };
    Side& side = m_sides[static_cast<std::size_t>(team)];
    side.team = new ElidedLabel(this);
    side.team->setAutoFillBackground(true);
    side.team->setContentsMargins(kGap, 0, kGap, 0);
    side.points = new PlainLabel(this);
    side.points->setObjectName(named("lblSCORE"));
    Theme::setType(*side.points, Type::Jersey);
    side.typed = new QLineEdit(this);
    side.typed->setObjectName(named("txtFINAL"));
    side.typed->setValidator(new QIntValidator(0, kHighestScore, side.typed));
    side.typed->setFixedWidth(kFieldWidth);
    setToolTipNumber(*side.typed, Text::FinalScoreWords);
    setAccessibleNumber(*side.typed, Text::FinalScoreWords);
    side.verdict = new PlainLabel(this);
    side.verdict->setObjectName(named("lblFINAL"));
    connect(side.typed, &QLineEdit::textChanged, this, &ScoreCheck::showPoints);
  }
  layout->addWidget(m_sides[0].team);
  layout->addWidget(m_sides[0].points);
  layout->addWidget(new PlainLabel(QStringLiteral("–"), this));
  layout->addWidget(m_sides[1].points);
  layout->addWidget(m_sides[1].team);
  layout->addSpacing(2 * kGap);
  layout->addWidget(caption);
  for (const Side& side : m_sides) {
    layout->addWidget(side.typed);
    layout->addWidget(side.verdict);
  }
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  caption->setBuddy(m_sides[0].typed);
}

void ScoreCheck::beginGame() {
  for (const Side& side : m_sides)
    side.typed->clear();
}

void ScoreCheck::showPoints() {
  for (int team = 0; team < 2; ++team) {
    const Side& side = m_sides[static_cast<std::size_t>(team)];
    const int points = pointsOf(m_game.totals.teamCounts(team));
    side.team->setText(toQt(m_game.details().abbreviation[team]));
    const QColor colour = colourOf(m_game.details().teamColour[team]);
    QPalette plate;
    plate.setColor(QPalette::Window, colour);
    plate.setColor(QPalette::WindowText, textOn(colour));
    side.team->setPalette(plate);
    side.team->setToolTip(toQt(m_game.details().name[team]));
    side.points->setText(QString::number(points));
    const int missing = side.typed->text().toInt() - points;
    const bool isTyped = !side.typed->text().isEmpty();
    side.verdict->setVisible(isTyped);
    side.verdict->setText(missing == 0
                              ? u'●' + (u' ' + caption(m_texts, Text::PointsAgree))
                              : u'✕' + (u' ' + toQt(m_texts.withPlaceholder(
                                                   missing > 0 ? Text::PointsMissing : Text::PointsTooMany,
                                                   std::to_string(std::abs(missing))))));
    QPalette colours;
    colours.setColor(QPalette::WindowText, missing == 0 ? Theme::made() : Theme::missed());
    side.verdict->setPalette(colours);
  }
}

} // namespace hooptab
