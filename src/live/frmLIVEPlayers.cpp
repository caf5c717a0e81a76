// Who plays, in the live window: the five who begin, players who come late, empty places; and whose a
// recorded event is.
#include "live/frmLIVE.h"

#include "appearance/relabel.h"
#include "events/CorrectionBar.h"
#include "events/JerseyButton.h"
#include "events/LiveEventPanel.h"
#include "events/MessageLine.h"
#include "events/frmPLAYER.h"
#include "events/frmSUBST.h"
#include "live/BenchPanel.h"
#include "live/LiveNotices.h"
#include "live/NowStrip.h"
#include "live/PanelGrid.h"
#include "live/PlayerPanel.h"
#include "live/RosterStrip.h"
#include "live/SideSwitch.h"
#include "recording/LastFive.h"
#include "recording/StartingFive.h"
#include "storage/cinifile.h"

#include <QShortcut>

namespace hooptab {

namespace {

constexpr Qt::Key kCorrect = Qt::Key_F11;

} // namespace

void frmLIVE::connectPlayers() {
  m_correction = new CorrectionBar(m_session, m_texts, this);
  m_correction->setPlayers([](const QWidget& widget) {
    return dynamic_cast<const JerseyButton*>(&widget) != nullptr || PlayerPanel::isHead(widget);
  });
  connect(m_correction, &CorrectionBar::closed, this, &frmLIVE::showSelected);
  connect(&m_notices->message(), &MessageLine::changed, m_correction, &QWidget::raise); // in one place
  m_bench->setTaker([this](Side team, int player) { return m_correction->takePlayer(team, player); });
  connect(m_bench, &BenchPanel::playerAsked, this, &frmLIVE::addPlayer);
  connect(m_bench, &BenchPanel::placesStayAsked, this,
          [this](bool stay) { m_session.change()->setKeepsPlaces(stay); });
  connect(m_bench, &BenchPanel::severalShown, this, &frmLIVE::proposeFives);
  connect(m_events, &LiveEventPanel::correctionAsked, this, &frmLIVE::correct);
  for (PlayerPanel* panel : m_panels->panels()) {
    connect(panel, &PlayerPanel::headPressed, this,
            [this](Slot slot) { m_correction->takePlayer(slot.team(), m_game.playerIn(slot)); });
    connect(panel, &PlayerPanel::emptyPressed, this, &frmLIVE::putInPlace);
  }
  const auto onKey = [this](const QKeySequence& key, auto step) {
    auto* shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false);
    connect(shortcut, &QShortcut::activated, this, [this, step] {
      if (const auto last = EventCorrection::lastOf(m_game))
        step(*last);
    });
  };
  onKey(kCorrect, [this](const EventPlace& event) { correct(event); });
  onKey(Qt::SHIFT | kCorrect, [this](const EventPlace& event) {
    if (m_correction->isActive() || m_correction->begin(event))
      m_correction->toggleMade();
  });
  onKey(Qt::CTRL | kCorrect, [this](const EventPlace& event) {
    if (m_correction->isActive() || m_correction->begin(event))
      m_correction->toggleThree();
  });
}

void frmLIVE::correct(const EventPlace& event) {
  m_session.change()->writePending();
  m_notices->message().withdraw();
  m_bench->clearSelection();
  if (m_correction->begin(event)) {
    m_events->choose(event);
    showSelected();
  }
}

void frmLIVE::addPlayer(Side team) {
  if (!m_game.canRecord())
    return;
  const auto add = [this, team](const std::string& jersey, const std::string& name) {
    const NewPlayer added = m_session.change()->addPlayer(team, jersey, name);
    const QString words = toQt(added.words(m_game.game(), m_texts));
    if (!added.isAdded())
      return words;
    m_notices->message().say(words);
    return QString();
  };
  frmPLAYER(toQt(m_game.game().details.abbreviation[team]), add, m_texts, this).exec();
}

// A player of the bench who is selected comes into an empty place; where nobody is, several can be chosen.
void frmLIVE::putInPlace(Slot slot) {
  const int player = m_bench->selectedOf(slot.team());
  if (player == 0)
    return m_bench->askSeveral();
  if (m_session.change()->putInSlot(slot, player))
    m_bench->clearSelection();
}

// A game that has not begun opens on the choice of both fives.
void frmLIVE::askFives() {
  if (isVisible() && awaitsFive(m_game, Side::Visitor) && awaitsFive(m_game, Side::Home))
    m_bench->askSeveral();
}

void frmLIVE::proposeFives(frmSUBST& several) {
  for (const Side team : kSides) {
    if (!awaitsFive(m_game, team))
      continue;
    if (const auto last = LastFive::of(m_store.files(), m_game.game(), team))
      several.propose(team, last->players, toQt(m_texts.withPlaceholder(Text::LastGame, last->jerseys)),
                      toQt(last->date + " – " + last->opponent));
  }
}

void frmLIVE::tellMissing() {
  const std::string missing = missingWords(m_game, m_texts);
  if (isRunning() && !missing.empty())
    m_notices->message().offer(toQt(missing), caption(m_texts, Text::Several),
                               [this] { m_bench->askSeveral(); });
}

} // namespace hooptab
