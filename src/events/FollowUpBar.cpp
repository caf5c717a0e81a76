#include "events/FollowUpBar.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/JerseyButton.h"
#include "events/PlayerWords.h"
#include "game/EventWords.h"
#include "recording/LiveFigures.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kMates = 2;      // buttons side by side, with names
constexpr int kRebounders = 3; // the same, without
constexpr int kGap = 4;
constexpr int kBandMargin = 3;

} // namespace

FollowUpBar::FollowUpBar(const Texts& texts, QWidget* parent) : Bubble(parent), m_texts(texts) {
  m_assist = makeAssist();
  m_rebound = makeRebound();
  m_reasonRow = makeReason();
  m_goingOn.setSingleShot(true);
  m_goingOn.setInterval(kMayGoOn);
  connect(&m_goingOn, &QTimer::timeout, this, &FollowUpBar::settle);
  setObjectName(QStringLiteral("FollowUp"));
  m_chips = new DetailChips(this);
  connect(m_chips, &DetailChips::chosen, this, &FollowUpBar::chipChosen);
  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(kGap);
  layout->addWidget(m_assist);
  layout->addWidget(m_rebound);
  layout->addWidget(m_chips);
  layout->addWidget(m_reasonRow);
  relabel(*this, texts);
  hide();
  qApp->installEventFilter(this);
}

FollowUpBar::~FollowUpBar() {
  qApp->removeEventFilter(this);
}

// What is asked, and the number typed so far, readable from where one sits.
QWidget* FollowUpBar::makeTitle(QWidget* form) {
  auto* row = new QWidget(form);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  const auto index = static_cast<std::size_t>(m_titles[0] == nullptr ? 0 : 1);
  m_titles[index] = new PlainLabel(row);
  m_titles[index]->setObjectName(QStringLiteral("lblQUESTION"));
  Theme::setType(*m_titles[index], Type::Name);
  m_numbers[index] = new PlainLabel(row);
  m_numbers[index]->setObjectName(QStringLiteral("lblTYPED"));
  Theme::setType(*m_numbers[index], Type::Points);
  layout->addWidget(m_titles[index], 1);
  layout->addWidget(m_numbers[index]);
  return row;
}

// Below all else, so that nothing moves when it comes.
QWidget* FollowUpBar::makeReason() {
  auto* row = new QWidget(this);
  auto* layout = new QVBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  m_reason = new PlainLabel(row);
  m_reason->setObjectName(QStringLiteral("lblREASON"));
  m_reason->setWordWrap(true);
  layout->addWidget(m_reason);
  auto* ways = new QHBoxLayout;
  ways->setSpacing(kGap);
  constexpr std::array kTexts = {Text::AllTheSame, Text::PutIn};
  constexpr std::array kNames = {"cmdALLTHESAME", "cmdCOMESIN"};
  for (std::size_t way = 0; way < m_waysOut.size(); ++way) {
    auto* button = new QPushButton(row);
    button->setObjectName(QLatin1String(kNames[way]));
    button->setFocusPolicy(Qt::TabFocus);
    setTextNumber(*button, kTexts[way]);
    connect(button, &QPushButton::pressed, this, [this, button, way] {
      button->setDown(false);
      answer(m_question.take(static_cast<FollowUpQuestion::WayOut>(way)));
    });
    ways->addWidget(button, 1);
    m_waysOut[way] = button;
  }
  layout->addLayout(ways);
  row->hide();
  return row;
}

QLabel* FollowUpBar::makeBand(QWidget* form, const QString& name) {
  auto* band = new PlainLabel(form);
  band->setObjectName(name);
  band->setAutoFillBackground(true);
  band->setMargin(kBandMargin);
  return band;
}

JerseyButton* FollowUpBar::makeButton(QWidget* form, int index) {
  auto* button = new JerseyButton(jerseyButtonName(index), {}, form);
  connect(button, &JerseyButton::pressed, this, [this, button] {
    const auto found = std::ranges::find(m_buttons, button);
    if (m_isOpen && found != m_buttons.end())
      answer(m_question.choose(static_cast<std::size_t>(found - m_buttons.begin())));
  });
  return button;
}

// Nobody in particular, but one of that team.
QPushButton* FollowUpBar::makeTeam(QWidget* form, TeamButton which) {
  auto* button = new QPushButton(form);
  button->setObjectName(QStringLiteral("cmdTEAM(%1)").arg(which));
  button->setFocusPolicy(Qt::TabFocus);
  setTextNumber(*button, Text::OfTheTeam);
  setToolTipNumber(*button, Text::OfTheTeamHint);
  connect(button, &QPushButton::pressed, this, [this, button, which] {
    button->setDown(false);
    const Side asked = m_question.shooterTeam();
    answer(m_question.teamOf(which == OfOthers ? otherSide(asked) : asked));
  });
  m_teams[which] = button;
  return button;
}

QPushButton* FollowUpBar::makeBlock(QWidget* form) {
  m_block = new QPushButton(form);
  m_block->setObjectName(QStringLiteral("cmdBLOCK"));
  m_block->setCheckable(true);
  m_block->setFocusPolicy(Qt::TabFocus);
  setTextNumber(*m_block, Text::BlockedBy);
  setToolTipNumber(*m_block, Text::BlockedByHint);
  connect(m_block, &QPushButton::pressed, this, [this] {
    m_block->setDown(false);
    m_question.askBlock(!m_question.isAskingBlock());
    showTyped();
  });
  return m_block;
}

QPushButton* FollowUpBar::makeNobody(QWidget* form, const char* name) {
  auto* nobody = new QPushButton(form);
  nobody->setObjectName(QLatin1String(name));
  nobody->setFocusPolicy(Qt::TabFocus);
  setTextNumber(*nobody, Text::Nobody);
  setToolTipNumber(*nobody, Text::NumberHint);
  connect(nobody, &QPushButton::pressed, this, [this, nobody] {
    nobody->setDown(false);
    m_whole.reset();
    dismiss();
  });
  return nobody;
}

QWidget* FollowUpBar::makeAssist() {
  auto* form = new QWidget(this);
  form->setObjectName(QStringLiteral("Assist"));
  setAccessibleNumber(*form, Text::AssistTitle);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->addWidget(makeTitle(form), 0, 0, 1, kMates);
  m_shooters = makeBand(form, QStringLiteral("lblTEAM"));
  grid->addWidget(m_shooters, 1, 0, 1, kMates);
  for (int index = 0; index < kGroup; ++index) {
    m_mates[static_cast<std::size_t>(index)] = makeButton(form, index);
    grid->addWidget(m_mates[static_cast<std::size_t>(index)], 2 + index / kMates, index % kMates);
  }
  // The shooter is left out of his mates: the fifth stands there for opponents alone.
  QSizePolicy fifth = m_mates.back()->sizePolicy();
  fifth.setRetainSizeWhenHidden(false);
  m_mates.back()->setSizePolicy(fifth);
  grid->addWidget(makeTeam(form, InOneGroup), 4, 1);
  grid->addWidget(makeNobody(form, "cmdNOASS"), 5, 0, 1, kMates);
  return form;
}

QWidget* FollowUpBar::makeRebound() {
  auto* form = new QWidget(this);
  form->setObjectName(QStringLiteral("frmRebound"));
  setAccessibleNumber(*form, Text::ReboundTitle);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->addWidget(makeTitle(form), 0, 0, 1, kRebounders);
  constexpr int kRows = 3; // of a group: its name, and its players in two
  for (int group = 0; group < 2; ++group) {
    QLabel* label = makeBand(form, QStringLiteral("lblTYPEREBOND(%1)").arg(group));
    m_groups[static_cast<std::size_t>(group)] = label;
    grid->addWidget(label, 1 + kRows * group, 0, 1, kRebounders);
    for (int place = 0; place < kGroup; ++place) {
      const int index = group * kGroup + place;
      m_rebounders[static_cast<std::size_t>(index)] = makeButton(form, index);
      grid->addWidget(m_rebounders[static_cast<std::size_t>(index)], 2 + kRows * group + place / kRebounders,
                      place % kRebounders);
    }
    grid->addWidget(makeTeam(form, group == 0 ? OfShooters : OfOthers), 3 + kRows * group, kRebounders - 1);
  }
  grid->addWidget(makeBlock(form), 1 + 2 * kRows, 0, 1, kRebounders);
  grid->addWidget(makeNobody(form, "cmdNOREB"), 2 + 2 * kRows, 0, 1, kRebounders);
  return form;
}

// As wide as a panel of the live window: what lies beside it stays in reach.
void FollowUpBar::setPanelWidth(int panel) {
  const Measure& measure = Theme::measure();
  m_innerWidth = widthFor(panel);
  for (QLabel* band : {m_reason, m_shooters, m_groups[0], m_groups[1]})
    band->setFixedWidth(m_innerWidth);
  for (QLabel* number : m_numbers)
    number->setFixedHeight(number->fontMetrics().height());
  const QSize mate((m_innerWidth - kGap) / kMates, measure(40, 50));
  for (JerseyButton* button : m_mates)
    button->setFixedSize(mate);
  const QSize rebounder((m_innerWidth - (kRebounders - 1) * kGap) / kRebounders, measure(34, 44));
  for (JerseyButton* button : m_rebounders)
    button->setFixedSize(rebounder);
  m_teams[OfShooters]->setFixedSize(rebounder);
  m_teams[OfOthers]->setFixedSize(rebounder);
  m_teams[InOneGroup]->setFixedSize(mate);
}

void FollowUpBar::offer(const LiveGame& game, JerseyButton& button, std::size_t place) {
  const FollowUpQuestion::Choice& choice = m_question.choices()[place];
  const Side team = choice.team();
  const RosterPlayer* who = game.game().roster[team].player(choice.player);
  const bool hasName = !m_question.isRebound() && who != nullptr;
  button.setLook({.jersey = toQt(choice.jersey),
                  .name = hasName ? toQt(familyName(who->name)) : QString(),
                  .colour = colourOf(game.game().details.teamColour[team]),
                  .isFilled = true,
                  .isFouledOut = LiveFigures(game).isFouledOut(team, choice.player)});
  button.setEnabled(true);
  showPlayerWords(button, game, team, choice.player, m_texts);
  m_buttons.push_back(&button);
}

// Words on a team's colour.
void FollowUpBar::nameTeam(const LiveGame& game, QLabel& band, const QString& words, Side team) {
  band.setText(band.fontMetrics().elidedText(words, Qt::ElideRight, m_innerWidth - 2 * kBandMargin));
  band.setToolTip(words);
  const QColor colour = colourOf(game.game().details.teamColour[team]);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, textOn(colour));
  band.setPalette(colours);
}

void FollowUpBar::offerChips(std::vector<DetailChip> chips, int columns) {
  m_nextChips = std::move(chips);
  m_chipColumns = columns;
}

void FollowUpBar::ask(const LiveGame& game, const LiveGame::FollowUps& followUps, const Asked& asked,
                      const QRect& panel, const QRect& room) {
  dismiss();
  m_sinceBlock.invalidate();
  const std::vector<DetailChip> chips = std::exchange(m_nextChips, {});
  const Side team = asked.team;
  m_question.ask(game, followUps, team, asked.player, asked.kind);
  if (m_question.choices().empty())
    return;
  setPanelWidth(panel.width());
  m_ownRefusal = Text::None;
  m_isTypedOnKeypad = false;
  m_buttons.clear();
  const auto clear = [](auto& buttons) {
    for (JerseyButton* button : buttons) {
      button->setLook({});
      button->setEnabled(false);
    }
  };
  clear(m_mates);
  clear(m_rebounders);
  const bool isRebound = m_question.isRebound();
  std::array<std::size_t, 2> used = {}; // of the first team, and of the other
  for (std::size_t choice = 0; choice < m_question.choices().size(); ++choice) {
    const std::size_t group = !isRebound || m_question.choices()[choice].team() == team ? 0 : 1;
    if (used[group] == kGroup)
      continue;
    const std::size_t place = group * kGroup + used[group]++;
    offer(game, isRebound ? *m_rebounders[place] : *m_mates[place], choice);
  }
  if (isRebound) {
    const auto named = [&](Text text, Side ofTeam) -> QString {
      return toQt(m_texts.text(text)) + QLatin1Char(' ') + toQt(game.game().details.name[ofTeam]);
    };
    nameTeam(game, *m_groups[0], named(Text::Offensive, team), team);
    nameTeam(game, *m_groups[1], named(Text::Defensive, otherSide(team)), otherSide(team));
  } else {
    const RosterPlayer* who = game.game().roster[team].player(asked.player);
    const std::string name =
        who != nullptr ? who->jersey + ' ' + familyName(who->name) : game.game().details.abbreviation[team];
    nameTeam(game, *m_shooters, QStringLiteral("● ") + toQt(name), team);
  }
  m_assist->setVisible(!isRebound);
  m_rebound->setVisible(isRebound);
  m_teams[OfShooters]->setVisible(m_question.teamOf(team).has_value());
  m_teams[OfOthers]->setVisible(m_question.teamOf(otherSide(team)).has_value());
  m_teams[InOneGroup]->setVisible(m_question.teamOf(team).has_value());
  m_block->setVisible(m_question.canAskBlock());
  m_chips->offer(chips, m_chipColumns, m_innerWidth);
  showTyped();
  placeBeside(panel, room);
  raise();
  show();
  m_isOpen = true;
  m_sinceOpened.start();
}

void FollowUpBar::settle() {
  if (!m_whole)
    return;
  answer(m_whole);
  emit numberTyped(m_isTypedOnKeypad);
}

void FollowUpBar::dismiss() {
  if (!m_isOpen)
    return;
  if (m_whole)
    return settle();
  m_isOpen = false;
  hide();
  emit closed();
}

void FollowUpBar::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (isHidden()) // and not the window around it, which comes back
    dismiss();
}

void FollowUpBar::answer(std::optional<FollowUpQuestion::Answer> answer) {
  m_whole.reset();
  m_goingOn.stop();
  if (!answer) {
    showTyped();
    return;
  }
  const EventCode code = m_question.codeFor(*answer);
  if (m_question.isAskingBlock()) { // the rebound is still to come
    if (!m_question.typed().empty())
      m_sinceBlock.start();
    m_question.askBlock(false);
    showTyped();
    emit chosen(*answer, code);
    return;
  }
  dismiss();
  if (code == EventCode::Unknown)
    emit named(*answer);
  else
    emit chosen(*answer, code);
}

void FollowUpBar::refuse(Text text) {
  m_ownRefusal = text;
  showTyped();
  flash();
}

Text FollowUpBar::titleText() const {
  if (m_question.isAskingBlock())
    return Text::BlockedBy;
  switch (m_question.asks()) {
  case FollowUpQuestion::Asks::Assist: return Text::AssistTitle;
  case FollowUpQuestion::Asks::DrawnBy: return Text::DrawnByTitle;
  case FollowUpQuestion::Asks::Shooter: return Text::ShooterTitle;
  case FollowUpQuestion::Asks::Steal: return Text::StealTitle;
  case FollowUpQuestion::Asks::Rebound: break;
  }
  return Text::ReboundTitle;
}

// The number, whom it leaves, and why it is not taken.
void FollowUpBar::showTyped() {
  const std::size_t form = m_question.isRebound() ? 1 : 0;
  const bool isRefused = m_question.refusal().has_value();
  m_titles[form]->setText(caption(m_texts, titleText()));
  m_block->setChecked(m_question.isAskingBlock());
  const std::string& typed = m_question.typed();
  m_numbers[form]->setText(typed.empty() ? QString() : toQt(typed) + QLatin1Char('_'));
  QPalette colours = QApplication::palette();
  if (isRefused || m_ownRefusal != Text::None)
    colours.setColor(QPalette::WindowText, Theme::missed());
  m_numbers[form]->setPalette(colours);
  m_reason->setPalette(colours);
  m_reason->setText(isRefused                    ? toQt(m_question.reason(m_texts))
                    : m_ownRefusal != Text::None ? caption(m_texts, m_ownRefusal)
                                                 : QString());
  const bool hasWays = isRefused && m_question.refusal()->stranger;
  m_waysOut[0]->setVisible(hasWays);
  m_waysOut[1]->setVisible(hasWays && m_question.refusal()->canComeIn);
  m_reasonRow->setVisible(!m_reason->text().isEmpty());
  if (m_isOpen)
    keepInParent();
  showMarks();
}

void FollowUpBar::showMarks() {
  for (std::size_t choice = 0; choice < m_buttons.size(); ++choice) {
    JerseyButton::Look look = m_buttons[choice]->look();
    look.isFilled =
        std::ranges::find(m_question.fitting(), choice, &FittingJersey::place) != m_question.fitting().end();
    look.isSelected = m_question.marked() == choice;
    m_buttons[choice]->setLook(look);
  }
  for (std::size_t way = 0; way < m_waysOut.size(); ++way) {
    const bool isMarked = m_question.markedWayOut() == static_cast<FollowUpQuestion::WayOut>(way);
    QPalette colours;
    if (isMarked) {
      colours.setColor(QPalette::Button, Theme::accent());
      colours.setColor(QPalette::ButtonText, textOn(Theme::accent()));
    }
    m_waysOut[way]->setPalette(colours);
  }
}

} // namespace hooptab
