#include "studies/CriteriaPanel.h"

#include "appearance/Fields.h"
#include "appearance/LanguageLocale.h"
#include "appearance/relabel.h"
#include "settings/ChoiceTexts.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDataStream>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTextCharFormat>

namespace hooptab {

namespace {

constexpr int kTeamWidth = 170;
constexpr int kChoiceWidth = 118;
constexpr int kDateWidth = 118;
constexpr QSize kCalendar(300, 220);
const QDate kFirstDay(1970, 1, 1); // day 0 of calendarDay()

int dayOf(const QDate& date) {
  return static_cast<int>(kFirstDay.daysTo(date));
}

// The chosen value, nothing for "All".
std::optional<int> chosen(const QComboBox& choice) {
  const QVariant value = choice.currentData();
  return value.isValid() ? std::optional(value.toInt()) : std::nullopt;
}

// What is chosen is known by its value, whatever it is called.
void fill(QComboBox& choice, const QString& everything,
          const std::vector<std::pair<QString, QVariant>>& entries) {
  const QSignalBlocker quiet(choice);
  const QVariant before = choice.currentData();
  choice.clear();
  choice.addItem(everything);
  for (const auto& [name, value] : entries)
    choice.addItem(name, value);
  choice.setCurrentIndex(before.isValid() ? std::max(choice.findData(before), 0) : 0);
}

std::vector<std::pair<QString, QVariant>> offered(Text firstText, const Texts& texts) {
  std::vector<std::pair<QString, QVariant>> entries;
  for (const int index : offeredChoices(firstText, texts))
    entries.emplace_back(toQt(choiceName(firstText, index, texts)), index);
  return entries;
}

} // namespace

CriteriaPanel::CriteriaPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_grid(new QGridLayout(this)) {
  m_grid->setContentsMargins(0, 0, 0, 0);
  m_grid->setHorizontalSpacing(6);
  m_grid->setVerticalSpacing(2);
  m_team = addChoice("lstequipes", Text::Team, kTeamWidth);
  m_where = addChoice("lstOU", Text::WhereCriterion, kChoiceWidth);
  m_where->setEnabled(false); // home and away are those of a team
  m_type = addChoice("lstTYPEPARTIE", Text::GameType, kChoiceWidth);
  m_input = addChoice("lstSAISIE", Text::InputWord, kChoiceWidth);
  m_position = addChoice("lstposition", Text::Position, kChoiceWidth);

  m_withDate = new QCheckBox(this);
  m_withDate->setObjectName(QStringLiteral("chkdate"));
  setTextNumber(*m_withDate, Text::Date);
  setToolTipNumber(*m_withDate, Text::Date);
  constexpr std::pair<const char*, Text> kDates[] = {{"lbldatedu", Text::FromDate},
                                                     {"lbldateau", Text::ToDate}};
  auto* captions = new QHBoxLayout;
  captions->addWidget(m_withDate);
  captions->addStretch();
  auto* dates = new QHBoxLayout;
  dates->setSpacing(4);
  for (std::size_t i = 0; i < m_dates.size(); ++i) {
    auto* date = m_dates[i] = new QDateEdit(this);
    date->setObjectName(QStringLiteral("DTdu(%1)").arg(i));
    date->setCalendarPopup(true);
    date->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    date->setFixedWidth(kDateWidth);
    date->calendarWidget()->setMinimumSize(kCalendar);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
      date->calendarWidget()->setWeekdayTextFormat(day, {}); // Qt's own red is unreadable on dark ground
    date->setEnabled(false);
    QLabel* label = captionFor(*date, kDates[i].second);
    label->setObjectName(QLatin1String(kDates[i].first));
    dates->addWidget(label);
    dates->addWidget(date);
    connect(date, &QDateEdit::dateChanged, this, [this] {
      m_hasDates = true;
      emit changed();
    });
    connect(m_withDate, &QCheckBox::toggled, date, &QWidget::setEnabled);
  }
  const int dateColumn = m_grid->columnCount();
  m_grid->addLayout(captions, 0, dateColumn);
  m_grid->addLayout(dates, 1, dateColumn);

  m_countOnce = new QCheckBox(this);
  m_countOnce->setObjectName(QStringLiteral("chkCOPIES"));
  m_leaveOutWrong = new QCheckBox(this);
  m_leaveOutWrong->setObjectName(QStringLiteral("chkWRONG"));
  for (QCheckBox* box : {m_countOnce, m_leaveOutWrong})
    box->hide();
  m_apply = iconButton("cmdFILTER", Text::Apply, Text::ApplyHint, "filter", this);
  m_generate = iconButton("cmdGENERATE", Text::Generate, Text::GenerateHint, "stats", this);
  QFont bold = m_generate->font();
  bold.setBold(true);
  m_generate->setFont(bold);
  m_grid->setColumnStretch(m_grid->columnCount(), 1);
  const int buttonColumn = m_grid->columnCount();
  auto* whole = new QHBoxLayout; // what is asked about whole files
  whole->addStretch();
  whole->addWidget(m_leaveOutWrong);
  whole->addWidget(m_countOnce);
  m_grid->addLayout(whole, 0, dateColumn + 1, 1, buttonColumn - dateColumn + 1);
  m_grid->addWidget(m_apply, 1, buttonColumn);
  m_grid->addWidget(m_generate, 1, buttonColumn + 1);

  for (QCheckBox* box : {m_withDate, m_countOnce, m_leaveOutWrong})
    connect(box, &QCheckBox::toggled, this, &CriteriaPanel::changed);
  connect(m_apply, &QPushButton::clicked, this, &CriteriaPanel::applyAsked);
  connect(m_generate, &QPushButton::clicked, this, &CriteriaPanel::generateAsked);
}

QComboBox* CriteriaPanel::addChoice(const char* name, Text text, int width) {
  auto* choice = new QComboBox(this);
  choice->setObjectName(QLatin1String(name));
  choice->setMinimumWidth(width);
  choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  const int column = m_grid->count() / 2;
  m_grid->addWidget(captionFor(*choice, text), 0, column);
  m_grid->addWidget(choice, 1, column);
  connect(choice, &QComboBox::currentIndexChanged, this, &CriteriaPanel::changed);
  return choice;
}

SeasonChoice CriteriaPanel::choice() const {
  SeasonChoice choice;
  GameCriteria& games = choice.games;
  games.team = fromQt(m_team->currentData().toString());
  games.type = chosen(*m_type);
  if (!games.team.empty())
    games.where = static_cast<GameCriteria::Where>(chosen(*m_where).value_or(0));
  if (const auto input = chosen(*m_input))
    games.input = static_cast<InputKind>(*input);
  if (m_withDate->isChecked()) {
    games.fromDay = dayOf(m_dates[0]->date());
    games.toDay = dayOf(m_dates[1]->date());
  }
  games.countsCopiesOnce = m_countOnce->isChecked();
  games.leavesOutWrong = m_leaveOutWrong->isChecked() && !m_leaveOutWrong->isHidden();
  choice.position = chosen(*m_position);
  return choice;
}

void CriteriaPanel::showDesk(const SeasonDesk& desk) {
  std::vector<std::pair<QString, QVariant>> teams;
  for (const SeasonTeam& team : desk.catalogue()->teams())
    teams.emplace_back(toQt(team.key), toQt(team.key));
  fill(*m_team, caption(m_texts, Text::All), teams);

  const auto games = desk.catalogue()->games();
  if (!m_hasDates && !games.empty() && games.front().day) { // valid dates come first, in order
    const auto afterLast =
        std::ranges::find_if(games, [](const ListedGame& game) { return !game.day.has_value(); });
    const int days[] = {*games.front().day, *(afterLast - 1)->day};
    for (std::size_t i = 0; i < m_dates.size(); ++i) {
      const QSignalBlocker quiet(m_dates[i]);
      m_dates[i]->setDate(kFirstDay.addDays(days[i]));
    }
  }
  const auto copies = desk.catalogue()->copies();
  m_countOnce->setVisible(copies > 0);
  m_countOnce->setText(toQt(m_texts.withPlaceholder(Text::CountOnce, std::to_string(copies))));
  const auto wrong = desk.catalogue()->wrongGames();
  m_leaveOutWrong->setVisible(wrong > 0);
  m_leaveOutWrong->setText(toQt(m_texts.withPlaceholder(Text::LeaveOutWrong, std::to_string(wrong))));
}

void CriteriaPanel::leaveOutWrong() {
  m_leaveOutWrong->setChecked(true);
}

void CriteriaPanel::showWhatIsOffered(const SeasonDesk& desk, bool isBusy) {
  m_apply->setEnabled(!isBusy && desk.canApply(choice()));
  m_generate->setEnabled(!isBusy && desk.canGenerate());
  const bool hasTeam = m_team->currentIndex() > 0;
  m_where->setEnabled(hasTeam);
  m_where->setToolTip(caption(m_texts, hasTeam ? Text::WhereCriterion : Text::NeedsTeam));
}

QByteArray CriteriaPanel::kept() const {
  QByteArray kept;
  QDataStream stream(&kept, QIODevice::WriteOnly);
  for (const QComboBox* choice : {m_team, m_type, m_where, m_input, m_position})
    stream << choice->currentData();
  stream << m_dates[0]->date() << m_dates[1]->date();
  for (const QCheckBox* box : {m_withDate, m_countOnce, m_leaveOutWrong})
    stream << box->isChecked();
  return kept;
}

void CriteriaPanel::restore(const QByteArray& kept) {
  QDataStream stream(kept);
  for (QComboBox* choice : {m_team, m_type, m_where, m_input, m_position}) {
    QVariant value;
    stream >> value;
    choice->setCurrentIndex(value.isValid() ? std::max(choice->findData(value), 0) : 0);
  }
  for (QDateEdit* date : m_dates) {
    QDate day;
    stream >> day;
    if (day.isValid())
      date->setDate(day);
  }
  for (QCheckBox* box : {m_withDate, m_countOnce, m_leaveOutWrong}) {
    bool isChecked = false;
    stream >> isChecked;
    box->setChecked(isChecked);
  }
}

void CriteriaPanel::relabelPanel() {
  const QString everything = caption(m_texts, Text::All);
  fill(*m_type, everything, offered(kFirstGameTypeText, m_texts));
  fill(*m_position, everything, offered(kFirstPositionText, m_texts));
  using Where = GameCriteria::Where;
  fill(*m_where, everything,
       {{caption(m_texts, Text::AtHome), static_cast<int>(Where::Home)},
        {caption(m_texts, Text::Away), static_cast<int>(Where::Away)}});
  fill(*m_input, everything,
       {{caption(m_texts, Text::Live), static_cast<int>(InputKind::Live)},
        {caption(m_texts, Text::LiveWithoutTime), static_cast<int>(InputKind::LiveWithoutTime)},
        {caption(m_texts, Text::Manual), static_cast<int>(InputKind::Manual)}});
  if (m_team->count() == 0)
    m_team->addItem(everything);
  m_team->setItemText(0, everything);
  const QLocale locale = canadianLocaleOf(m_texts.language());
  for (QDateEdit* date : m_dates) {
    date->setLocale(locale);
    date->calendarWidget()->setLocale(locale); // names of months and days
  }
}

} // namespace hooptab
