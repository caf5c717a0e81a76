#include "review/frmVIEW.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/relabel.h"
#include "insight/FlowPanel.h"
#include "review/AllColumnsPage.h"
#include "review/ColumnChooser.h"
#include "review/ComparePage.h"
#include "review/EventPanel.h"
#include "review/GamePage.h"
#include "review/PeriodFilter.h"
#include "review/ShotsPage.h"
#include "scorecard/CheckStrip.h"
#include "scorecard/GameDetailsPanel.h"
#include "scorecard/Scoreboard.h"
#include "scorecard/ScoreboardStrip.h"
#include "settings/Settings.h"
#include "storage/Placeholders.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QDataStream>
#include <QFileInfo>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTime>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kMargin = 8;
constexpr int kRowGap = 4;
constexpr int kMillisecondsPerSecond = 1000;

constexpr Text kPageTexts[] = {Text::GameCard,   Text::AllColumnsTab, Text::FlowTab,    Text::Shots,
                               Text::CompareTab, Text::Events,        Text::GameDetails};

} // namespace

frmVIEW::frmVIEW(ProfileStore& store, const Settings& settings, const Texts& texts, QWidget* parent)
    : ChildWindow(parent), m_store(store), m_settings(settings), m_texts(texts), m_notice(noticeLabel(this)),
      m_check(new CheckStrip(texts, this)), m_strip(new ScoreboardStrip(this)), m_tabs(new QTabBar(this)),
      m_where(new ElidedLabel(this)), m_filter(new PeriodFilter(texts, this)), m_box(new QToolButton(this)),
      m_columns(new QToolButton(this)), m_chooser(new ColumnChooser(texts, this)),
      m_escape(new QShortcut(Qt::Key_Escape, this)), m_pages(new QStackedWidget(this)),
      m_gamePage(new GamePage(settings, texts, m_pages)), m_all(new AllColumnsPage(settings, texts, m_pages)),
      m_flow(new FlowPanel(texts, m_pages)), m_shots(new ShotsPage(settings, texts, m_pages)),
      m_compare(new ComparePage(texts, m_pages)), m_events(new EventPanel(texts, m_pages)),
      m_details(new GameDetailsPanel(m_pages)) {
  setObjectName(QStringLiteral("frmVIEW"));
  m_timer.setObjectName(QStringLiteral("TimerCoach"));
  m_timer.setParent(this);
  m_timer.setTimerType(Qt::PreciseTimer);
  m_escape->setContext(Qt::WidgetWithChildrenShortcut);
  m_escape->setEnabled(false);
  addPages();

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kRowGap, kMargin, kRowGap);
  layout->setSpacing(kRowGap);
  layout->addWidget(m_notice);
  layout->addWidget(m_check);
  layout->addWidget(m_strip);
  layout->addWidget(makeBar());
  layout->addWidget(m_pages, 1);

  connectPages();
  relabelWindow();
}

frmVIEW::~frmVIEW() = default;

void frmVIEW::setFormulaReader(FormulaReader reader) {
  m_gamePage->setFormulaReader(std::move(reader));
}

void frmVIEW::setSeasonShots(SeasonShots shots) {
  m_shots->setSeasonShots(std::move(shots));
}

void frmVIEW::lookAtSeason() {
  if (m_game.hasGame() && m_pages->currentWidget() == m_shots)
    m_shots->showGame(m_game.shown());
}

void frmVIEW::addPages() {
  QWidget* const pages[] = {m_gamePage, m_all, m_flow, m_shots, m_compare, m_events, m_details};
  m_tabs->setObjectName(QStringLiteral("tabs"));
  m_tabs->setDrawBase(false);
  m_tabs->setExpanding(false);
  m_pages->setObjectName(QStringLiteral("pages"));
  for (QWidget* page : pages) {
    m_pages->addWidget(page);
    m_tabs->addTab(QString());
  }
}

QWidget* frmVIEW::makeBar() {
  m_columns->setObjectName(QStringLiteral("cmdCOLUMNS"));
  setTextNumber(*m_columns, Text::ColumnsButton);
  setToolTipNumber(*m_columns, Text::ColumnsTip);
  m_box->setObjectName(QStringLiteral("cmdBOX"));
  setTextNumber(*m_box, Text::StretchBox);
  m_box->hide();
  m_where->setObjectName(QStringLiteral("lblWHERE"));
  m_where->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  m_where->setForegroundRole(QPalette::PlaceholderText);
  auto* bar = new QWidget(this);
  auto* layout = new QHBoxLayout(bar);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kMargin);
  layout->addWidget(m_tabs);
  layout->addWidget(m_where, 1);
  layout->addWidget(m_filter);
  layout->addWidget(m_box);
  layout->addWidget(m_columns);
  return bar;
}

void frmVIEW::connectPages() {
  connect(&m_timer, &QTimer::timeout, this, &frmVIEW::refreshOnTimer);
  connect(m_tabs, &QTabBar::currentChanged, this, [this](int page) {
    m_pages->setCurrentIndex(page);
    showButtons();
    showPageInFront();
  });
  connect(m_filter, &PeriodFilter::asked, this, &frmVIEW::showStretch);
  connect(m_flow, &FlowPanel::stretchChosen, this, [this](const Stretch& chosen) { showStretch(chosen); });
  connect(m_flow, &FlowPanel::stretchCleared, this, [this] { showStretch(std::nullopt); });
  connect(m_flow, &FlowPanel::eventAsked, this, &frmVIEW::leadTo);
  connect(m_escape, &QShortcut::activated, this, [this] { showStretch(std::nullopt); });
  connect(m_box, &QToolButton::clicked, this, [this] { showPage(Page::Game); });
  connect(m_columns, &QToolButton::clicked, this,
          [this] { m_chooser->openBelow(*m_columns, m_gamePage->columns()); });
  connect(m_chooser, &ColumnChooser::chosen, this, [this](const CompactChoice& columns) {
    m_gamePage->setColumns(columns);
    if (columns == usualCompactColumns())
      m_gamePage->setWidths({});
    if (m_game.hasGame())
      m_gamePage->showGame(m_game);
  });
  connect(m_check, &CheckStrip::eventAsked, this, &frmVIEW::leadTo);
  connect(m_events, &EventPanel::eventChosen, this, [this](std::optional<std::uint32_t> event) {
    const auto place = event && m_game.hasGame() ? m_game.shownPlace(*event) : std::nullopt;
    m_all->highlight(place ? std::optional(static_cast<std::uint32_t>(*place)) : std::nullopt);
  });
  connect(m_all, &AllColumnsPage::shownAs, this, &frmVIEW::commandStateChanged);
  connect(m_all, &AllColumnsPage::copied, this, &frmVIEW::reportCopy);
  connect(m_gamePage, &GamePage::copied, this, &frmVIEW::reportCopy);
  connect(m_events, &EventPanel::copied, this, &frmVIEW::reportCopy);
}

void frmVIEW::reportCopy() {
  emit reported(caption(m_texts, Text::TableCopied));
}

void frmVIEW::leadTo(std::size_t event) {
  if (!m_game.shownPlace(event))
    showStretch(std::nullopt);
  showPage(Page::Events);
  m_events->choose(event);
}

const ScorecardView& frmVIEW::choice() const {
  return m_all->choice();
}

GameFileProblem frmVIEW::open(const QString& path) {
  const std::string file = fromQt(QFileInfo(path).absoluteFilePath());
  FileChange change(m_store.files(), file);
  change.remember();
  auto card = std::make_unique<Scorecard>(m_store, file);
  if (const GameFileProblem problem = card->load(); problem != GameFileProblem::None)
    return problem;
  m_card = std::move(card);
  m_change.emplace(std::move(change));
  m_problem = GameFileProblem::None;
  m_game.choose(std::nullopt);
  m_all->forgetGame();
  showGame(true);
  return GameFileProblem::None;
}

QString frmVIEW::path() const {
  return m_card == nullptr ? QString() : toQt(m_card->path());
}

void frmVIEW::refresh() {
  if (m_card == nullptr)
    return;
  readAgain();
  if (m_problem == GameFileProblem::None)
    emit reported(toQt(m_texts.withPlaceholder(
        Text::LastRefresh, fromQt(QTime::currentTime().toString(QStringLiteral("hh:mm:ss"))))));
}

void frmVIEW::refreshOnTimer() {
  if (m_card != nullptr && m_change->mayHaveChanged())
    readAgain();
}

void frmVIEW::readAgain() {
  m_change->remember();
  m_problem = m_card->load();
  if (m_problem == GameFileProblem::None)
    showGame(false);
  else
    showNotice();
}

void frmVIEW::setRefreshMode(RefreshMode mode) {
  m_refreshMode = mode;
  m_timer.stop();
  if (mode != RefreshMode::Manual) {
    m_timer.setInterval(static_cast<int>(mode) * kMillisecondsPerSecond);
    m_timer.start();
  }
  emit commandStateChanged();
}

void frmVIEW::showPage(Page page) {
  m_tabs->setCurrentIndex(static_cast<int>(page));
}

void frmVIEW::showStretch(const std::optional<Stretch>& stretch) {
  m_game.choose(stretch);
  if (m_game.hasGame())
    showPages();
}

void frmVIEW::setByLine(bool byLine) {
  showPage(Page::AllColumns);
  m_all->showAs(byLine ? BoxView::Lines : BoxView::Players, false);
}

bool frmVIEW::showsLeagueSheet() const {
  return m_all->showsLeagueSheet();
}

void frmVIEW::setShowsLeagueSheet(bool shows) {
  showPage(Page::AllColumns);
  m_all->showAs(BoxView::Players, shows);
}

void frmVIEW::setHidesMadeAttempted(bool hides) {
  showPage(Page::AllColumns);
  if (hides == hidesMadeAttempted())
    return;
  m_all->setHidesMadeAttempted(hides);
  emit commandStateChanged();
}

void frmVIEW::relabelWindow() {
  relabel(*this, m_texts);
  for (int page = 0; page < m_tabs->count(); ++page)
    m_tabs->setTabText(page, caption(m_texts, kPageTexts[page]));
  m_events->relabel();
  m_flow->relabelPanel();
  m_all->showHeaders();
  if (m_card != nullptr)
    showGame(false);
  else
    setWindowTitle(caption(m_texts, Text::ViewGameScorecard));
}

void frmVIEW::applyColours() {
  m_all->applyColours();
  m_gamePage->applyColours();
  m_flow->applyColours();
  m_shots->applyColours();
  showPageInFront();
  m_check->applyColours();
  for (QWidget* view : findChildren<QAbstractItemView*>())
    view->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"))->update();
}

QByteArray frmVIEW::arrangement() const {
  QByteArray state;
  QDataStream stream(&state, QIODevice::WriteOnly);
  stream << m_all->splitter().saveState() << QByteArray::fromStdString(textOfChoice(m_gamePage->columns()))
         << QByteArray::fromStdString(textOfWidths(m_gamePage->widths()));
  return state;
}

void frmVIEW::restoreArrangement(const QByteArray& state) {
  QDataStream stream(state);
  QByteArray parts;
  QByteArray columns;
  QByteArray widths; // not kept by older versions
  stream >> parts >> columns >> widths;
  m_all->splitter().restoreState(parts);
  m_gamePage->setColumns(choiceOfText(columns.toStdString()));
  m_gamePage->setWidths(widthsOfText(widths.toStdString()));
  if (m_game.hasGame())
    m_gamePage->showGame(m_game);
}

void frmVIEW::showGame(bool isNew) {
  m_game.show(m_card->counted());
  const Scoreboard board = scoreboard(*m_card->counted(), m_texts);
  setWindowTitle(asTitle(toQt(m_card->title())));
  m_strip->showBoard(board, m_texts);
  const GameDetails& details = m_card->game().details;
  m_where->setText(
      toQt(details.date + (details.date.empty() || details.place.empty() ? "" : " · ") + details.place));
  m_filter->showPeriods(board);
  m_details->showDetails(details, m_texts);
  m_flow->showGame(m_card->counted());
  m_events->showGame(m_card->game(), isNew);
  m_check->showFindings(*m_card);
  showPages();
  if (isNew)
    m_all->showHeaders();
  showNotice();
}

// What is of a stretch where one is chosen.
void frmVIEW::showPages() {
  const std::optional<Stretch>& stretch = m_game.stretch();
  QString words;
  if (stretch)
    words = toQt(withPlaceholders(m_texts.text(Text::StretchChip),
                                  stretchWords(m_game.whole()->game, *stretch, m_texts),
                                  scoreWords(*m_game.shown())));
  m_filter->showStretch(stretch, words);
  m_escape->setEnabled(stretch.has_value());
  showButtons();
  m_flow->showStretch(stretch);
  m_events->showStretch(stretch);
  m_gamePage->showGame(m_game);
  m_all->showGame(m_game.shown());
  showPageInFront();
}

// Those that the page in front has a use for.
void frmVIEW::showButtons() {
  m_columns->setVisible(m_pages->currentWidget() == m_gamePage);
  m_box->setVisible(m_pages->currentWidget() == m_flow && m_game.stretch().has_value());
}

// Pages that nothing else asks, only while they are looked at.
void frmVIEW::showPageInFront() {
  if (!m_game.hasGame())
    return;
  if (m_pages->currentWidget() == m_shots)
    m_shots->showGame(m_game.shown());
  else if (m_pages->currentWidget() == m_compare)
    m_compare->showGame(m_game);
}

void frmVIEW::showNotice() {
  QString notice;
  const std::string file = fromQt(QFileInfo(path()).fileName());
  if (m_problem != GameFileProblem::None) {
    notice = toQt(m_texts.withPlaceholder(
        m_problem == GameFileProblem::Absent ? Text::FileIsGone : Text::FileCannotBeReadNow, file));
  } else if (m_card != nullptr && m_card->outOfRange()) {
    const CountOutOfRange& count = *m_card->outOfRange();
    notice = toQt(withPlaceholders(m_texts.text(Text::CountOutOfRange), file,
                                   m_card->game().details.abbreviation[count.team] + ' ' + count.what));
  }
  m_notice->setText(notice);
  m_notice->setVisible(!notice.isEmpty());
}

} // namespace hooptab
