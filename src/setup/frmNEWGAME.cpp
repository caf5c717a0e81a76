#include "setup/frmNEWGAME.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/relabel.h"
#include "setup/KeepsEnter.h"
#include "setup/SidePanel.h"
#include "setup/SidePlayersTable.h"
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
#include <QShortcut>
#include <QSignalBlocker>
#include <QTextCharFormat>

namespace hooptab {

namespace {

constexpr int kGames = 1058;
constexpr int kErrorTitle = 1060;
constexpr int kSaveGameAs = 1138;
constexpr int kWarningTitle = 1139;
constexpr int kWriteFailed = 1863;

constexpr QSize kRoomyWindow(1480, 880);
constexpr QSize kAroundWindow(26, 68); // title bar and edges
constexpr QSize kCalendar(300, 200);
constexpr int kMargin = 10;
constexpr int kRecordedElsewhere = 1913;
constexpr int kGap = 5;
constexpr int kColumnWidth = 270;
constexpr int kRuleWidth = 64;
constexpr int kPickerWidth = 20; // its button alone: the date stands beside it as text

QString dateFormat() {
  return QStringLiteral("yyyy-MM-dd");
}

} // namespace

frmNEWGAME::frmNEWGAME(TeamStore& teams, Settings& settings, const Texts& texts, Dialogs& dialogs,
                       Claim claim, const LastChoices& last, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_texts(texts), m_dialogs(dialogs), m_claim(std::move(claim)),
      m_game(teams, settings, texts, fromQt(QDate::currentDate().toString(dateFormat())), last) {
  setObjectName(QStringLiteral("frmNEWGAME"));
  setTextNumber(*this, 1140);
  setModal(true);

  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  for (int side = 0; side < 2; ++side) {
    m_sides[side] = new SidePanel(m_game, side, texts, this);
    m_mainTeam.addButton(&m_sides[side]->mainTeamChoice(), side);
    layout->addWidget(m_sides[side], 1);
    connect(m_sides[side], &SidePanel::teamChosen, this, [this] {
      showRules();
      showMainTeam();
      showAcceptance();
    });
  }
  auto* column = new QVBoxLayout;
  column->addWidget(makeGameFields());
  column->addWidget(makeRuleFields());
  column->addStretch();
  column->addLayout(makeButtons());
  layout->addLayout(column);

  connect(&m_mainTeam, &QButtonGroup::idClicked, this, [this](int side) {
    m_game.mainTeam = side;
    showAcceptance();
  });
  connect(new QShortcut(QKeySequence(Qt::Key_F12), this), &QShortcut::activated, this,
          &frmNEWGAME::languageAsked);
  selectOnFocus(*this);
  relabelWindow();
  showRules();
  showMainTeam();
  m_sides[0]->teams().list().setFocus();
  resize(kRoomyWindow.boundedTo(screen()->availableSize() - kAroundWindow));
}

QLineEdit* frmNEWGAME::addField(QGridLayout& layout, const char* name, int text, std::string& target,
                                const std::function<bool(const std::string&)>& fits) {
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  limitField(*field, fits, m_texts);
  field->setText(toQt(target));
  connect(field, &QLineEdit::textChanged, this, [&target](const QString& typed) { target = fromQt(typed); });
  layout.addWidget(captionFor(*field, text), layout.rowCount(), 0, 1, 2);
  return field;
}

QWidget* frmNEWGAME::makeGameFields() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, 1551);
  group->setFixedWidth(kColumnWidth);
  auto* layout = new QGridLayout(group);
  layout->setVerticalSpacing(kGap);
  layout->setColumnStretch(0, 1);

  m_date = addField(*layout, "txtDATE", 1550, m_game.date);
  m_picker = new QDateEdit(group);
  m_picker->setObjectName(QStringLiteral("DTPicker1"));
  m_picker->setCalendarPopup(true);
  m_picker->setDisplayFormat(dateFormat());
  m_picker->setDate(QDate::fromString(m_date->text(), dateFormat()));
  m_picker->setFixedWidth(kPickerWidth);
  QCalendarWidget* calendar = m_picker->calendarWidget();
  calendar->setMinimumSize(kCalendar);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
    calendar->setWeekdayTextFormat(day, {}); // Qt's own red is unreadable on dark ground
  setAccessibleNumber(*m_picker, 1872);
  setToolTipNumber(*m_picker, 1872);
  const int dateRow = layout->rowCount();
  layout->addWidget(m_date, dateRow, 0);
  layout->addWidget(m_picker, dateRow, 1);

  const auto addChoice = [&](const char* name, int text, int& target) {
    auto* choice = new QComboBox(group);
    choice->setObjectName(QLatin1String(name));
    setAccessibleNumber(*choice, text);
    setToolTipNumber(*choice, text);
    auto* label = new PlainLabel(group);
    setTextNumber(*label, text);
    label->setBuddy(choice);
    layout->addWidget(label, layout->rowCount(), 0, 1, 2);
    layout->addWidget(choice, layout->rowCount(), 0, 1, 2);
    connect(choice, &QComboBox::currentIndexChanged, this, [this, choice, &target] {
      target = choice->currentIndex() < 0 ? NewGame::kNone : choice->currentData().toInt();
      showAcceptance();
    });
    return choice;
  };
  m_type = addChoice("lstTYPEPARTIE", 1122, m_game.gameType);
  m_input = addChoice("typeinput", 1206, m_game.inputType);
  const auto addText = [&](const char* name, int text, std::string& target) {
    QLineEdit* field = addField(*layout, name, text, target);
    layout->addWidget(field, layout->rowCount(), 0, 1, 2);
    return field;
  };
  addText("txtENDROIT", 1016, m_game.place);
  addText("txtBY", 1069, m_game.statistician);
  QLineEdit* notes = addText("txtNOTES", 1716, m_game.notes);
  notes->installEventFilter(new KeepsEnter(notes));

  const auto writeDate = [this](const QDate& date) { m_date->setText(date.toString(dateFormat())); };
  connect(m_picker, &QDateEdit::dateChanged, this, writeDate);
  // Also the day that the picker has already, where something else was typed since.
  connect(calendar, &QCalendarWidget::clicked, this, writeDate);
  connect(m_date, &QLineEdit::textChanged, this, [this](const QString& typed) {
    const QSignalBlocker quiet(m_picker);
    if (const QDate date = QDate::fromString(typed, dateFormat()); date.isValid())
      m_picker->setDate(date);
    showAcceptance();
  });
  return group;
}

QWidget* frmNEWGAME::makeRuleFields() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, 1064);
  group->setFixedWidth(kColumnWidth);
  auto* layout = new QGridLayout(group);
  layout->setVerticalSpacing(kGap);
  const auto addRule = [&](const char* name, int text, std::string& target,
                           bool (*fits)(const std::string&)) {
    QLineEdit* field = addField(*layout, name, text, target, fits);
    field->setFixedWidth(kRuleWidth);
    field->setAlignment(Qt::AlignRight);
    layout->addWidget(field, layout->rowCount() - 1, 1, Qt::AlignRight);
    return field;
  };
  const auto anyText = [](const std::string& typed) { return fitsInValue(typed); };
  m_minutes = addRule("txtDUREE", 1124, m_game.rules.minutesPerPeriod, anyText);
  m_periods = addRule("txtNBREPERIODE", 1123, m_game.rules.periods, anyText);
  m_bonus = addRule("txtBONUS", 1125, m_game.rules.bonus, anyText);
  m_personalFouls = addRule("txtPF", 1126, m_game.rules.personalFoulLimit, anyText);
  m_technicalFouls = addRule("txtTF", 1127, m_game.rules.technicalFoulLimit, anyText);
  return group;
}

QLayout* frmNEWGAME::makeButtons() {
  m_missing = new PlainLabel(this);
  m_missing->setObjectName(QStringLiteral("lblMISSING"));
  m_missing->setWordWrap(true);
  m_missing->setFixedWidth(kColumnWidth);
  m_missing->setForegroundRole(QPalette::PlaceholderText);
  m_ok = new QPushButton(QStringLiteral("OK"), this);
  m_ok->setObjectName(QStringLiteral("OKButton"));
  m_ok->setDefault(true);
  setToolTipNumber(*m_ok, 1336);
  auto* cancel = new QPushButton(this);
  cancel->setObjectName(QStringLiteral("CancelButton"));
  cancel->setAutoDefault(false);
  setTextNumber(*cancel, 1128);
  setToolTipNumber(*cancel, 1337);
  connect(m_ok, &QPushButton::clicked, this, &frmNEWGAME::accept);
  connect(cancel, &QPushButton::clicked, this, &frmNEWGAME::reject);

  auto* layout = new QVBoxLayout;
  layout->addWidget(m_missing);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_ok);
  buttons->addWidget(cancel);
  layout->addLayout(buttons);
  return layout;
}

void frmNEWGAME::relabelWindow() {
  relabel(*this, m_texts);
  giveMnemonics(*this);
  const bool isFrench = m_texts.language() == Language::French;
  const QLocale locale(isFrench ? QLocale::French : QLocale::English, QLocale::Canada);
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
    m_type->addItem(caption(m_texts, kFirstGameTypeText + type), type);
  m_type->setCurrentIndex(m_type->findData(m_game.gameType));
  m_input->clear();
  for (const InputType& input : kInputTypes)
    m_input->addItem(caption(m_texts, input.text), m_input->count());
  m_input->setCurrentIndex(m_input->findData(m_game.inputType));
}

void frmNEWGAME::showRules() {
  const TypedRules rules = m_game.rules; // a field that is set writes into the game
  m_minutes->setText(toQt(rules.minutesPerPeriod));
  m_periods->setText(toQt(rules.periods));
  m_bonus->setText(toQt(rules.bonus));
  m_personalFouls->setText(toQt(rules.personalFoulLimit));
  m_technicalFouls->setText(toQt(rules.technicalFoulLimit));
  m_date->setText(toQt(m_game.date));
}

void frmNEWGAME::showMainTeam() {
  m_mainTeam.setExclusive(false); // none may be chosen
  for (int side = 0; side < 2; ++side)
    m_mainTeam.button(side)->setChecked(m_game.mainTeam == side);
  m_mainTeam.setExclusive(true);
}

void frmNEWGAME::showAcceptance() {
  const int missing = m_game.missing();
  m_ok->setEnabled(missing == 0);
  m_missing->setText(missing == 0 ? QString() : caption(m_texts, missing));
}

void frmNEWGAME::focusOn(int problem) {
  const struct {
    int problem;
    QWidget* widget;
  } places[] = {{1130, m_minutes},
                {1131, m_periods},
                {1132, m_bonus},
                {1133, m_personalFouls},
                {1134, m_technicalFouls},
                {1205, m_input},
                {1135, &m_sides[m_game.sides[0].team == NewGame::kNone ? 0 : 1]->teams().list()},
                {1274, &m_sides[0]->players()},
                {1275, &m_sides[1]->players()},
                {1406, &m_sides[1]->teams().list()}};
  for (const auto& place : places) {
    if (place.problem == problem)
      place.widget->setFocus(Qt::OtherFocusReason);
  }
}

void frmNEWGAME::accept() {
  const QString warning = caption(m_texts, kWarningTitle);
  if (const int problem = m_game.problem(); problem != 0) {
    m_dialogs.warn(this, warning, caption(m_texts, problem));
    focusOn(problem);
    return;
  }
  const QString proposed = QDir(toQt(m_settings.lastGameFolder)).filePath(toQt(m_game.proposedFileName()));
  const QString chosen =
      m_dialogs.chooseFileToSave(this, caption(m_texts, kSaveGameAs), proposed,
                                 fileFilter(toQt(m_texts.text(kGames))), QStringLiteral("GAM"));
  if (chosen.isEmpty())
    return;
  const std::string path = withGameEnding(fromQt(chosen));
  if (const QString owner = m_claim(toQt(path)); !owner.isEmpty()) {
    m_dialogs.warn(this, caption(m_texts, kErrorTitle),
                   toQt(m_texts.withPlaceholder(kRecordedElsewhere, fromQt(owner))));
    return;
  }
  const QString question = toQt(m_game.overwriteQuestion(path));
  if (!question.isEmpty() && !m_dialogs.ask(this, warning, question))
    return;
  if (m_game.create(path) != GameFileProblem::None) {
    m_dialogs.complain(this, caption(m_texts, kErrorTitle),
                       toQt(m_texts.withPlaceholder(kWriteFailed, path)));
    return;
  }
  m_path = toQt(path);
  QDialog::accept();
}

} // namespace hooptab
