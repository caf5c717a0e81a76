#include "setup/SidePanel.h"

#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "setup/KeepsEnter.h"
#include "setup/SidePlayersTable.h"
#include "teams/TeamColours.h"
#include "teams/TeamList.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace hooptab {

namespace {

constexpr int kSideNames[2] = {1027, 1028};
constexpr int kActivePlayers = 1121;
constexpr int kMainTeam = 1129;
constexpr int kFullName = 1157;
constexpr int kLevel = 1159;
constexpr int kCheckAll = 1557;
constexpr int kUncheckAll = 1558;
constexpr int kCount = 1864;
constexpr int kTooMany = 1865;
constexpr int kRowHint = 1866;
constexpr int kCountHint = 1873;
constexpr int kGap = 5;
constexpr int kListHeight = 124; // search field and four teams
constexpr int kTallListHeight = 240;
constexpr int kWarningSign = 0x26A0;

} // namespace

SidePanel::SidePanel(NewGame& game, int side, const Texts& texts, QWidget* parent)
    : QGroupBox(parent), m_game(game), m_side(side), m_texts(texts), m_model(game, side, texts),
      m_teams(new TeamList(named("lstequipes"), QStringLiteral("-"), this)), m_name(new QLineEdit(this)),
      m_category(new QLineEdit(this)), m_main(new QRadioButton(this)),
      m_table(new SidePlayersTable(m_model, named("lvwJOUEURS"), this)), m_count(new PlainLabel(this)) {
  setTextNumber(*this, kSideNames[side]);
  m_teams->setTeams(game.teams());
  m_teams->setPosition(game.sides[side].team);
  m_teams->setMinimumHeight(kListHeight);
  m_teams->setMaximumHeight(kTallListHeight);
  // Enter in the search goes to the list, in the list nowhere.
  m_teams->installEventFilter(new KeepsEnter(this));

  auto* layout = new QVBoxLayout(this);
  layout->setSpacing(kGap);
  layout->addWidget(m_teams, 1);
  layout->addLayout(makeFields());
  layout->addLayout(makePlayers(), 4);

  connect(m_teams, &TeamList::chosen, this, [this](int team) {
    m_game.chooseTeam(m_side, team);
    showTeam();
    emit teamChosen();
  });
  connect(&m_model, &QAbstractItemModel::dataChanged, this, &SidePanel::showCount);
  showTeam();
}

QString SidePanel::named(const char* name) const {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(m_side);
}

QLayout* SidePanel::makeFields() {
  auto* layout = new QGridLayout;
  layout->setVerticalSpacing(kGap);
  const auto addField = [&](QLineEdit* field, const char* name, int text, int column, std::string& target) {
    field->setObjectName(named(name));
    layout->addWidget(captionFor(*field, text), 0, column);
    layout->addWidget(field, 1, column);
    connect(field, &QLineEdit::textChanged, this,
            [&target](const QString& typed) { target = fromQt(typed); });
    limitField(*field, m_texts);
  };
  addField(m_name, "txtNOMEQUIPE", kFullName, 0, m_game.sides[m_side].name);
  addField(m_category, "txtCATEGORIE", kLevel, 1, m_game.sides[m_side].category);
  layout->setColumnStretch(0, 3);
  layout->setColumnStretch(1, 1);
  m_main->setObjectName(named("Option1"));
  setTextNumber(*m_main, kMainTeam);
  setToolTipNumber(*m_main, kMainTeam);
  layout->addWidget(m_main, 2, 0, 1, 2);
  return layout;
}

QLayout* SidePanel::makePlayers() {
  auto* title = new PlainLabel(this);
  title->setBuddy(m_table);
  setTextNumber(*title, kActivePlayers);
  title->setForegroundRole(QPalette::PlaceholderText);
  setAccessibleNumber(*m_table, kActivePlayers);
  setToolTipNumber(*m_table, kRowHint);
  m_count->setObjectName(named("lblCOUNT"));
  setToolTipNumber(*m_count, kCountHint);

  auto* foot = new QHBoxLayout;
  const auto addButton = [&](const char* name, int text, bool isChecked) {
    auto* button = new QPushButton(this);
    button->setObjectName(named(name));
    button->setAutoDefault(false);
    setTextNumber(*button, text);
    setToolTipNumber(*button, text);
    foot->addWidget(button);
    connect(button, &QPushButton::clicked, &m_model, [this, isChecked] { m_model.checkAll(isChecked); });
  };
  addButton("cmdALL", kCheckAll, true);
  addButton("cmdNONE", kUncheckAll, false);
  foot->addStretch();
  foot->addWidget(m_count);

  auto* layout = new QVBoxLayout;
  layout->setSpacing(kGap);
  layout->addWidget(title);
  layout->addWidget(m_table, 1);
  layout->addLayout(foot);
  return layout;
}

void SidePanel::relabelPanel() {
  m_model.relabel();
  m_table->fitColumns();
  showCount();
}

void SidePanel::showTeam() {
  const NewGame::Side& side = m_game.sides[m_side];
  m_name->setText(toQt(side.name));
  m_category->setText(toQt(side.category));
  for (QLineEdit* field : {m_name, m_category})
    field->setCursorPosition(0);
  m_model.changedTeam();
  m_table->fitColumns();
  if (side.team != NewGame::kNone)
    showTeamColour(*m_table, colourOf(side.colour));
  showCount();
}

// Too many players are told by words, a sign and weight as much as by colour.
void SidePanel::showCount() {
  const NewGame::Side& side = m_game.sides[m_side];
  const int checked = side.checkedPlayers();
  const bool isTooMany = checked > NewGame::kMostPlayers;
  const QString count = caption(m_texts, isTooMany ? kTooMany : kCount)
                            .replace(QStringLiteral("XXX"), QString::number(checked))
                            .replace(QStringLiteral("YYY"), QString::number(NewGame::kMostPlayers));
  m_count->setText(isTooMany ? QChar(kWarningSign) + QStringLiteral(" ") + count : count);
  m_count->setForegroundRole(isTooMany ? QPalette::BrightText : QPalette::WindowText);
  QFont font = this->font();
  font.setBold(isTooMany);
  m_count->setFont(font);
}

} // namespace hooptab
