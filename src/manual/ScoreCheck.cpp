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
  for (const Side team : kSides) {
    const auto named = [team](const char* name) {
      return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(numberOf(team));
    };
    TeamWidgets& side = m_sides[team];
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
  layout->addWidget(m_sides[Side::Visitor].team);
  layout->addWidget(m_sides[Side::Visitor].points);
  layout->addWidget(new PlainLabel(QStringLiteral("–"), this));
  layout->addWidget(m_sides[Side::Home].points);
  layout->addWidget(m_sides[Side::Home].team);
  layout->addSpacing(2 * kGap);
  layout->addWidget(caption);
  for (const TeamWidgets& side : m_sides) {
    layout->addWidget(side.typed);
    layout->addWidget(side.verdict);
  }
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  caption->setBuddy(m_sides[Side::Visitor].typed);
}

void ScoreCheck::beginGame() {
  for (const TeamWidgets& side : m_sides)
    side.typed->clear();
}

void ScoreCheck::showPoints() {
  for (const Side team : kSides) {
    const TeamWidgets& side = m_sides[team];
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
