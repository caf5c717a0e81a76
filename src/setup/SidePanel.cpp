#include "setup/SidePanel.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "setup/KeepsEnter.h"
#include "setup/SetupWords.h"
#include "setup/SideBand.h"
#include "setup/SidePlayersTable.h"
#include "storage/Placeholders.h"
#include "teams/TeamColours.h"
#include "teams/TeamList.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr PerSide<Text> kSideNames = {Text::Visitor, Text::Home};
constexpr int kLongestNumber = 3;
constexpr int kWarningSign = 0x26A0;

} // namespace

SidePanel::SidePanel(NewGame& game, Side side, const Texts& texts, QWidget* parent)
    : Card(parent), m_game(game), m_side(side), m_texts(texts), m_model(game, side, texts),
      m_main(new BandChoice(this)), m_band(new SideBand(kSideNames[side], *m_main, this)),
      m_teams(new TeamList(named("lstequipes"), QStringLiteral("-"), this)) {
  setAccessibleNumber(*this, kSideNames[side]);
  m_main->setObjectName(named("Option1"));
  setTextNumber(*m_main, Text::MainTeam);
  setToolTipNumber(*m_main, Text::MainTeam);
  // Enter in the search goes to the list, in the list nowhere.
  m_teams->installEventFilter(new KeepsEnter(this));

  const Measure& measure = Theme::measure();
  const int edge = measure(10);
  auto* content = new QVBoxLayout;
  content->setContentsMargins(edge, measure(8), edge, measure(8));
  content->setSpacing(measure(6));
  auto* team = new QHBoxLayout;
  team->setSpacing(edge);
  m_teams->setMaximumHeight(measure(160, 220));
  team->addWidget(m_teams, 1);
  team->addLayout(makeFields(), 1);
  content->addLayout(team, 1);
  content->addLayout(makePlayers(), 4);
  content->addLayout(makeFoot());
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(m_band);
  layout->addLayout(content, 1);

  connect(m_teams, &TeamList::chosen, this, [this](int chosen) {
    // Numbers that were typed before their team are its players all the same.
    const bool hadOwn = m_game.hasOwnTeam(m_side);
    m_game.chooseTeam(m_side, chosen);
    if (hadOwn && !m_game.hasOwnTeam(m_side))
      m_game.takeNumbers(m_side, std::exchange(m_numbersTaken, {}));
    takeTeam();
  });
  connect(&m_model, &QAbstractItemModel::dataChanged, this, &SidePanel::showCount);
  showTeams();
  showTeam();
}

QRadioButton& SidePanel::mainTeamChoice() const {
  return *m_main;
}

QString SidePanel::named(const char* name) const {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(numberOf(m_side));
}

QLineEdit* SidePanel::addField(const char* name, Text text) {
  auto* field = new QLineEdit(this);
  field->setObjectName(named(name));
  setAccessibleNumber(*field, text);
  return field;
}

QLayout* SidePanel::makeFields() {
  auto* layout = new QGridLayout;
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setVerticalSpacing(Theme::measure()(2));
  const auto addText = [&](const char* name, Text text, int row, int columns) {
    QLineEdit* field = addField(name, text);
    QLabel* label = captionFor(*field, text);
    label->setFont(Theme::font(Type::Small));
    label->setForegroundRole(QPalette::PlaceholderText);
    layout->addWidget(label, row, 0, 1, columns);
    layout->addWidget(field, row + 1, 0, 1, columns);
    limitField(*field, m_texts);
    connect(field, &QLineEdit::textEdited, this, &SidePanel::takeNames);
    return field;
  };
  m_name = addText("txtNOMEQUIPE", Text::FullName, 0, 2);
  m_category = addText("txtCATEGORIE", Text::Level, 2, 1);
  connect(m_name, &QLineEdit::textChanged, this, [this](const QString& typed) {
    m_game.sides[m_side].name = fromQt(typed);
    showBand();
  });
  connect(m_category, &QLineEdit::textChanged, this,
          [this](const QString& typed) { m_game.sides[m_side].category = fromQt(typed); });
  auto* other = new QPushButton(this);
  other->setObjectName(named("cmdOTHER"));
  other->setAutoDefault(false);
  setTextNumber(*other, Text::OtherTeam);
  setToolTipNumber(*other, Text::OtherTeamHint);
  connect(other, &QPushButton::clicked, this, &SidePanel::takeOwnTeam);
  layout->addWidget(other, 3, 1);
  layout->setColumnStretch(0, 1);
  layout->setRowStretch(4, 1);
  return layout;
}

QLayout* SidePanel::makePlayers() {
  auto* title = new PlainLabel(this);
  title->setFont(Theme::font(Type::Name));
  setTextNumber(*title, Text::PlayersTonight);
  auto* head = new QWidget(this);
  head->installEventFilter(new KeepsEnter(head));
  m_numbers = addField("txtNUMBERS", Text::Numbers);
  setPlaceholderNumber(*m_numbers, Text::NumbersHint);
  setToolTipNumber(*m_numbers, Text::NumbersToolTip);
  connect(m_numbers, &QLineEdit::editingFinished, this, &SidePanel::takeNumbers);
  connect(m_numbers, &QLineEdit::textEdited, this, [this] { m_problem->clear(); });
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(title, 2);
  row->addWidget(m_numbers, 3);

  m_table = new SidePlayersTable(m_model, named("lvwJOUEURS"), this);
  title->setBuddy(m_table);
  setAccessibleNumber(*m_table, Text::ActivePlayers);
  setToolTipNumber(*m_table, Text::RowHint);

  auto* layout = new QVBoxLayout;
  layout->setSpacing(Theme::measure()(4));
  layout->addWidget(head);
  layout->addWidget(m_table, 1);
  return layout;
}

QLayout* SidePanel::makeFoot() {
  const Measure& measure = Theme::measure();
  m_problem = new ElidedLabel(this);
  m_problem->setObjectName(named("lblPROBLEM"));
  m_problem->setFont(Theme::font(Type::Small));
  m_problem->setForegroundRole(QPalette::BrightText);
  m_problem->setFixedHeight(m_problem->fontMetrics().height()); // nothing moves when it speaks

  auto* adding = new QWidget(this);
  adding->installEventFilter(new KeepsEnter(adding));
  m_jersey = addField("txtJERSEY", Text::Jersey);
  m_jersey->setMaxLength(kLongestNumber);
  m_jersey->setFixedWidth(measure(72, 88));
  m_player = addField("txtPLAYER", Text::NameMayBeEmpty);
  limitField(*m_player, m_texts, cinifile::kLongestValue - std::string_view("9,").size());
  for (const auto& [field, hint] :
       {std::pair(m_jersey, Text::Jersey), std::pair(m_player, Text::NameMayBeEmpty)}) {
    setPlaceholderNumber(*field, hint);
    setToolTipNumber(*field, hint);
    connect(field, &QLineEdit::returnPressed, this, &SidePanel::addPlayer);
    connect(field, &QLineEdit::textEdited, this, [this] { m_problem->clear(); });
  }
  QPushButton* add =
      iconButton(fromQt(named("cmdADD")).c_str(), Text::PlayerHead, Text::PlayerHint, "add", adding);
  connect(add, &QPushButton::clicked, this, &SidePanel::addPlayer);
  auto* row = new QHBoxLayout(adding);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(m_jersey);
  row->addWidget(m_player, 1);
  row->addWidget(add);

  auto* foot = new QHBoxLayout;
  m_count = new ElidedLabel(this);
  m_count->setObjectName(named("lblCOUNT"));
  setToolTipNumber(*m_count, Text::CountHint);
  foot->addWidget(m_count, 1);
  const auto addButton = [&](const char* name, Text text, bool isChecked) {
    auto* button = new QPushButton(this);
    button->setObjectName(named(name));
    button->setAutoDefault(false);
    setTextNumber(*button, text);
    setToolTipNumber(*button, text);
    foot->addWidget(button);
    connect(button, &QPushButton::clicked, &m_model, [this, isChecked] { m_model.checkAll(isChecked); });
  };
  addButton("cmdALL", Text::CheckAll, true);
  addButton("cmdNONE", Text::UncheckAll, false);

  auto* layout = new QVBoxLayout;
  layout->setSpacing(measure(4));
  layout->addWidget(m_problem);
  layout->addWidget(adding);
  layout->addLayout(foot);
  return layout;
}

void SidePanel::relabelPanel() {
  m_model.relabel();
  m_table->fitColumns();
  m_problem->clear();
  showBand();
  showCount();
}

// A name that is typed for a side without a team makes one.
void SidePanel::takeNames() {
  NewGame::SideForm& side = m_game.sides[m_side];
  const bool isNew = side.team == NewGame::kNone;
  if (isNew)
    m_game.chooseOwnTeam(m_side);
  side.name = fromQt(m_name->text());
  side.category = fromQt(m_category->text());
  if (m_game.renameOwnTeam(m_side))
    emit teamsChanged();
  if (!isNew)
    return;
  showPlayers(); // not the fields, in one of which the user is typing
  emit teamChosen();
}

void SidePanel::takeOwnTeam() {
  m_game.chooseOwnTeam(m_side);
  emit teamsChanged();
  takeTeam();
  m_name->setFocus(Qt::OtherFocusReason);
}

// False, with the reason shown, for one who stands in the fields and cannot be added.
bool SidePanel::takeTypedPlayer() {
  if (!m_jersey->text().isEmpty() || !m_player->text().isEmpty())
    addPlayer();
  return m_jersey->text().isEmpty() && m_player->text().isEmpty();
}

QString SidePanel::wrongNumbers() const {
  return toQt(wordsOf(quickRoster(fromQt(m_numbers->text())), m_texts));
}

// Once for what was typed: what is checked by hand afterwards stays. What is wrong stays to be mended, and
// the focus goes where the user sends it.
void SidePanel::takeNumbers() {
  if (!m_numbers->isModified())
    return;
  m_numbers->setModified(false);
  const bool hadTeam = m_game.sides[m_side].team != NewGame::kNone;
  const QuickRoster roster = m_game.takeNumbers(m_side, fromQt(m_numbers->text()));
  m_problem->setText(toQt(wordsOf(roster, m_texts)));
  // Before what is wrong stand digits and separators alone, a byte each.
  if (roster.problem != QuickRoster::Problem::None)
    return m_numbers->setSelection(static_cast<int>(roster.place),
                                   static_cast<int>(toQt(roster.part).size()));
  m_numbersTaken = fromQt(m_numbers->text());
  m_numbers->clear();
  if (hadTeam)
    return showPlayers();
  emit teamsChanged();
  takeTeam();
}

void SidePanel::addPlayer() {
  const bool hadTeam = m_game.sides[m_side].team != NewGame::kNone;
  const NewGame::AddedPlayer added =
      m_game.addPlayer(m_side, fromQt(m_jersey->text()), fromQt(m_player->text()));
  m_problem->setText(toQt(wordsOf(added, m_texts)));
  m_jersey->setFocus(Qt::OtherFocusReason);
  if (added.problem != NewGame::AddedPlayer::Problem::None)
    return;
  m_jersey->clear();
  m_player->clear();
  if (hadTeam) {
    showPlayers();
  } else {
    emit teamsChanged();
    takeTeam();
  }
  m_table->scrollToBottom();
}

void SidePanel::takeTeam() {
  showTeam();
  emit teamChosen();
}

void SidePanel::showTeams() {
  m_teams->setTeams(m_game.teams());
  m_teams->setPosition(m_game.sides[m_side].team);
}

void SidePanel::showTeam() {
  const NewGame::SideForm side = m_game.sides[m_side]; // a field that is set writes into the game
  m_name->setText(toQt(side.name));
  m_category->setText(toQt(side.category));
  for (QLineEdit* field : {m_name, m_category})
    field->setCursorPosition(0);
  showPlayers();
}

void SidePanel::showPlayers() {
  m_model.changedTeam();
  m_table->fitColumns();
  if (m_game.sides[m_side].team != NewGame::kNone)
    showTeamColour(*m_table, colourOf(m_game.sides[m_side].colour));
  showBand();
  showCount();
}

void SidePanel::showBand() {
  const NewGame::SideForm& side = m_game.sides[m_side];
  if (side.team == NewGame::kNone)
    m_band->showTeam(caption(m_texts, Text::ChooseTeam), {});
  else
    m_band->showTeam(toQt(side.name), colourOf(side.colour));
}

// Too many players are told by words, a sign and weight as much as by colour.
void SidePanel::showCount() {
  const NewGame::SideForm& side = m_game.sides[m_side];
  const int checked = side.checkedPlayers();
  const bool isTooMany = checked > kMostPlayers;
  const QString count =
      toQt(withPlaceholders(m_texts.caption(isTooMany ? Text::TooManyPlayers : Text::CountOf),
                            std::to_string(checked), std::to_string(kMostPlayers)));
  m_count->setText(isTooMany ? QChar(kWarningSign) + QStringLiteral(" ") + count : count);
  m_count->setForegroundRole(isTooMany ? QPalette::BrightText : QPalette::WindowText);
  QFont font = this->font();
  font.setBold(isTooMany);
  m_count->setFont(font);
}

} // namespace hooptab
