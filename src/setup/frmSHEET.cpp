#include "setup/frmSHEET.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "setup/RuleChoices.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

namespace hooptab {

namespace {

constexpr int kColumnsOfTeams = 2; // behind that of the labels

} // namespace

frmSHEET::frmSHEET(const GameSheet& sheet, const PerSide<Team>& teams, Asks asks, const Texts& texts,
                   QWidget* parent)
    : QDialog(parent), m_texts(texts), m_sheet(sheet), m_layout(new QGridLayout) {
  setObjectName(QStringLiteral("frmSHEET"));
  setTextNumber(*this, Text::GameSheet);
  setModal(true);
  const Measure& measure = Theme::measure();
  m_layout->setHorizontalSpacing(measure(10));
  m_layout->setVerticalSpacing(measure(8));
  for (int team = 1; team <= kColumnsOfTeams; ++team) {
    m_layout->setColumnMinimumWidth(team, measure(230, 290));
    m_layout->setColumnStretch(team, 1);
  }
  auto* layout = new QVBoxLayout(this);
  const int margin = measure(16);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(measure(12));
  layout->addLayout(m_layout);

  QLineEdit* competition = makeField(QStringLiteral("txtCOMPETITION"), m_sheet.competition);
  addWideRow(Text::Competition, *competition);
  addRow(Text::Round, *makeField(QStringLiteral("txtRONDE"), m_sheet.round), Text::Round);
  addWideRow(Text::Referees, *makeField(QStringLiteral("txtARBITRES"), m_sheet.referees));
  addRow(Text::Attendance, *makeField(QStringLiteral("txtASSISTANCE"), m_sheet.attendance), Text::Attendance);
  addTeams(teams);
  QLineEdit* target = makeField(QStringLiteral("txtSCORECIBLE"), m_sheet.targetScore);
  limitField(*target, GameSheet::isTargetScore, m_texts);
  addRow(Text::TargetScore, *target, Text::TargetScoreHint);
  if (asks == Asks::WithRules)
    addRules();
  addAnswers();
  selectOnFocus(*this);
  relabel(*this, texts);
  for (const auto& [field, name] : m_namesOfTeams) // one label stands for both fields
    field->setAccessibleName(name);
  giveMnemonics(*this);
  competition->setFocus();
}

void frmSHEET::addRow(Text text, QWidget& field, Text toolTip) {
  const int row = m_layout->rowCount();
  m_layout->addWidget(captionFor(field, text), row, 0);
  m_layout->addWidget(&field, row, 1);
  setToolTipNumber(field, toolTip);
}

void frmSHEET::addWideRow(Text text, QWidget& field) {
  const int row = m_layout->rowCount();
  m_layout->addWidget(captionFor(field, text), row, 0);
  m_layout->addWidget(&field, row, 1, 1, kColumnsOfTeams);
}

// Both teams side by side, under their names.
void frmSHEET::addTeams(const PerSide<Team>& teams) {
  const int row = m_layout->rowCount();
  for (const Side side : kSides) {
    const Team& team = teams[side];
    auto* name = new ElidedLabel(toQt(team.name), this);
    name->setFont(Theme::font(Type::Name));
    m_layout->addWidget(name, row, 1 + numberOf(side));
    QWidget* const fields[] = {
        makeField(QStringLiteral("txtENTRAINEUR(%1)").arg(numberOf(side)), m_sheet.coach[side]),
        makeCaptain(side, team.players)};
    int below = row;
    for (const Text text : {Text::Coach, Text::Captain}) {
      QWidget& field = *fields[below - row];
      ++below;
      // One label for both: it leads to the first team's field.
      if (side == Side::Visitor)
        m_layout->addWidget(captionFor(field, text), below, 0);
      m_layout->addWidget(&field, below, 1 + numberOf(side));
      m_namesOfTeams.emplace_back(&field,
                                  QStringLiteral("%1 – %2").arg(caption(m_texts, text), toQt(team.name)));
      setToolTipNumber(field, text);
    }
  }
}

void frmSHEET::addRules() {
  QComboBox* rules = makeChoice(QStringLiteral("lstREGLES"));
  fillRuleSets(*rules, m_sheet.ruleSet, m_texts);
  connect(rules, &QComboBox::currentIndexChanged, this,
          [this, rules] { m_sheet.ruleSet = fromQt(rules->currentData().toString()); });
  addRow(Text::RulesOfGame, *rules, Text::RulesStay);
  QComboBox* level = makeChoice(QStringLiteral("lstNIVEAU"));
  fillLevels(*level, m_sheet.level.value_or(RecordingLevel::Basic), m_texts);
  connect(level, &QComboBox::currentIndexChanged, this,
          [this, level] { m_sheet.level = static_cast<RecordingLevel>(level->currentData().toInt()); });
  addRow(Text::RecordingLevelWord, *level, Text::RecordingLevelHint);
  auto* stays = new PlainLabel(this);
  stays->setFont(Theme::font(Type::Small));
  stays->setForegroundRole(QPalette::PlaceholderText);
  stays->setWordWrap(true);
  setTextNumber(*stays, Text::RulesStay);
  m_layout->addWidget(stays, m_layout->rowCount() - 2, 2);
}

void frmSHEET::addAnswers() {
  auto* answers = new QHBoxLayout;
  answers->addStretch();
  const auto addButton = [&](const char* name, Text text, auto act) {
    auto* button = new QPushButton(this);
    button->setObjectName(QLatin1String(name));
    setTextNumber(*button, text);
    setToolTipNumber(*button, text);
    connect(button, &QPushButton::clicked, this, act);
    answers->addWidget(button);
    return button;
  };
  addButton("cmdOK", Text::Accept, &QDialog::accept)->setDefault(true);
  addButton("cmdCANCEL", Text::Cancel, &QDialog::reject)->setAutoDefault(false);
  static_cast<QVBoxLayout*>(layout())->addLayout(answers);
}

QLineEdit* frmSHEET::makeField(const QString& name, std::string& target) {
  auto* field = new QLineEdit(this);
  field->setObjectName(name);
  limitField(*field, m_texts);
  field->setText(toQt(target));
  field->setCursorPosition(0);
  connect(field, &QLineEdit::textChanged, this, [&target](const QString& typed) { target = fromQt(typed); });
  return field;
}

// As wide as its place: what is long is cut, and whole in the list.
QComboBox* frmSHEET::makeChoice(const QString& name) {
  auto* choice = new QComboBox(this);
  choice->setObjectName(name);
  choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  return choice;
}

QComboBox* frmSHEET::makeCaptain(Side side, const std::vector<RosterPlayer>& players) {
  QComboBox* choice = makeChoice(QStringLiteral("lstCAPITAINE(%1)").arg(numberOf(side)));
  std::string& captain = m_sheet.captain[side];
  const std::vector<CaptainChoice> choices = captainChoices(players, captain);
  for (const CaptainChoice& one : choices)
    choice->addItem(one.jersey.empty() ? caption(m_texts, Text::NoCaptain) : toQt(one.words),
                    toQt(one.jersey));
  choice->setCurrentIndex(static_cast<int>(positionOf(captain, choices)));
  connect(choice, &QComboBox::currentIndexChanged, this,
          [choice, &captain] { captain = fromQt(choice->currentData().toString()); });
  return choice;
}

} // namespace hooptab
