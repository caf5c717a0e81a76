#include "studies/PersonHead.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "season/SeasonTables.h"
#include "season/TeamStudy.h"
#include "settings/CountWords.h"
#include "studies/StandingsDelegate.h"

#include <QBoxLayout>

namespace hooptab {

namespace {

constexpr std::array kCounted = {"PTS", "Ast", "TR", "ST"};
constexpr int kPlate = 44;

std::optional<double> effectiveOf(const SeasonRow& row) {
  RateBasis basis;
  basis.own = row.numbers;
  return rateNamed("eFG").value(basis);
}

QString placeText(const std::optional<LeaderPlace>& place) {
  return place ? QStringLiteral("%1 / %2").arg(place->place).arg(place->of) : QString();
}

} // namespace

PersonHead::PersonHead(const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_settings(settings), m_texts(texts), m_number(new PlainLabel(this)),
      m_name(new ElidedLabel(this)), m_games(new ElidedLabel(this)) {
  m_number->setObjectName(QStringLiteral("lblNO"));
  m_number->setAlignment(Qt::AlignCenter);
  m_number->setAutoFillBackground(true);
  m_number->setMinimumSize(Theme::measure()(kPlate), Theme::measure()(kPlate));
  Theme::setType(*m_number, Type::Jersey);
  m_name->setObjectName(QStringLiteral("lblNom"));
  Theme::setType(*m_name, Type::Title, QFont::Bold);
  m_games->setObjectName(QStringLiteral("jGAME"));
  m_games->setForegroundRole(QPalette::PlaceholderText);
  auto* names = new QVBoxLayout;
  names->setSpacing(0);
  names->addWidget(m_name);
  names->addWidget(m_games);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Theme::measure()(12, 16));
  layout->addWidget(m_number);
  layout->addLayout(names, 2);
  for (Tile& tile : m_tiles) {
    tile = {new PlainLabel(this), new PlainLabel(this), new PlainLabel(this)};
    for (QLabel* label : {tile.caption, tile.place}) {
      Theme::setType(*label, Type::Small);
      label->setForegroundRole(QPalette::PlaceholderText);
    }
    Theme::setType(*tile.value, Type::Title, QFont::Bold);
    auto* line = new QHBoxLayout;
    line->setSpacing(Theme::measure()(6));
    line->addWidget(tile.value);
    line->addWidget(tile.place, 1, Qt::AlignBottom);
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    column->addWidget(tile.caption);
    column->addLayout(line);
    layout->addLayout(column, 1);
  }
}

QString PersonHead::who() const {
  return m_number->text() + u' ' + m_name->text();
}

void PersonHead::showPerson(const SeasonPerson* person) {
  m_number->setVisible(person != nullptr);
  showTiles(person);
  if (person == nullptr) {
    m_number->clear();
    m_name->setText(caption(m_texts, Text::ChooseSomebody));
    return m_games->clear();
  }
  const SeasonTeam& team = person->season->catalogue().teams()[person->row.team];
  const QColor colour = seasonTeamColour(team);
  QPalette palette = m_number->palette();
  palette.setColor(QPalette::Window, colour);
  palette.setColor(QPalette::WindowText, textOn(colour));
  m_number->setPalette(palette);
  m_number->setText(toQt(person->row.number));
  m_name->setText(toQt(person->row.players.empty() ? person->row.name : person->row.players));
  m_games->setText(toQt(team.key) + QStringLiteral("  ·  ") +
                   toQt(countWords(person->results.size(), Text::OneGamePlayed, Text::GamesPlayed, m_texts)));
}

void PersonHead::showTile(std::size_t tile, const QString& caption, const QString& value,
                          const QString& place) {
  m_tiles.at(tile).caption->setText(caption);
  m_tiles.at(tile).value->setText(value);
  m_tiles.at(tile).place->setText(place);
}

void PersonHead::showTiles(const SeasonPerson* person) {
  for (std::size_t i = 0; i < kTiles; ++i)
    showTile(i, {}, {});
  if (person == nullptr)
    return;
  const auto place = [&](const auto& value) {
    return person->isLine ? QString()
                          : placeText(placeOf(person->row, person->season->statistics().players(),
                                              person->season->minimum(), value));
  };
  for (std::size_t i = 0; i < kCounted.size(); ++i) {
    const int column = seasonColumn(kCounted.at(i)).index;
    showTile(i, statisticName(column, m_settings, m_texts),
             toQt(seasonCell(person->row, column, SeasonView::PerGame, m_texts)),
             place([column](const SeasonRow& row) -> std::optional<double> {
               return seasonSortValue(row, column, SeasonView::PerGame);
             }));
  }
  showTile(kCounted.size(), caption(m_texts, Text::EffectiveFieldGoals),
           toQt(rateText(rateNamed("eFG"), effectiveOf(person->row))), place(effectiveOf));
  const SeasonOnOff both = onOffOf(person->season->catalogue(), person->results);
  const auto net = [](const CourtShare& share) {
    return rateNamed("netRating").value(RateBasis::ofAll(kOwnSide, share));
  };
  const std::optional<double> on = net(both.on);
  const std::optional<double> off = net(both.off);
  showTile(kCounted.size() + 1, caption(m_texts, Text::OnMinusOff),
           on && off ? toQt(signedText(*on - *off, 1)) : QStringLiteral("–"));
}

} // namespace hooptab
