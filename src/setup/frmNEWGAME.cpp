#include "setup/frmNEWGAME.h"

#include "appearance/Card.h"
#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/LanguageLocale.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/WarningChip.h"
#include "appearance/relabel.h"
#include "game/RuleSets.h"
#include "setup/KeepsEnter.h"
#include "setup/RuleChoices.h"
#include "setup/SetupWords.h"
#include "setup/SidePanel.h"
#include "setup/SidePlayersTable.h"
#include "setup/frmSHEET.h"
#include "storage/Module1.h"
#include "teams/TeamList.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <algorithm>

namespace hooptab {

namespace {

constexpr QSize kRoomyWindow(1480, 880);
constexpr QSize kRoomyWideWindow(1720, 960);
constexpr QSize kAroundWindow(26, 68); // title bar and edges
constexpr QSize kCalendar(300, 200);
constexpr int kLargestZoomOfHead = 120; // percent
constexpr int kPickerWidth = 20;        // its button alone: the date stands beside it as text

QString dateFormat() {
  return QStringLiteral("yyyy-MM-dd");
}

// The wheel scrolls the column, and chooses no other rules on its way.
class LeavesWheel : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Wheel)
      return false;
    event->ignore();
    return true;
  }
};

QLabel* quietCaption(QWidget& field, Text text) {
  QLabel* label = captionFor(field, text);
  label->setFont(Theme::font(Type::Small));
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

QWidget* besideTitle(QComboBox& choice) {
  auto* beside = new QWidget(choice.parentWidget());
  auto* layout = new QHBoxLayout(beside);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(quietCaption(choice, Text::RulesOfGame));
  layout->addWidget(&choice);
  return beside;
}

} // namespace

frmNEWGAME::frmNEWGAME(TeamStore& teams, Settings& settings, const Texts& texts, Dialogs& dialogs,
                       Claim claim, const LastChoices& last, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_texts(texts), m_dialogs(dialogs), m_claim(std::move(claim)),
      m_game(teams, settings, texts, fromQt(QDate::currentDate().toString(dateFormat())), last) {
  setObjectName(QStringLiteral("frmNEWGAME"));
  setTextNumber(*this, Text::NewGame);
  setModal(true);

  const Measure& measure = Theme::measure();
  const int margin = measure(8, 12);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->setSpacing(margin);
  for (const Side side : kSides) {
    m_sides[side] = new SidePanel(m_game, side, texts, this);
    m_mainTeam.addButton(&m_sides[side]->mainTeamChoice(), numberOf(side));
    layout->addWidget(m_sides[side], 1);
    connect(m_sides[side], &SidePanel::teamChosen, this, [this] {
      showRules();
      showMainTeam();
      showAcceptance();
    });
    // Not under a click on a list that the focus has just left another field for.
    connect(
        m_sides[side], &SidePanel::teamsChanged, this,
        [this] {
          for (SidePanel* panel : m_sides)
            panel->showTeams();
        },
        Qt::QueuedConnection);
  }
  layout->addWidget(makeColumn());

  connect(&m_mainTeam, &QButtonGroup::idClicked, this, [this](int side) {
    m_game.mainTeam = sideOf(side);
    showRuleSet();
    showAcceptance();
  });
  connect(new QShortcut(QKeySequence(Qt::Key_F12), this), &QShortcut::activated, this,
          &frmNEWGAME::languageAsked);
  selectOnFocus(*this);
  relabelWindow();
  showRules();
  showMainTeam();
  m_sides[Side::Visitor]->teams().list().setFocus();
  const QSize roomy = measure.isWide() ? kRoomyWideWindow : kRoomyWindow;
  resize((roomy * measure.zoom() / 100).boundedTo(screen()->availableSize() - kAroundWindow));
}

// A low window scrolls the fields, never the answers below them.
QWidget* frmNEWGAME::makeColumn() {
  const Measure& measure = Theme::measure();
  const int gap = measure(8, 12);
  auto* fields = new QWidget;
  auto* cards = new QVBoxLayout(fields);
  cards->setContentsMargins(0, 0, 0, 0);
  cards->setSpacing(gap);
  cards->addWidget(makeGameFields());
  cards->addWidget(makeRuleFields());
  cards->addStretch();
  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setWidget(fields);
  scroll->setFocusPolicy(Qt::NoFocus);
  auto* column = new QWidget(this);
  // As wide as it is made for, and narrower where the players need the room.
  column->setFixedWidth(std::min(measure(336, 420), screen()->availableSize().width() * 2 / 7));
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(gap);
  layout->addWidget(scroll, 1);
  layout->addWidget(makeAnswers());
  return column;
}

QGridLayout* frmNEWGAME::addCard(Card& card, Text title, QWidget* beside) {
  const Measure& measure = Theme::measure();
  setAccessibleNumber(card, title);
  auto* head = new PlainLabel(&card);
  head->setFont(Theme::font(Type::Count, QFont::Bold));
  setTextNumber(*head, title);
  auto* layout = new QGridLayout(&card);
  layout->setContentsMargins(measure(12), measure(8), measure(12), measure(12));
  layout->setHorizontalSpacing(measure(10));
  layout->setVerticalSpacing(measure(4));
  auto* top = new QHBoxLayout;
  top->addWidget(head, 1);
  if (beside != nullptr)
    top->addWidget(beside);
  layout->addLayout(top, 0, 0, 1, 2);
  for (const int column : {0, 1})
    layout->setColumnStretch(column, 1);
  return layout;
}

QLineEdit* frmNEWGAME::addField(const char* name, std::string& target,
                                const std::function<bool(const std::string&)>& fits) {
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  limitField(*field, fits, m_texts);
  field->setText(toQt(target));
  connect(field, &QLineEdit::textChanged, this, [&target](const QString& typed) { target = fromQt(typed); });
  return field;
}

void frmNEWGAME::place(QGridLayout& card, QWidget& field, Text text, Place place) {
  const int columns = place == Place::Whole ? 2 : 1;
  const int column = place == Place::Right ? 1 : 0;
  const int row = place == Place::Right ? card.rowCount() - 2 : card.rowCount();
  card.addWidget(quietCaption(field, text), row, column, 1, columns);
  card.addWidget(&field, row + 1, column, 1, columns);
}

QWidget* frmNEWGAME::makeGameFields() {
  auto* card = new Card(this);
  auto* details = new QPushButton(card);
  details->setObjectName(QStringLiteral("cmdSHEET"));
  details->setAutoDefault(false);
  setTextNumber(*details, Text::GameSheet);
  setToolTipNumber(*details, Text::GameSheetHint);
  connect(details, &QPushButton::clicked, this, &frmNEWGAME::openSheet);
  QGridLayout& layout = *addCard(*card, Text::GameCard, details);

  m_date = addField("txtDATE", m_game.date);
  m_picker = new QDateEdit(card);
  m_picker->setObjectName(QStringLiteral("DTPicker1"));
  m_picker->setCalendarPopup(true);
  m_picker->setDisplayFormat(dateFormat());
  m_picker->setDate(QDate::fromString(m_date->text(), dateFormat()));
  m_picker->setFixedWidth(kPickerWidth);
  QCalendarWidget* calendar = m_picker->calendarWidget();
  calendar->setMinimumSize(kCalendar);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
    calendar->setWeekdayTextFormat(day, {}); // Qt's own red is unreadable on dark ground
  setAccessibleNumber(*m_picker, Text::CalendarTip);
  setToolTipNumber(*m_picker, Text::CalendarTip);
  place(layout, *m_date, Text::Date, Place::Left);
  auto* date = new QHBoxLayout;
  date->setSpacing(Theme::measure()(4));
  date->addWidget(m_date);
  date->addWidget(m_picker);
  layout.addLayout(date, layout.rowCount() - 1, 0);

  const auto addChoice = [&](const char* name, Text text, int& target, Place where) {
    auto* choice = new QComboBox(card);
    choice->setObjectName(QLatin1String(name));
    place(layout, *choice, text, where);
    connect(choice, &QComboBox::currentIndexChanged, this, [this, choice, &target] {
      target = choice->currentIndex() < 0 ? NewGame::kNone : choice->currentData().toInt();
      m_level->setEnabled(m_game.isLive());
      showAcceptance();
    });
    return choice;
  };
  m_type = addChoice("lstTYPEPARTIE", Text::GameType, m_game.gameType, Place::Right);
  m_input = addChoice("typeinput", Text::InputType, m_game.inputType, Place::Whole);
  place(layout, *addField("txtENDROIT", m_game.place), Text::Location, Place::Whole);
  place(layout, *addField("txtBY", m_game.statistician), Text::Statistician, Place::Whole);
  QLineEdit* notes = addField("txtNOTES", m_game.notes);
  notes->installEventFilter(new KeepsEnter(notes));
  place(layout, *notes, Text::GameNotes, Place::Whole);

  const auto writeDate = [this](const QDate& day) { m_date->setText(day.toString(dateFormat())); };
  connect(m_picker, &QDateEdit::dateChanged, this, writeDate);
  // Also the day that the picker has already, where something else was typed since.
  connect(calendar, &QCalendarWidget::clicked, this, writeDate);
  connect(m_date, &QLineEdit::textChanged, this, [this](const QString& typed) {
    const QSignalBlocker quiet(m_picker);
    if (const QDate day = QDate::fromString(typed, dateFormat()); day.isValid())
      m_picker->setDate(day);
    showAcceptance();
  });
  return card;
}

QWidget* frmNEWGAME::makeRuleFields() {
  auto* card = new Card(this);
  makeRuleSets();
  // Beside the title, where they cost no row; in large type there is no room.
  const bool isLarge = Theme::measure().zoom() > kLargestZoomOfHead;
  QGridLayout& layout = *addCard(*card, Text::Parameters, isLarge ? nullptr : besideTitle(*m_rules));
  if (isLarge)
    place(layout, *m_rules, Text::RulesOfGame, Place::Whole);
  setToolTipNumber(*m_rules, Text::RuleSetHint);
  const auto addRule = [&](const char* name, Text text, std::string& target, Place where) {
    QLineEdit* field = addField(name, target, [](const std::string& typed) { return fitsInValue(typed); });
    place(layout, *field, text, where);
    connect(field, &QLineEdit::textChanged, this, &frmNEWGAME::showAcceptance);
    return field;
  };
  m_periods = addRule("txtNBREPERIODE", Text::PeriodCount, m_game.rules.periods, Place::Left);
  m_minutes = addRule("txtDUREE", Text::MinutesPerPeriod, m_game.rules.minutesPerPeriod, Place::Right);
  m_bonus = addRule("txtBONUS", Text::BonusAfter, m_game.rules.bonus, Place::Left);
  m_personalFouls = addRule("txtPF", Text::FoulLimit, m_game.rules.personalFoulLimit, Place::Right);
  m_technicalFouls = addRule("txtTF", Text::TechnicalLimit, m_game.rules.technicalFoulLimit, Place::Left);
  m_level = new QComboBox(card);
  m_level->setObjectName(QStringLiteral("lstNIVEAU"));
  m_level->installEventFilter(new LeavesWheel(m_level));
  place(layout, *m_level, Text::RecordingLevelWord, Place::Right);
  setToolTipNumber(*m_level, Text::RecordingLevelHint);
  connect(m_level, &QComboBox::activated, this,
          [this] { m_game.chooseLevel(static_cast<RecordingLevel>(m_level->currentData().toInt())); });
  return card;
}

// Choosing what is chosen already brings its rules back.
void frmNEWGAME::makeRuleSets() {
  m_rules = new QComboBox(this);
  m_rules->setObjectName(QStringLiteral("lstREGLES"));
  m_rules->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  m_rules->installEventFilter(new LeavesWheel(m_rules));
  connect(m_rules, &QComboBox::activated, this, [this] {
    m_game.chooseRules(fromQt(m_rules->currentData().toString()));
    showRules();
  });
}

QWidget* frmNEWGAME::makeAnswers() {
  const Measure& measure = Theme::measure();
  auto* card = new Card(this);
  m_warning = new WarningChip(card);
  m_missing = new PlainLabel(card);
  m_missing->setObjectName(QStringLiteral("lblMISSING"));
  m_missing->setWordWrap(true);
  m_missing->setFont(Theme::font(Type::Name));
  m_missing->setMinimumHeight(2 * m_missing->fontMetrics().height()); // nothing moves when it speaks
  m_ok = new QPushButton(QStringLiteral("OK"), card);
  m_ok->setObjectName(QStringLiteral("OKButton"));
  m_ok->setDefault(true);
  m_ok->setFont(Theme::font(Type::Name));
  m_ok->setMinimumHeight(measure(38, 46));
  setToolTipNumber(*m_ok, Text::SaveNewGame);
  auto* cancel = new QPushButton(card);
  cancel->setObjectName(QStringLiteral("CancelButton"));
  cancel->setAutoDefault(false);
  cancel->setMinimumHeight(measure(38, 46));
  setTextNumber(*cancel, Text::Cancel);
  setToolTipNumber(*cancel, Text::CancelNewGame);
  connect(m_ok, &QPushButton::clicked, this, &frmNEWGAME::accept);
  connect(cancel, &QPushButton::clicked, this, &frmNEWGAME::reject);

  auto* words = new QHBoxLayout;
  words->addWidget(m_warning);
  words->addWidget(m_missing, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(m_ok, 1);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(card);
  layout->setContentsMargins(measure(12), measure(8), measure(12), measure(12));
  layout->addLayout(words);
  layout->addLayout(buttons);
  return card;
}

void frmNEWGAME::relabelWindow() {
  relabel(*this, m_texts);
  giveMnemonics(*this);
  const QLocale locale = canadianLocaleOf(m_texts.language());
  m_picker->setLocale(locale);
  m_picker->calendarWidget()->setLocale(locale); // names of months and days
  for (SidePanel* side : m_sides)
    side->relabelPanel();
  fillChoices();
  showAcceptance();
}

// What is chosen is known by its value, whatever it is called.
void frmNEWGAME::fillChoices() {
  const QSignalBlocker quietType(m_type);
  const QSignalBlocker quietInput(m_input);
  m_type->clear();
  for (const int type : offeredChoices(kFirstGameTypeText, m_texts))
    m_type->addItem(caption(m_texts, textBehind(kFirstGameTypeText, type)), type);
  m_type->setCurrentIndex(m_type->findData(m_game.gameType));
  m_input->clear();
  for (const InputType& input : kInputTypes)
    m_input->addItem(caption(m_texts, input.text), m_input->count());
  m_input->setCurrentIndex(m_input->findData(m_game.inputType));
  showRuleSet();
}

// Those of the team, until others are chosen.
void frmNEWGAME::showRuleSet() {
  fillRuleSets(*m_rules, m_game.ruleSet(), m_texts);
  fillLevels(*m_level, m_game.level(), m_texts);
  m_level->setEnabled(m_game.isLive());
}

void frmNEWGAME::openSheet() {
  frmSHEET window(m_game.sheet,
                  {frmSHEET::Team{m_game.sides[Side::Visitor].name, m_game.roster(Side::Visitor)},
                   frmSHEET::Team{m_game.sides[Side::Home].name, m_game.roster(Side::Home)}},
                  frmSHEET::Asks::WithoutRules, m_texts, this);
  if (window.exec() == QDialog::Accepted)
    m_game.sheet = window.sheet();
}

void frmNEWGAME::showRules() {
  const TypedRules rules = m_game.rules; // a field that is set writes into the game
  m_minutes->setText(toQt(rules.minutesPerPeriod));
  m_periods->setText(toQt(rules.periods));
  m_bonus->setText(toQt(rules.bonus));
  m_personalFouls->setText(toQt(rules.personalFoulLimit));
  m_technicalFouls->setText(toQt(rules.technicalFoulLimit));
  m_date->setText(toQt(m_game.date));
  showRuleSet();
}

void frmNEWGAME::showMainTeam() {
  m_mainTeam.setExclusive(false); // none may be chosen
  for (const Side side : kSides)
    m_mainTeam.button(numberOf(side))->setChecked(m_game.mainTeam == side);
  m_mainTeam.setExclusive(true);
}

void frmNEWGAME::showAcceptance() {
  const Text missing = textOf(m_game.missing());
  m_ok->setEnabled(missing == Text::None);
  m_warning->setVisible(missing != Text::None);
  m_missing->setText(missing != Text::None ? caption(m_texts, missing) : differenceWords());
  m_missing->setForegroundRole(missing != Text::None ? QPalette::WindowText : QPalette::PlaceholderText);
}

// What a team brought, or somebody typed, is no fault; but it is seen that the set's name does not tell all.
QString frmNEWGAME::differenceWords() const {
  if (!m_game.differsFromRules())
    return {};
  return toQt(
      m_texts.withPlaceholder(Text::OtherThanRules, m_texts.caption(ruleSetOf(m_game.ruleSet())->name)));
}

void frmNEWGAME::focusOn(const NewGame::Objection& objection) {
  using enum NewGame::Problem;
  QWidget* place = nullptr;
  switch (objection.problem) {
  case Minutes: place = m_minutes; break;
  case Periods: place = m_periods; break;
  case Bonus: place = m_bonus; break;
  case PersonalFouls: place = m_personalFouls; break;
  case TechnicalFouls: place = m_technicalFouls; break;
  case NoInputType: place = m_input; break;
  case NoTeam: place = &m_sides[*objection.side]->teams().list(); break;
  case SameTeam: place = &m_sides[Side::Home]->teams().list(); break;
  case TooManyPlayers: place = &m_sides[*objection.side]->players(); break;
  case NoDate:
  case NoGameType:
  case NoMainTeam:
  case None: return; // OK cannot be pressed without them
  }
  place->setFocus(Qt::OtherFocusReason);
}

void frmNEWGAME::accept() {
  const QString warning = caption(m_texts, Text::WarningTitle);
  for (SidePanel* side : m_sides) {
    if (!side->takeTypedPlayer())
      return; // the panel says why
    if (const QString wrong = side->wrongNumbers(); !wrong.isEmpty()) {
      m_dialogs.warn(this, warning, wrong);
      side->numbers().setFocus(Qt::OtherFocusReason);
      return;
    }
  }
  if (const NewGame::Objection objection = m_game.problem(); objection != NewGame::Objection()) {
    m_dialogs.warn(this, warning, caption(m_texts, textOf(objection)));
    focusOn(objection);
    return;
  }
  const QString proposed = QDir(toQt(m_settings.lastGameFolder)).filePath(toQt(m_game.proposedFileName()));
  const QString chosen =
      m_dialogs.chooseFileToSave(this, caption(m_texts, Text::SaveGameAs), proposed,
                                 fileFilter(toQt(m_texts.text(Text::GameFilter))), QStringLiteral("GAM"));
  if (chosen.isEmpty())
    return;
  const std::string path = withGameEnding(fromQt(chosen));
  if (const QString owner = m_claim(toQt(path)); !owner.isEmpty()) {
    m_dialogs.warn(this, caption(m_texts, Text::ErrorTitle),
                   toQt(m_texts.withPlaceholder(Text::RecordedElsewhere, fromQt(owner))));
    return;
  }
  const QString question = toQt(m_game.overwriteQuestion(path));
  if (!question.isEmpty() && !m_dialogs.ask(this, warning, question))
    return;
  if (m_game.create(path) != GameFileProblem::None) {
    m_dialogs.complain(this, caption(m_texts, Text::ErrorTitle),
                       toQt(m_texts.withPlaceholder(Text::WriteFailed, path)));
    return;
  }
  m_path = toQt(path);
  QDialog::accept();
}

} // namespace hooptab
