#include "events/frmEDIT.h"

#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/DetailBoxes.h"
#include "events/MiniCourt.h"
#include "events/StatButton.h"
#include "events/StatControls.h"
#include "game/CourtClick.h"
#include "game/EventDetails.h"
#include "game/EventWords.h"
#include "recording/ScoreText.h"
#include "settings/Settings.h"
#include "storage/Module1.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr int kMostSeconds = 99 * 60 + 59; // that can be typed; the game knows its periods
constexpr int kEntries = Roster::kLargestEntry + 1;
constexpr int kNobodys = -kEntries; // of a time-out

} // namespace

frmEDIT::frmEDIT(const LiveGame& game, const EventPlace& place, Purpose purpose, const Settings& settings,
                 const Texts& texts, QWidget* parent)
    : QDialog(parent), m_purpose(purpose), m_game(game.game()), m_settings(settings), m_texts(texts) {
  setObjectName(QStringLiteral("frmEDIT"));
  setTextNumber(*this, purpose == Purpose::Change ? Text::Edit : Text::Insertion);
  setModal(true);
  const GameEvent* const event = m_game.events.find(place);
  const bool isUnderstood = event != nullptr && event->isUnderstood;
  if (isUnderstood && purpose == Purpose::Change) {
    m_key = event->key;
    m_line = event->line;
    m_event = GameEvent::parse(place.period, m_key, m_line);
  }
  makeFields();
  makeLayout();
  if (isUnderstood)
    m_time->setText(toQt(Module1::clockText(event->clockSeconds)));
  if (m_event.isUnderstood)
    fill();
  if (purpose == Purpose::Insert)
    m_player->setCurrentIndex(-1); // a guess would be accepted unseen
  m_before = typed();
  m_time->setEnabled(game.hasTime());
  relabel(*this, texts);
  giveMnemonics(*this);
  showShot();
  showAccept();
  m_time->setFocus();
  m_time->selectAll();

  auto* clock = new QShortcut(Qt::Key_Space, this);
  clock->setAutoRepeat(false);
  connect(clock, &QShortcut::activated, this, &frmEDIT::clockAsked);
  m_time->installEventFilter(this);
}

// A text field takes the blank for itself; here it stays the key of the clock.
bool frmEDIT::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space) {
    event->ignore();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void frmEDIT::makeFields() {
  m_time = new QLineEdit(this);
  m_time->setObjectName(QStringLiteral("txtTEMPS"));
  static const QRegularExpression kClock(QStringLiteral("[0-9]{1,2}(:?[0-5][0-9])?")); // as typedClock
  m_time->setValidator(new QRegularExpressionValidator(kClock, m_time));
  setToolTipNumber(*m_time, Text::ClockFormTip);
  m_player = new QComboBox(this);
  m_player->setObjectName(QStringLiteral("cmbPLAYER"));
  m_player->setSizeAdjustPolicy(QComboBox::AdjustToContents); // teams give way to players
  fillWho();
  m_kind = new QComboBox(this);
  m_kind->setObjectName(QStringLiteral("cmbKIND"));
  fillKinds();
  m_made = new QCheckBox(this);
  m_made->setObjectName(QStringLiteral("chkMADE"));
  m_made->setChecked(true);
  setTextNumber(*m_made, Text::Made);
  m_court = new MiniCourt(m_settings, this);
  m_court->setObjectName(QStringLiteral("CourtJ(10)"));
  m_court->setFixedSize(m_court->sizeHint());
  setToolTipNumber(*m_court, Text::CourtTip);
  setAccessibleNumber(*m_court, Text::CourtTip);
  m_shot = new PlainLabel(this);
  m_shot->setObjectName(QStringLiteral("lbleditshot"));
  m_xy = new PlainLabel(this);
  m_xy->setObjectName(QStringLiteral("lblxy"));
  m_nameFirst = new PlainLabel(this);
  m_nameFirst->setObjectName(QStringLiteral("lblNAMEFIRST"));
  m_nameFirst->setForegroundRole(QPalette::PlaceholderText);
  m_nameFirst->hide();
  setTextNumber(*m_nameFirst, Text::NameFirst);
  m_accept = new QPushButton(this);
  m_accept->setObjectName(QStringLiteral("cmdOK"));
  m_accept->setDefault(true);
  setTextNumber(*m_accept, Text::Accept);

  connect(m_court, &MiniCourt::pressed, this, &frmEDIT::pressCourt);
  connect(m_player, &QComboBox::currentIndexChanged, this, &frmEDIT::showDetails);
  connect(m_player, &QComboBox::currentIndexChanged, this, &frmEDIT::showAccept);
  connect(m_kind, &QComboBox::currentIndexChanged, this, &frmEDIT::showShot);
  connect(m_made, &QCheckBox::toggled, this, &frmEDIT::showShot);
  connect(m_accept, &QPushButton::clicked, this, &QDialog::accept);
  connect(m_time, &QLineEdit::textChanged, this, &frmEDIT::showAccept);
}

// What teams do, where the game has it or its level asks for it.
void frmEDIT::fillKinds() {
  const auto add = [this](const EventKind& kind) {
    m_kind->addItem(caption(m_texts, kind.wordsText), static_cast<int>(kind.code));
  };
  std::ranges::for_each(kEventKinds, add);
  const bool isAsked = m_game.details.recordingLevel() != RecordingLevel::Basic;
  if (!isAsked && !std::ranges::any_of(m_game.events, &GameEvent::isOfTeam))
    return;
  for (const EventKind& kind : kTeamKinds) {
    if (kind.code != EventCode::XJB || m_event.code == EventCode::XJB) // a new one would need both players
      add(kind);
  }
}

// --- Whose it is

frmEDIT::Who frmEDIT::whoDoes(EventCode kind) const {
  const EventKind* const found = kindOf(kind);
  if (found == nullptr || !found->isOfTeam)
    return Who::Player;
  return kind == EventCode::XTO ? Who::TeamOrNobody : kind == EventCode::XJB ? Who::Jumpers : Who::Team;
}

void frmEDIT::fillWho() {
  const EventWords words(m_game, m_texts);
  const auto named = [&](const PlayerReference& player) -> QString {
    return toQt(words.team(*player.team)) + u' ' + toQt(words.player(player));
  };
  m_player->clear();
  if (m_who == Who::Jumpers)
    m_player->addItem(named(m_event.jumper(Side::Visitor)) + QStringLiteral(" \u2013 ") +
                          named(m_event.jumper(Side::Home)),
                      0);
  for (const Side team : kSides) {
    if (m_who == Who::Jumpers)
      break;
    if (m_who != Who::Player)
      m_player->addItem(toQt(words.team(team)), numberOf(team) * kEntries);
    for (int entry = 1; entry < kEntries && m_who == Who::Player; ++entry) {
      const RosterPlayer* player = m_game.roster[team].player(entry);
      if (player != nullptr)
        m_player->addItem(named({team, player->jersey}), numberOf(team) * kEntries + entry);
    }
  }
  if (m_who == Who::TeamOrNobody)
    m_player->addItem(caption(m_texts, Text::MediaTimeOut), kNobodys);
}

// Another kind may be another's; the team stays, and so does the player until another team is chosen.
void frmEDIT::showWho() {
  const Who who = whoDoes(kind());
  if (who == m_who)
    return;
  const std::optional<Side> chosen = team();
  if (m_who == Who::Player)
    m_lastPlayer = m_player->currentData();
  m_who = who;
  const QSignalBlocker quiet(m_player);
  fillWho();
  const bool isSameTeam =
      chosen && m_lastPlayer.isValid() && m_lastPlayer.toInt() / kEntries == numberOf(*chosen);
  const QVariant wanted = who == Who::Player ? (isSameTeam ? m_lastPlayer : QVariant())
                          : chosen           ? QVariant(numberOf(*chosen) * kEntries)
                                             : QVariant();
  m_player->setCurrentIndex(wanted.isValid() ? m_player->findData(wanted) : -1);
  const Text name = who == Who::Team || who == Who::TeamOrNobody ? Text::TeamWord : Text::Player;
  setTextNumber(*m_whoCaption, name);
  setToolTipNumber(*m_player, name);
  setAccessibleNumber(*m_player, name);
  relabel(*this, m_texts);
  giveMnemonics(*this);
}

std::optional<Side> frmEDIT::team() const {
  if (const QVariant chosen = m_player->currentData(); chosen.isValid())
    return sideOf(chosen.toInt() / kEntries);
  return m_event.isOfPlayer() ? m_event.player.team : std::nullopt;
}

// --- Its details

// The event as it would be, as far as its details go.
std::string frmEDIT::lineAsChosen(Side team) const {
  if (kind() == EventCode::XJB)
    return m_line;
  const std::string text =
      whoDoes(kind()) == Who::Player ? eventText(kind(), true, team, "0") : teamEventText(kind(), team);
  const std::string line = Module1::clockText(0);
  return line + (m_event.isUnderstood ? withDetailsOf(m_event, text, kind(), team) : text);
}

void frmEDIT::showDetails() {
  const std::pair now(kind(), team());
  if (!m_isCounted || now == m_detailsOf)
    return;
  m_detailsOf = now;
  std::vector<DetailChoice> choices;
  if (now.second) {
    const std::string line = lineAsChosen(*now.second);
    choices = detailChoices(m_game, GameEvent::parse(1, "1", line), m_texts);
  }
  m_details->show(choices);
  relabel(*this, m_texts);
  giveMnemonics(*this);
}

// A player who is in no roster, or behind its fifteenth, has to be named before more than the time can
// change.
void frmEDIT::showAccept() {
  const bool needsPlayer = m_purpose == Purpose::Insert || typed() != m_before;
  const bool isNamed = !m_isCounted || m_player->currentIndex() >= 0;
  m_accept->setEnabled(m_time->hasAcceptableInput() && (isNamed || !needsPlayer));
  m_nameFirst->setVisible(needsPlayer && !isNamed);
}

StatButton* frmEDIT::makeButton(EventCode code, const char* name, Text toolTip) {
  const QSize size(Theme::measure()(40, 50), Theme::measure()(24, 30));
  const EventKind& kind = *kindOf(code);
  auto* button = new StatButton(kind.isShot ? StatButton::Records::Shot : StatButton::Records::Action,
                                toQt(kind.shortName), {QString()}, this);
  button->setObjectName(QStringLiteral("%1(10)").arg(QLatin1String(name)));
  button->setFixedSize(size);
  button->setColour(colourOf(m_settings.buttonColour));
  setToolTipNumber(*button, toolTip != Text::None ? toolTip : kind.wordsText);
  setAccessibleNumber(*button, kind.wordsText);
  connect(button, &StatButton::recorded, this, [this, code](bool isMade) { take(code, isMade); });
  m_buttons.push_back(button);
  return button;
}

// The same as in a player's panel: here they say what the event is.
QLayout* frmEDIT::makeButtons() {
  constexpr int kColumns = 5;
  auto* grid = new QGridLayout;
  grid->setSpacing(2);
  int place = 0;
  for (const ShotControls& controls : kShotControls) {
    if (controls.button == nullptr)
      continue;
    grid->addWidget(makeButton(controls.code, controls.button, controls.toolTip), 0, place++);
  }
  for (const ActionControls& controls : kActionControls) {
    grid->addWidget(makeButton(controls.code, controls.button, controls.toolTip), place / kColumns,
                    place % kColumns);
    ++place;
  }
  grid->setColumnStretch(kColumns, 1);
  return grid;
}

void frmEDIT::makeLayout() {
  auto* close = new QPushButton(this);
  close->setObjectName(QStringLiteral("cmdCLOSE"));
  setTextNumber(*close, Text::Close);
  connect(close, &QPushButton::clicked, this, &QDialog::reject);

  auto* fields = new QGridLayout;
  fields->setSpacing(kGap);
  int row = 0;
  m_whoCaption = captionFor(*m_player, Text::Player);
  for (const auto& [field, label] : {std::pair<QWidget*, QLabel*>(m_time, captionFor(*m_time, Text::Time)),
                                     {m_player, m_whoCaption},
                                     {m_kind, captionFor(*m_kind, Text::KindOfEvent)}}) {
    fields->addWidget(label, row, 0);
    fields->addWidget(field, row++, 1);
  }
  fields->addLayout(makeButtons(), row++, 1);
  fields->addWidget(m_made, row++, 1);
  m_details = new DetailBoxes(*fields, row, *m_made, *this);
  row += DetailBoxes::kMostRows;
  connect(m_details, &DetailBoxes::changed, this, &frmEDIT::showAccept);
  fields->addWidget(m_shot, row++, 0, 1, 2);
  fields->addWidget(m_xy, row++, 0, 1, 2);
  fields->addWidget(m_nameFirst, row++, 0, 1, 2);
  fields->setRowStretch(row++, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_accept);
  buttons->addWidget(close);
  fields->addLayout(buttons, row, 0, 1, 2);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addWidget(m_court, 0, Qt::AlignTop);
  layout->addLayout(fields);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmEDIT::fill() {
  const GameEvent& event = m_event;
  m_isCounted = !event.isClock();
  const bool isChosen = m_isCounted && event.code != EventCode::XJB;
  for (QWidget* field : {static_cast<QWidget*>(m_player), static_cast<QWidget*>(m_kind),
                         static_cast<QWidget*>(m_made), static_cast<QWidget*>(m_court)})
    field->setEnabled(isChosen);
  for (StatButton* button : m_buttons)
    button->setEnabled(isChosen);
  if (!m_isCounted)
    return;
  m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(event.code)));
  if (event.isOfTeam())
    m_lastPlayer = {}; // whoever stood in the box while the window was made was nobody's choice
  m_made->setChecked(event.isMade || !event.isShot());
  if (event.hasPlace)
    m_place = {event.x, event.y};
  if (event.code == EventCode::XJB)
    return;
  const int entry = event.isOfTeam() ? 0 : m_game.roster[*event.player.team].entryOf(event.player.jersey);
  m_player->setCurrentIndex(
      m_player->findData(event.player.team ? numberOf(*event.player.team) * kEntries + entry : kNobodys));
  if (m_player->currentIndex() < 0) {
    const EventWords words(m_game, m_texts);
    m_player->setPlaceholderText(toQt(words.team(*event.player.team)) + u' ' +
                                 toQt(words.player(event.player)));
  }
}

// The place decides between two and three points.
void frmEDIT::pressCourt(QPointF place, bool isMade) {
  const auto click = CourtClick::of({place.x(), place.y()}, false, zoneMapOf(m_settings));
  if (!click)
    return;
  m_place = {click->place.x, click->place.y};
  take(click->kind, isMade);
}

void frmEDIT::take(EventCode kind, bool isMade) {
  m_made->setChecked(isMade);
  m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(kind)));
  showShot();
}

// A shot keeps the place that it had when its kind is changed: said, not refused, for the zones of the one
// who recorded it may have been others.
bool frmEDIT::fitsZone(EventCode kind) const {
  const auto click = CourtClick::of({m_place->first, m_place->second}, false, zoneMapOf(m_settings));
  return click && click->kind == kind;
}

void frmEDIT::showShot() {
  if (m_isCounted)
    showWho();
  showDetails();
  const EventKind* kind = m_isCounted ? kindOf(this->kind()) : nullptr;
  const bool isMade = m_made->isChecked();
  const bool hasPlace = kind != nullptr && kind->isShot && kind->code != EventCode::GFT && m_place;
  m_made->setEnabled(kind != nullptr && kind->isShot);
  m_shot->setText(kind == nullptr || !kind->isShot
                      ? QString()
                      : caption(m_texts, isMade ? Text::Made : Text::Missed) +
                            QStringLiteral(" (%1)").arg(caption(m_texts, kind->wordsText)));
  m_xy->setText(hasPlace ? QStringLiteral("%1, %2").arg(int(m_place->first)).arg(int(m_place->second))
                         : QString());
  if (hasPlace && kind->hasPlace && !fitsZone(kind->code))
    m_xy->setText(m_xy->text() + QStringLiteral(" \u2013 ") + caption(m_texts, Text::OtherZone));
  std::vector<LivePanel::ShotMark> marks;
  if (hasPlace)
    marks.push_back({{m_place->first, m_place->second}, isMade});
  m_court->setMarks(marks);
  showAccept();
}

frmEDIT::Typed frmEDIT::typed() const {
  return {m_player->currentData(), m_kind->currentData().toInt(), m_made->isChecked(), m_place,
          m_details->changes()};
}

EventCode frmEDIT::kind() const {
  return static_cast<EventCode>(m_kind->currentData().toInt());
}

int frmEDIT::clockSeconds() const {
  return typedClock(fromQt(m_time->text()), kMostSeconds).value_or(0);
}

// Nothing where the time alone has changed: all else of the line stays, also what no box shows.
std::optional<LiveGame::Counted> frmEDIT::counted() const {
  const bool isTimeAlone = m_purpose == Purpose::Change && typed() == m_before;
  if (!m_isCounted || !m_player->currentData().isValid() || isTimeAlone)
    return std::nullopt;
  const int player = m_player->currentData().toInt();
  const EventCode code = kind();
  return LiveGame::Counted{code,
                           kindOf(code)->isShot && m_made->isChecked(),
                           sideOf(player / kEntries),
                           player % kEntries,
                           kindOf(code)->isShot && code != EventCode::GFT ? m_place : std::nullopt,
                           m_details->changes()};
}

} // namespace hooptab
