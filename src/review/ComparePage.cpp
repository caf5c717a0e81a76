#include "review/ComparePage.h"

#include "appearance/Card.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "review/ComparisonBars.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QPoint>
#include <QSignalBlocker>
#include <algorithm>
#include <iterator>

namespace hooptab {

namespace {

constexpr int kGap = 8;
constexpr int kInset = 12;
constexpr int kWidest = 1000; // of the bars, which would only grow apart
constexpr int kBoxLetters = 22;
constexpr int kLeastBox = 90;
constexpr double kSecondShade = 0.45; // of a colour that both sides have

} // namespace

ComparePage::ComparePage(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_kind(addBox("cmbCOMPARE", Text::CompareFirst)),
      m_players{addBox("cmbCOMPARED(0)", Text::ComparePlayers), addBox("cmbCOMPARED(1)", Text::CompareWith)},
      m_stretches{addBox("cmbSTRETCH(0)", Text::StretchFirst), addBox("cmbSTRETCH(1)", Text::StretchSecond)},
      m_with(new PlainLabel(this)), m_note(new ElidedLabel(this)), m_bars(new ComparisonBars(this)) {
  setObjectName(QStringLiteral("pageCOMPARE"));
  m_bars->setObjectName(QStringLiteral("picCOMPARED"));
  setAccessibleNumber(*m_bars, Text::CompareTab);
  m_bars->setMaximumWidth(Theme::measure()(kWidest));
  setTextNumber(*m_with, Text::CompareWith);
  setTextNumber(*m_note, Text::BetterIsBold);
  for (QLabel* label : {m_with, m_note})
    label->setForegroundRole(QPalette::PlaceholderText);
  auto* head = new QHBoxLayout;
  head->setSpacing(kGap);
  head->addWidget(m_kind);
  head->addWidget(m_players[0]);
  head->addWidget(m_stretches[0]);
  head->addWidget(m_with);
  head->addWidget(m_players[1]);
  head->addWidget(m_stretches[1]);
  m_note->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  head->addWidget(m_note, 1);
  auto* card = new Card(this);
  auto* inside = new QHBoxLayout(card);
  inside->setContentsMargins(kInset, kInset, kInset, kInset);
  inside->addWidget(m_bars);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(head);
  layout->addWidget(card, 1);
  showBoxes(Teams);
}

QComboBox* ComparePage::addBox(const char* name, Text text) {
  auto* box = new QComboBox(this);
  box->setObjectName(QLatin1String(name));
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(kBoxLetters);
  box->setMinimumWidth(kLeastBox);
  setAccessibleNumber(*box, text);
  setToolTipNumber(*box, text);
  connect(box, &QComboBox::currentIndexChanged, this, &ComparePage::showComparison);
  return box;
}

void ComparePage::showGame(const ShownGame& game) {
  m_game = game;
  fillBoxes();
  showComparison();
}

// What is chosen stays so while the game is read anew.
void ComparePage::fillBoxes() {
  {
    const QSignalBlocker noChoice(m_kind);
    const int chosen = std::max(m_kind->currentIndex(), 0);
    m_kind->clear();
    for (const Text text : {Text::CompareTeams, Text::ComparePlayers, Text::CompareStretches})
      m_kind->addItem(caption(m_texts, text));
    m_kind->setCurrentIndex(chosen);
  }
  fillPlayers(*m_players[0], Side::Visitor);
  fillPlayers(*m_players[1], Side::Home);
  fillStretches(*m_stretches[0], 0);
  fillStretches(*m_stretches[1], 1);
}

// At first a player of each team.
void ComparePage::fillPlayers(QComboBox& box, Side usual) {
  const QSignalBlocker noChoice(&box);
  const QVariant chosen = box.currentData();
  box.clear();
  int first = -1;
  for (const PlayerOfGame& player : playersOf(*m_game.whole())) {
    if (first < 0 && player.team == usual)
      first = box.count();
    const GameDetails& details = m_game.whole()->game.details;
    const RosterPlayer& entry = *m_game.whole()->game.roster[player.team].player(player.entry);
    box.addItem(toQt(details.abbreviation[player.team]) + u' ' + toQt(entry.jersey) + u' ' + toQt(entry.name),
                QPoint(numberOf(player.team), player.entry));
  }
  const int kept = box.findData(chosen);
  box.setCurrentIndex(kept >= 0 ? kept : std::clamp(first, 0, std::max(box.count() - 1, 0)));
}

void ComparePage::fillStretches(QComboBox& box, int usual) {
  const QSignalBlocker noChoice(&box);
  const int chosen = box.currentIndex();
  box.clear();
  for (const NamedStretch& stretch : usualStretches(m_game.whole()->game, m_texts))
    box.addItem(toQt(stretch.words));
  box.setCurrentIndex(chosen >= 0 ? std::min(chosen, box.count() - 1) : std::min(usual, box.count() - 1));
}

ComparePage::SideShown ComparePage::playerOf(const QComboBox& box) const {
  const PlayerOfGame player = playersOf(*m_game.whole())[static_cast<std::size_t>(box.currentIndex())];
  return {basisOfPlayer(*m_game.shown(), m_game.insight(), player.team, player.entry), box.currentText(),
          colourOf(m_game.whole()->game.details.teamColour[player.team])};
}

ComparePage::SideShown ComparePage::stretchOf(const QComboBox& box) const {
  const Game& game = m_game.whole()->game;
  const PlayerOfGame player =
      playersOf(*m_game.whole())[static_cast<std::size_t>(m_players[0]->currentIndex())];
  const Stretch stretch = usualStretches(game, m_texts)[static_cast<std::size_t>(box.currentIndex())].stretch;
  const auto counted = countStretch(game, stretch);
  return {basisOfPlayer(*counted, insightOf(counted->game), player.team, player.entry), box.currentText(),
          colourOf(game.details.teamColour[player.team])};
}

void ComparePage::showBoxes(Kind kind) {
  m_players[0]->setVisible(kind != Teams);
  m_players[1]->setVisible(kind == Players);
  m_with->setVisible(kind != Teams);
  for (QComboBox* box : m_stretches)
    box->setVisible(kind == Stretches);
}

void ComparePage::showComparison() {
  if (!m_game.hasGame())
    return;
  const auto kind = static_cast<Kind>(m_kind->currentIndex());
  showBoxes(kind);
  ComparisonBars::Head head{.title = m_kind->currentText()};
  if (kind == Teams) {
    const GameDetails& details = m_game.whole()->game.details;
    for (const Side team : kSides) {
      head.name[team] = toQt(details.abbreviation[team]);
      head.colour[team] = colourOf(details.teamColour[team]);
    }
    std::vector<ComparisonRow> rows = compareTeams(m_game.insight(), m_texts);
    if (!m_game.stretch()) // counted alone, a stretch does not know how the score stood
      std::ranges::move(compareClutch(m_game.insight(), details, m_texts), std::back_inserter(rows));
    return m_bars->showRows(std::move(head), std::move(rows));
  }
  if (m_players[0]->count() == 0) {
    head.title = caption(m_texts, Text::CompareEmpty);
    return m_bars->showRows(std::move(head), {});
  }
  const auto& boxes = kind == Players ? m_players : m_stretches;
  const auto sideOfBox = [&](const QComboBox& box) {
    return kind == Players ? playerOf(box) : stretchOf(box);
  };
  const SideShown left = sideOfBox(*boxes[0]);
  const SideShown right = sideOfBox(*boxes[1]);
  head.name = {left.name, right.name};
  head.colour = {left.colour, left.colour == right.colour
                                  ? mix(right.colour, Theme::look().surface, kSecondShade)
                                  : right.colour};
  m_bars->showRows(std::move(head), comparePlayers(left.basis, right.basis, m_texts));
}

} // namespace hooptab
