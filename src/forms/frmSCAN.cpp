#include "forms/frmSCAN.h"

#include "appearance/Dialogs.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "forms/DoubtList.h"
#include "forms/PictureSums.h"
#include "forms/ScanView.h"
#include "forms/ScannedTable.h"
#include "storage/Placeholders.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kGap = 6;
constexpr int kProgressWidth = 360;
constexpr int kSmallestPage = 300;
constexpr int kPageShare = 450; // of the width; the counts need no scrolling on a screen 1366 wide
constexpr int kCountShare = 900;
constexpr double kZoomStep = 1.25;
constexpr qsizetype kMostTold = 20; // pages in one message: it must fit on the screen

QToolButton* viewButton(const char* name, Text text, const QString& sign, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setText(sign);
  setToolTipNumber(*button, text);
  setAccessibleNumber(*button, text);
  return button;
}

// "12, 34": who or what, one behind the other.
template <class List, class Words>
QString joined(const List& list, Words words) {
  QStringList parts;
  for (const auto& part : list)
    parts << words(part);
  return parts.join(QStringLiteral(", "));
}

} // namespace

struct frmSCAN::Result {
  PageRefusal refusal;
  int pagesInFile = 0; // 0: not known
  std::shared_ptr<const GrayPicture> picture;
  FormReading reading;
};

frmSCAN::frmSCAN(ManualGame& game, const Settings& settings, const Texts& texts, Dialogs& dialogs,
                 QWidget* parent)
    : QWidget(parent), m_game(game), m_texts(texts), m_dialogs(dialogs),
      m_layout(std::make_shared<FormLayout>()) {
  setObjectName(QStringLiteral("frmSCAN"));
  m_pages = new QStackedWidget(this);
  m_pages->addWidget(makeProgressPage());
  m_pages->addWidget(makeSheetPage(settings));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_pages);
  connectEverything();
}

frmSCAN::~frmSCAN() {
  close();
}

// --- Its parts

QWidget* frmSCAN::makeProgressPage() {
  auto* page = new QWidget(m_pages);
  m_step = new PlainLabel(page);
  m_step->setObjectName(QStringLiteral("lblSTEP"));
  m_step->setAlignment(Qt::AlignCenter);
  m_progress = new QProgressBar(page);
  m_progress->setObjectName(QStringLiteral("prgSCAN"));
  m_progress->setFixedWidth(kProgressWidth);
  auto* layout = new QVBoxLayout(page);
  layout->addStretch();
  layout->addWidget(m_step);
  layout->addWidget(m_progress, 0, Qt::AlignCenter);
  layout->addWidget(
      iconButton("cmdSTOPSCAN", Text::CancelReading, Text::CancelWords, "closelivemanual", page), 0,
      Qt::AlignCenter);
  layout->addStretch();
  return page;
}

QWidget* frmSCAN::makeSheetPage(const Settings& settings) {
  m_sheetPage = new QWidget(m_pages);
  m_splitter = new QSplitter(m_sheetPage);
  m_splitter->setObjectName(QStringLiteral("splSCAN"));
  m_splitter->setChildrenCollapsible(false);
  m_splitter->addWidget(makePagePart());
  m_splitter->addWidget(makeCountPart(settings));
  m_splitter->setStretchFactor(0, 1);
  m_splitter->setStretchFactor(1, 1);
  m_splitter->setSizes({kPageShare, kCountShare});
  auto* layout = new QVBoxLayout(m_sheetPage);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_splitter);
  return m_sheetPage;
}

QWidget* frmSCAN::makePagePart() {
  auto* part = new QWidget(m_splitter);
  m_source = new ElidedLabel(part);
  m_source->setObjectName(QStringLiteral("lblPAGE"));
  auto* row = new QHBoxLayout;
  row->setSpacing(2);
  row->addWidget(m_source, 1);
  row->addWidget(viewButton("cmdZOOMOUT", Text::ZoomOut, QStringLiteral("−"), part));
  row->addWidget(viewButton("cmdZOOMIN", Text::ZoomIn, QStringLiteral("+"), part));
  row->addWidget(viewButton("cmdFITWIDTH", Text::PageWidth, QStringLiteral("↔"), part));
  row->addWidget(viewButton("cmdFITPAGE", Text::WholePage, QStringLiteral("▯"), part));
  m_view = new ScanView(part);
  m_view->setObjectName(QStringLiteral("picSCAN"));
  m_view->setMinimumWidth(kSmallestPage);
  setToolTipNumber(*m_view, Text::ViewWords);
  setAccessibleNumber(*m_view, Text::ViewWords);
  m_view->describeCells([this](std::size_t cell) { return cellWords(cell); });
  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(row);
  layout->addWidget(m_view, 1);
  return part;
}

QWidget* frmSCAN::makeCountPart(const Settings& settings) {
  auto* part = new QWidget(m_splitter);
  auto* title = new PlainLabel(part);
  setTextNumber(*title, Text::ScanResults);
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  m_teams = new QComboBox(part);
  m_teams->setObjectName(QStringLiteral("cmbFORMTEAM"));
  m_teams->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_teams->setMinimumContentsLength(18);
  auto* head = new QHBoxLayout;
  head->setSpacing(kGap);
  head->addWidget(title, 1);
  head->addWidget(captionFor(*m_teams, Text::TeamOfForm));
  head->addWidget(m_teams, 1);

  m_table = new ScannedTable(m_game, m_scanned, settings, m_texts, part);
  m_hint = new ElidedLabel(part);
  m_hint->setObjectName(QStringLiteral("lblSCANHINT"));
  m_doubts = new DoubtList(
      m_scanned.sheet, m_texts, [this](std::size_t cell) { return cellWords(cell); }, part);

  auto* layout = new QVBoxLayout(part);
  layout->setContentsMargins(kGap, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addLayout(head);
  layout->addWidget(m_table, 5);
  layout->addWidget(m_doubts, 2);
  layout->addWidget(m_hint);
  layout->addWidget(makeImportBox(part));
  return part;
}

QWidget* frmSCAN::makeImportBox(QWidget* parent) {
  auto* box = new QGroupBox(parent);
  box->setObjectName(QStringLiteral("fraIMPORT"));
  setTextNumber(*box, Text::ImportValues);
  setToolTipNumber(*box, Text::ImportWords);
  auto* words = new PlainLabel(box);
  setTextNumber(*words, Text::AddOrReplace);
  words->setWordWrap(true);
  words->setForegroundRole(QPalette::PlaceholderText);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(kGap);
  buttons->addWidget(iconButton("cmdRECALC", Text::Recalc, Text::RecalcWords, "undo", box));
  buttons->addWidget(iconButton("cmdVERIFY", Text::VerificationReport, Text::ReportWords, "liveprint", box));
  buttons->addStretch();
  m_skip = iconButton("cmdSKIP", Text::Skip, Text::SkipTip, "switch", box);
  buttons->addWidget(m_skip);
  buttons->addWidget(iconButton("cmdADDSCAN", Text::AddToTotals, Text::AddWords, "add", box));
  buttons->addWidget(iconButton("cmdREPLACESCAN", Text::ReplaceTotals, Text::ReplaceWords, "import", box));
  buttons->addWidget(
      iconButton("cmdCANCELSCAN", Text::CancelReading, Text::CancelWords, "closelivemanual", box));
  auto* layout = new QVBoxLayout(box);
  layout->setSpacing(2);
  layout->setContentsMargins(kGap, 2, kGap, kGap);
  layout->addWidget(words);
  layout->addLayout(buttons);
  return box;
}

void frmSCAN::connectEverything() {
  const auto onClick = [this](const char* name, auto act) {
    connect(findChild<QAbstractButton*>(QLatin1String(name)), &QAbstractButton::clicked, this, act);
  };
  onClick("cmdSTOPSCAN", [this] { leave(); });
  onClick("cmdCANCELSCAN", [this] { leave(); });
  onClick("cmdSKIP", [this] { readNext(); });
  onClick("cmdADDSCAN", [this] { import(ScannedTotals::Way::Add); });
  onClick("cmdREPLACESCAN", [this] { import(ScannedTotals::Way::Replace); });
  onClick("cmdRECALC", [this] { recount(); });
  onClick("cmdVERIFY", [this] { emit reportAsked(m_scanned, source()); });
  onClick("cmdZOOMIN", [this] { m_view->zoomBy(kZoomStep); });
  onClick("cmdZOOMOUT", [this] { m_view->zoomBy(1 / kZoomStep); });
  onClick("cmdFITWIDTH", [this] { m_view->fitWidth(); });
  onClick("cmdFITPAGE", [this] { m_view->fitPage(); });
  const auto onKey = [this](Qt::Key key, auto act) {
    auto* shortcut = new QShortcut(QKeySequence(key), this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, act);
  };
  onKey(Qt::Key_F3, [this] { m_doubts->goToOpen(DoubtList::From::Selected); });
  onKey(Qt::Key_Escape, [this] { leave(); });

  m_view->installEventFilter(m_doubts); // the same keys say on the page what a cell is
  connect(m_view, &ScanView::cellPressed, this, &frmSCAN::toggle);
  connect(m_teams, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (const auto team = sideOf(index))
      chooseTeam(*team);
  });
  connect(m_table, &ScannedTable::assigned, this, &frmSCAN::assign);
  connect(m_table, &ScannedTable::typed, this, &frmSCAN::showSheet);
  connect(m_table, &ScannedTable::refused, m_hint, &QLabel::setText);
  connect(m_table, &ScannedTable::cellsChosen, m_view, &ScanView::frame);
  connect(m_doubts, &DoubtList::cellChosen, m_view, &ScanView::goTo);
  connect(m_doubts, &DoubtList::judged, this, &frmSCAN::settleCurrent);
  connect(&m_task, &Task::progressed, this, &frmSCAN::showProgress);
  connect(&m_task, &Task::failed, this, [this] {
    if (m_task.isCancelled())
      return;                                             // nobody waits for that page any more
    m_reading->refusal = {PageRefusal::Reason::NoMemory}; // the file's other pages may need less
    m_reading->picture.reset();
    m_result = m_reading;
  });
  connect(&m_task, &Task::finished, this, &frmSCAN::takeResult);
}

// --- Reading page after page

void frmSCAN::read(const QStringList& files, Side team) {
  const bool isIdle = !m_isOpen;
  m_files += files;
  if (!isIdle)
    return showSheet();
  m_isOpen = true;
  m_team = team;
  m_imported = 0;
  m_page = 0;
  startReading();
}

int frmSCAN::pagesLeft() const {
  return m_files.isEmpty() ? 0 : static_cast<int>(m_files.size()) - 1 + std::max(m_pagesInFile - m_page, 1);
}

void frmSCAN::readNext() {
  forgetSheet();
  if (++m_page >= m_pagesInFile) {
    m_files.removeFirst();
    m_page = 0;
  }
  if (!m_files.isEmpty())
    return startReading();
  finish();
}

void frmSCAN::startReading() {
  if (m_page == 0)
    m_pagesInFile = 1; // until it is known
  m_pages->setCurrentIndex(0);
  m_step->setText(toQt(m_texts.text(Text::Reading)));
  m_progress->setRange(0, 0);
  m_result.reset();
  m_reading = std::make_shared<Result>();
  m_task.start([this, decoder = m_decoder, path = fromQt(m_files.first()), page = m_page,
                formLayout = m_layout, result = m_reading](const TaskWatch& watch) -> Task::Delivery {
    ScannedPage scanned = decoder.decode(path, page, watch);
    result->refusal = scanned.refusal;
    result->pagesInFile = scanned.pagesInFile;
    if (!scanned.picture.pixels.empty() && !watch.isCancelled()) {
      result->reading = FormReader(*formLayout).read(scanned.picture, watch);
      if (result->reading.quarters != 0)
        scanned.picture = turned(scanned.picture, result->reading.quarters);
      result->picture = std::make_shared<GrayPicture>(std::move(scanned.picture));
    }
    return [this, result] {
      if (!m_task.isCancelled())
        m_result = result;
    };
  });
}

// Before the page is decoded nothing is known.
void frmSCAN::showProgress(int percent, int whole) {
  if (whole == 0)
    return;
  m_step->setText(toQt(m_texts.text(Text::Extracting)));
  m_progress->setRange(0, whole);
  m_progress->setValue(percent);
}

void frmSCAN::takeResult() {
  if (!m_isOpen)
    return;
  if (m_result->pagesInFile > 0)
    m_pagesInFile = m_result->pagesInFile;
  if (m_result->picture == nullptr)
    return refuse(toQt(explained(m_result->refusal, m_texts)));
  if (const ScanProblem problem = m_result->reading.problem; textOf(problem) != Text::None) {
    const Text advice = adviceFor(problem);
    return refuse(toQt(m_texts.text(textOf(problem))) +
                  (advice == Text::None ? QString() : u". " + toQt(m_texts.text(advice))));
  }
  const PerSide<bool> teams = teamsOf(m_result->reading.identifier, m_game.details());
  if (!teams[Side::Visitor] && !teams[Side::Home]) {
    const auto nameOf = [this](Side team) {
      return m_game.details().abbreviation[team] + " - " + m_game.details().category[team];
    };
    return refuse(toQt(m_texts.text(Text::InvalidFormat)) + u'\n' +
                  toQt(m_texts.withPlaceholder(Text::FormOfOtherTeam,
                                               nameOf(Side::Visitor) + ", " + nameOf(Side::Home))));
  }
  const bool mayBeEither = teams[Side::Visitor] && teams[Side::Home];
  const Side team = mayBeEither ? m_team : teams[Side::Visitor] ? Side::Visitor : Side::Home;
  m_scanned = ScannedTotals(CheckedSheet(m_layout, m_result->reading), team, m_game.roster(team));
  m_teams->setEnabled(mayBeEither);
  m_view->showPage(m_result->picture, m_scanned.sheet);
  m_table->setCurrentIndex({});
  m_pages->setCurrentWidget(m_sheetPage);
  m_doubts->beginSheet();
  showSheet();
  if (m_doubts->isEmpty()) {
    m_view->setFocus();
  } else {
    m_doubts->takeFocus();
    m_doubts->goToOpen(DoubtList::From::Start);
  }
  tellRefusals();
}

void frmSCAN::refuse(const QString& reason) {
  const QString name = QFileInfo(m_files.first()).fileName();
  m_refusals << (m_pagesInFile == 1
                     ? name
                     : QStringLiteral("%1 (%2/%3)")
                           .arg(name, QString::number(m_page + 1), QString::number(m_pagesInFile))) +
                    u": " + reason;
  readNext();
}

// Once for all pages that follow one another: a file may have many that are no forms.
void frmSCAN::tellRefusals() {
  if (m_refusals.isEmpty())
    return;
  QString text = m_refusals.mid(0, kMostTold).join(u'\n');
  if (const qsizetype more = m_refusals.size() - kMostTold; more > 0)
    text += u'\n' + toQt(m_texts.withPlaceholder(Text::MoreRefused, std::to_string(more)));
  m_refusals.clear();
  m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)), text);
}

void frmSCAN::finish() {
  tellRefusals();
  const int imported = m_imported;
  close();
  emit finished(imported);
}

void frmSCAN::leave() {
  const int left = pagesLeft();
  const bool isInSight = m_pages->currentWidget() == m_sheetPage;
  const bool wouldLose = left > 1 || (isInSight && m_scanned.sheet.hasCorrections());
  if (wouldLose && !m_dialogs.ask(this, toQt(m_texts.text(Text::ImportValues)),
                                  toQt(m_texts.withPlaceholder(Text::LeavePages, std::to_string(left)))))
    return;
  finish();
}

void frmSCAN::beginGame() {
  close();
  forgetTaken();
}

void frmSCAN::forgetTaken() {
  m_taken.clear();
}

void frmSCAN::close() {
  m_task.cancel();
  m_isOpen = false;
  m_files.clear();
  m_refusals.clear();
  m_result.reset();
  forgetSheet();
}

// Whoever knows its cells by their places knows none from now on.
void frmSCAN::forgetSheet() {
  m_view->showNothing();
  m_scanned = {};
  m_doubts->beginSheet();
}

// --- What the user does

void frmSCAN::toggle(std::size_t cell) {
  settle(cell, !m_scanned.sheet.isTicked(cell));
}

void frmSCAN::settle(std::size_t cell, bool isTicked) {
  m_scanned.sheet.settle(cell, isTicked);
  m_scanned.match();
  showSheet();
}

// The cell that is framed on the page; after a doubtful one comes the next of them.
void frmSCAN::settleCurrent(bool isTicked) {
  const auto cell = m_view->currentCell();
  if (!cell)
    return;
  settle(*cell, isTicked);
  if (m_scanned.sheet.isDoubtful(*cell))
    m_doubts->goToOpen(DoubtList::From::Selected);
}

void frmSCAN::chooseTeam(Side team) {
  m_team = team;
  m_scanned.setTeam(team, m_game.roster(team));
  showSheet();
}

void frmSCAN::assign(int player, int choice) {
  m_scanned.assign(player, choice);
  showSheet();
}

void frmSCAN::recount() {
  m_scanned.sheet.recount();
  showSheet();
}

QString frmSCAN::concerns(const ScannedTotals::Outcome& outcome, ScannedTotals::Way way) const {
  QStringList lines;
  const auto isThis = [this](const CheckedSheet& taken) { return m_scanned.sheet.isOneWith(taken); };
  if (way == ScannedTotals::Way::Add && (outcome.isAgain || std::ranges::any_of(m_taken, isThis)))
    lines << toQt(m_texts.text(Text::AddedBefore));
  const auto add = [&](Text text, const QString& what) {
    lines << toQt(m_texts.withPlaceholder(text, fromQt(what)));
  };
  if (!m_scanned.sheet.hasMarks())
    lines << toQt(m_texts.text(Text::NoMark));
  if (const int open = m_scanned.sheet.openCells(); open > 0)
    add(Text::NobodyLooked, QString::number(open));
  if (!outcome.unknown.empty())
    add(Text::UnknownLeftOut, joined(outcome.unknown, [this](int player) { return playerWords(player); }));
  if (outcome.placedShotsGone > 0)
    add(Text::PlacedShotsGo, QString::number(outcome.placedShotsGone));
  if (!outcome.twice.empty())
    add(Text::TwiceOnForm,
        joined(outcome.twice, [this](int slot) { return toQt(m_scanned.roster().player(slot)->name); }));
  return lines.join(u'\n');
}

void frmSCAN::import(ScannedTotals::Way way) {
  const ScannedTotals::Outcome outcome = m_scanned.outcome(way, m_game.totals);
  const QString title = toQt(m_texts.text(Text::ImportValues));
  if (outcome.tooMany != ScannedTotals::kNobody) {
    return m_dialogs.warn(this, title,
                          toQt(withPlaceholders(m_texts.text(Text::CountTooGreat),
                                                m_scanned.roster().player(outcome.tooMany)->name,
                                                std::to_string(ManualTotals::kLargestCount))));
  }
  const QString questions = concerns(outcome, way);
  if (!questions.isEmpty() &&
      !m_dialogs.ask(this, title, questions + u"\n\n" + toQt(m_texts.text(Text::ImportAllTheSame))))
    return;
  m_game.totals = outcome.totals;
  m_taken.push_back(m_scanned.sheet);
  ++m_imported;
  emit imported(m_scanned.team());
  readNext();
}

// --- What is shown

void frmSCAN::showSheet() {
  if (!m_isOpen || m_scanned.sheet.cellCount() == 0)
    return;
  m_source->setText(source());
  m_skip->setVisible(pagesLeft() > 1);
  const QSignalBlocker quiet(m_teams);
  m_teams->clear();
  for (const Side team : kSides)
    m_teams->addItem(QStringLiteral("%1 - %2").arg(toQt(m_game.details().abbreviation[team]),
                                                   toQt(m_game.details().name[team])));
  m_teams->setCurrentIndex(numberOf(m_scanned.team()));
  m_hint->setText(m_scanned.sheet.hasMarks() ? QString() : toQt(m_texts.text(Text::NoMark)));
  m_table->showTotals();
  m_doubts->showDoubts();
  m_view->viewport()->update();
}

QString frmSCAN::source() const {
  QString words = QFileInfo(m_files.first()).fileName();
  if (m_pagesInFile > 1)
    words += u"   " + toQt(withPlaceholders(m_texts.text(Text::PageOf), std::to_string(m_page + 1),
                                            std::to_string(m_pagesInFile)));
  return words + u"   " +
         toQt(m_texts.withPlaceholder(Text::Sheet, std::to_string(m_scanned.sheet.identifier().sheet + 1)));
}

// "12 Ann Able"; of somebody whom the roster does not have his number, or his place on the sheet.
QString frmSCAN::playerWords(int player) const {
  if (const RosterPlayer* found = m_scanned.roster().player(m_scanned.slot(player)))
    return QStringLiteral("%1 %2").arg(toQt(found->jersey), toQt(found->name));
  const CheckedSheet::Jersey jersey = m_scanned.sheet.jersey(player);
  return jersey.number.empty() ? QStringLiteral("#%1").arg(player + 1) : toQt(jersey.number);
}

QString frmSCAN::cellWords(std::size_t index) const {
  const FormCell& cell = m_scanned.sheet.cell(index);
  const QString player = playerWords(cell.player);
  if (cell.kind == FormCell::Kind::JerseyDigit)
    return QStringLiteral("%1: %2 %3")
        .arg(player, caption(m_texts, kDigitPlaces[cell.place]), QString::number(cell.number));
  const auto kind = std::ranges::find(eventKinds(), cell.counter, &EventKind::counter);
  const QString sign = cell.kind == FormCell::Kind::Made     ? QStringLiteral(" ●")
                       : cell.kind == FormCell::Kind::Missed ? QStringLiteral(" ✕")
                                                             : QString();
  return QStringLiteral("%1: %2%3 %4")
      .arg(player, toQt(kind->shortName), sign, QString::number(cell.number + 1));
}

void frmSCAN::relabelPanel() {
  m_table->relabelTable();
  if (m_pages->currentWidget() == m_sheetPage)
    showSheet();
}

void frmSCAN::applyColours() {
  relabelPanel();
}

QByteArray frmSCAN::arrangement() const {
  return m_splitter->saveState();
}

void frmSCAN::restoreArrangement(const QByteArray& state) {
  m_splitter->restoreState(state);
}

} // namespace hooptab
