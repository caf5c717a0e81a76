#include "manual/frmMANUAL.h"

#include "appearance/Dialogs.h"
#include "appearance/ElidedLabel.h"
#include "appearance/Fields.h"
#include "appearance/Mnemonics.h"
#include "appearance/NoticeStrip.h"
#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "forms/frmSCAN.h"
#include "manual/ScoreCheck.h"
#include "manual/ShotPanel.h"
#include "manual/TotalsChange.h"
#include "manual/TotalsTable.h"
#include "settings/Settings.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFileInfo>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QStackedLayout>

#include <utility>

namespace hooptab {

namespace {

constexpr int kMostChanges = 500; // that can be taken back
constexpr int kMargin = 8;
constexpr int kTeamWidth = 240;
constexpr int kTableShare = 5; // of the window's width, and the shots' share
constexpr int kShotShare = 3;

} // namespace

frmMANUAL::frmMANUAL(ProfileStore& store, Settings& settings, const Texts& texts, Dialogs& dialogs,
                     QWidget* parent)
    : ChildWindow(parent), m_settings(settings), m_texts(texts), m_dialogs(dialogs), m_game(store),
      m_hold(new GameHold(store.files(), texts, dialogs, *this)),
      m_retry(m_game.pending(), store.files(), this), m_notice(noticeLabel(this)),
      m_banner(noticeLabel(this)) {
  setObjectName(QStringLiteral("frmMANUAL"));
  m_banner->setObjectName(QStringLiteral("lblNOTONDISK"));
  m_changes.setUndoLimit(kMostChanges);
  m_foreign = new NoticeStrip("picFOREIGN", this);
  m_pages = new QStackedLayout;
  m_pages->addWidget(makeTotalsPage());
  m_forms = new frmSCAN(m_game, settings, m_texts, m_dialogs, this);
  m_pages->addWidget(m_forms);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addWidget(m_banner);
  layout->addWidget(m_notice);
  layout->addWidget(m_foreign);
  layout->addLayout(m_pages, 1);
  connectEverything();
}

QWidget* frmMANUAL::makeTotalsPage() {
  auto* page = new QWidget(this);
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kMargin);
  layout->addWidget(makeHead(page)); // made in the order of the Tab key
  layout->addWidget(makePlayerBar(page));
  m_table = new TotalsTable(m_game, m_settings, m_texts, page);
  m_shots = new ShotPanel(m_game, m_settings, m_texts, page);
  auto* parts = new QHBoxLayout;
  parts->setSpacing(2 * kMargin);
  parts->addWidget(m_table, kTableShare);
  parts->addWidget(m_shots, kShotShare);
  layout->addLayout(parts, 1);
  return page;
}

QWidget* frmMANUAL::makeHead(QWidget* page) {
  auto* head = new QWidget(page);
  m_teams = new QComboBox(head);
  m_teams->setObjectName(QStringLiteral("cmbTEAM"));
  m_teams->setFixedWidth(kTeamWidth);
  setAccessibleNumber(*m_teams, Text::TeamEntered);
  setToolTipNumber(*m_teams, Text::TeamEntered);
  m_score = new ScoreCheck(m_game, m_texts, head);
  auto* layout = new QHBoxLayout(head);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kMargin);
  layout->addWidget(m_teams);
  layout->addWidget(m_score);
  layout->addStretch();
  layout->addWidget(iconButton("cmdUNDO", Text::Undo, Text::UndoTip, "undo", head));
  layout->addWidget(iconButton("cmdREDO", Text::Redo, Text::RedoTip, "redo", head));
  layout->addWidget(iconButton("cmdFORM", Text::OpenForm, Text::OpenScannedForm, "openform", head));
  layout->addWidget(iconButton("cmdZERO", Text::ResetToZero, Text::SetAllToZero, "clear", head));
  return head;
}

QWidget* frmMANUAL::makePlayerBar(QWidget* page) {
  auto* bar = new QWidget(page);
  m_entry = new PlainLabel(bar); // never shown: which slot is worked on
  m_entry->setObjectName(QStringLiteral("lblID"));
  m_entry->hide();
  m_player = new ElidedLabel(bar);
  m_player->setObjectName(QStringLiteral("lblNom"));
  Theme::setType(*m_player, Type::Count, QFont::Bold);
  m_hint = new ElidedLabel(bar);
  m_hint->setObjectName(QStringLiteral("lblHINT"));
  m_hint->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* layout = new QHBoxLayout(bar);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kMargin);
  layout->addWidget(iconButton("cmdNEXT", Text::Next, Text::NextEntry, "switch", bar));
  layout->addWidget(m_player, 1);
  layout->addWidget(m_hint, 2);
  return bar;
}

void frmMANUAL::connectEverything() {
  connect(m_teams, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (const auto team = sideOf(index))
      chooseTeam(*team);
  });
  const auto onClick = [this](const char* name, auto act) {
    connect(findChild<QPushButton*>(QLatin1String(name)), &QPushButton::clicked, this, act);
  };
  onClick("cmdNEXT", [this] { m_table->nextPage(); });
  onClick("cmdFORM", [this] { openForms(); });
  onClick("cmdZERO", [this] { clearTeam(); });
  onClick("cmdUNDO", [this] { go(Step::Undo); });
  onClick("cmdREDO", [this] { go(Step::Redo); });
  const auto onKey = [this](Qt::Key key, Step step) {
    auto* shortcut =
        new QShortcut(Qt::CTRL | key, m_pages->widget(0), nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    shortcut->setAutoRepeat(false); // a key that is held must not take back all of it
    connect(shortcut, &QShortcut::activated, this, [this, step] { go(step); });
  };
  onKey(Qt::Key_Z, Step::Undo);
  onKey(Qt::Key_Y, Step::Redo);
  connect(m_forms, &frmSCAN::imported, this, &frmMANUAL::import);
  connect(m_forms, &frmSCAN::finished, this, &frmMANUAL::endForms);
  connect(m_forms, &frmSCAN::reportAsked, this, &frmMANUAL::scanReportAsked);
  connect(m_table, &TotalsTable::pageAsked, this, [this] { m_table->nextPage(); });
  connect(m_table, &TotalsTable::playerChanged, this, &frmMANUAL::showPlayer);
  connect(m_table, &TotalsTable::totalsChanged, this, [this] { keepChange(m_player->text()); });
  connect(m_table, &TotalsTable::typedRefused, this, &frmMANUAL::showRefusal);
  connect(m_shots, &ShotPanel::totalsChanged, this, [this] { keepChange(m_player->text()); });
  connect(m_shots, &ShotPanel::playerMissing, this,
          [this] { showHint(caption(m_texts, Text::ChoosePlayer), Theme::missed()); });
  connect(&m_retry, &WriteRetry::due, this, &frmMANUAL::settle);
  connect(&m_retry, &WriteRetry::waits, this, &frmMANUAL::showBanner);
  connect(&m_retry, &WriteRetry::allIsOnDisk, this, &frmMANUAL::showBanner);
  connect(m_hold, &GameHold::fileChanged, this, &frmMANUAL::settle);
  connect(m_hold, &GameHold::taken, this, [this] { (void)open(path()); });
}

void frmMANUAL::settle() {
  const bool waited = !m_game.isOnDisk();
  if (m_game.settle() && waited)
    emit saved();
  showDisk();
}

bool frmMANUAL::open(const QString& path, GameLock lock) {
  const GameHold::Access access = m_hold->request(path, std::move(lock));
  m_problem = m_game.open(fromQt(QFileInfo(path).absoluteFilePath()), access == GameHold::Access::Ours
                                                                          ? ManualGame::Access::Entering
                                                                          : ManualGame::Access::Reading);
  if (m_problem != GameFileProblem::None) {
    m_hold->drop();
    return false;
  }
  m_hold->keep();
  m_isHeldElsewhere = access == GameHold::Access::HeldElsewhere;
  m_foreign->hide();
  if (access == GameHold::Access::Ours) {
    m_game.setOwnership([this] { return m_hold->isStillOurs(); });
    if (m_hold->lock().names() > 1)
      m_dialogs.inform(this, toQt(m_texts.text(Text::WarningTitle)),
                       toQt(m_texts.withPlaceholder(Text::OtherNames, m_hold->lock().game())));
  }
  m_before = m_game.totals;
  m_changes.clear();
  m_score->beginGame();
  m_forms->beginGame(); // its pages were for the game before
  endForms(0);
  relabelWindow();
  chooseTeam(Side::Visitor);
  m_table->setFocus();
  return true;
}

bool frmMANUAL::writeCopy(const QString& path) {
  return m_table->takeTyped() && m_game.writeCopy(fromQt(path));
}

QString frmMANUAL::path() const {
  return toQt(m_game.path());
}

// --- What the user does

void frmMANUAL::chooseTeam(Side team) {
  m_team = team;
  const QSignalBlocker quiet(m_teams);
  m_teams->setCurrentIndex(numberOf(team));
  m_table->setTeam(team);
  showTotals();
}

void frmMANUAL::clearTeam() {
  m_table->takeTyped();
  if (m_game.isForReading() ||
      !m_dialogs.ask(this, toQt(m_texts.text(Text::WarningTitle)),
                     toQt(m_texts.withPlaceholder(Text::ClearTeam, fromQt(m_teams->currentText())))))
    return;
  m_game.totals.clear(m_team);
  m_forms->forgetTaken();
  keepChange(caption(m_texts, Text::ResetToZero));
}

void frmMANUAL::import(Side team) {
  chooseTeam(team);
  keepChange(caption(m_texts, Text::ImportValues));
}

void frmMANUAL::keepChange(const QString& words) {
  if (m_before != m_game.totals)
    m_changes.push(new TotalsChange(m_game.totals, std::exchange(m_before, m_game.totals), m_team, words));
  showTotals();
}

void frmMANUAL::go(Step step) {
  if (!m_table->takeTyped()) // what is being typed is a change too
    return;
  const bool isBack = step == Step::Undo;
  const int index = isBack ? m_changes.index() - 1 : m_changes.index();
  const auto* change = static_cast<const TotalsChange*>(m_changes.command(index));
  if (change == nullptr)
    return;
  isBack ? m_changes.undo() : m_changes.redo();
  m_forms->forgetTaken();
  m_before = m_game.totals;
  if (change->team() != m_team)
    chooseTeam(change->team());
  showTotals();
  showHint(
      toQt(m_texts.withPlaceholder(isBack ? Text::TakenBack : Text::MadeOnceMore, fromQt(change->text()))),
      Theme::muted());
}

void frmMANUAL::openForms() {
  if (m_game.isForReading() || !m_table->takeTyped())
    return;
  const auto text = [this](Text which) { return toQt(m_texts.text(which)); };
  const QStringList files =
      m_dialogs.chooseFiles(this, text(Text::SelectForm), toQt(m_settings.lastScanFolder),
                            fileFilter(text(Text::EveryScanFilter) + u'|' + text(Text::ScanFilter) + u'|' +
                                       text(Text::MoreScanFilters)));
  if (files.isEmpty())
    return;
  m_settings.lastScanFolder = fromQt(QFileInfo(files.first()).absolutePath());
  m_pages->setCurrentWidget(m_forms);
  m_forms->read(files, m_team);
}

void frmMANUAL::endForms(int imported) {
  m_pages->setCurrentIndex(0);
  showTotals();
  m_table->setFocus();
  if (imported > 0)
    showHint(toQt(m_texts.withPlaceholder(Text::FormsImported, std::to_string(imported))), Theme::made());
}

void frmMANUAL::save() {
  if (!m_table->takeTyped())
    return;
  if (m_game.save()) {
    emit saved();
    emit reported(toQt(m_texts.withPlaceholder(Text::TotalsSaved, fromQt(QFileInfo(path()).fileName()))));
  }
  showTotals();
}

bool frmMANUAL::mayClose() {
  if (!m_table->takeTyped())
    return false;
  if (const int left = m_forms->pagesLeft();
      left > 0 && !m_dialogs.ask(this, toQt(m_texts.text(Text::WarningTitle)),
                                 toQt(m_texts.withPlaceholder(Text::LeavePages, std::to_string(left)))))
    return false;
  if (!m_game.isSaved()) {
    const QString question =
        toQt(m_texts.withPlaceholder(Text::SaveFirst, fromQt(QFileInfo(path()).fileName())));
    switch (m_dialogs.askToSave(this, toQt(m_texts.text(Text::WarningTitle)), question)) {
    case SaveChoice::Stay: return false;
    case SaveChoice::Save: save(); break;
    case SaveChoice::Discard: break;
    }
  }
  if (m_game.settle())
    return true;
  showDisk();
  return m_dialogs.ask(this, toQt(m_texts.text(Text::ErrorTitle)),
                       caption(m_texts, Text::LeaveUnsavedTotals));
}

// --- What is shown

void frmMANUAL::showTotals() {
  showChanges();
  m_table->showTotals();
  m_score->showPoints();
  showPlayer();
  showDisk();
}

void frmMANUAL::showChanges() {
  findChild<QPushButton*>(QStringLiteral("cmdUNDO"))->setEnabled(m_changes.canUndo());
  findChild<QPushButton*>(QStringLiteral("cmdREDO"))->setEnabled(m_changes.canRedo());
}

void frmMANUAL::showPlayer() {
  const int slot = m_table->player();
  const RosterPlayer* player = m_game.roster(m_team).player(slot);
  m_entry->setText(QString::number(slot));
  m_player->setText(
      player == nullptr ? QString() : QStringLiteral("%1  %2").arg(toQt(player->jersey), toQt(player->name)));
  m_shots->showShots(m_team, slot);
  if (player == nullptr)
    return showHint(caption(m_texts, Text::ChoosePlayer), Theme::muted());
  showHint({}, Theme::muted());
}

void frmMANUAL::showRefusal(ManualTotals::Typed reason, const ManualColumn& column) {
  const ManualSlot& slot = m_game.totals.slot(m_team, m_table->player());
  const int made = slot.counts()[kindOf(column.code)->counter];
  QString text;
  if (reason == ManualTotals::Typed::UnderMade)
    text = toQt(m_texts.withPlaceholder(Text::UnderMade, std::to_string(made)));
  else if (reason == ManualTotals::Typed::UnderPlaced)
    text = caption(m_texts, Text::UnderPlaced);
  else
    text = toQt(m_texts.withPlaceholder(Text::CountRange, std::to_string(ManualTotals::kLargestCount)));
  showHint(text, Theme::missed());
}

void frmMANUAL::showHint(const QString& text, const QColor& colour) {
  m_hint->setText(text);
  QPalette colours;
  colours.setColor(QPalette::WindowText, colour);
  m_hint->setPalette(colours);
}

void frmMANUAL::showTeams() {
  const QSignalBlocker quiet(m_teams);
  m_teams->clear();
  for (const Side team : kSides) {
    const GameDetails& details = m_game.details();
    m_teams->addItem(
        QStringLiteral("%1 - %2").arg(toQt(details.abbreviation[team]), toQt(details.name[team])));
  }
  m_teams->setCurrentIndex(numberOf(m_team));
}

QString frmMANUAL::diskWords() const {
  if (m_isHeldElsewhere)
    return toQt(m_texts.withPlaceholder(Text::HeldElsewhere, fromQt(m_hold->ownerWords())));
  if (m_game.isForReading())
    return toQt(m_texts.withPlaceholder(Text::ForReadingOnly, m_game.path()));
  if (m_game.isLost())
    return toQt(m_texts.withPlaceholder(Text::TotalsTakenOver, fromQt(m_hold->ownerWords())));
  return m_game.isOnDisk() ? QString() : caption(m_texts, Text::TotalsNotOnDisk);
}

void frmMANUAL::tellForeignHands() {
  const ManualGame::ForeignHands hands = m_game.takeForeignHands();
  if (!hands.isRewritten && !hands.gaveWay)
    return;
  std::string words(m_texts.text(hands.isRewritten ? Text::FileRewritten : Text::TotalsStand));
  if (!hands.keptAs.empty())
    words += ' ' + m_texts.withPlaceholder(Text::KeptAs, hands.keptAs);
  m_foreign->tell(toQt(words));
}

void frmMANUAL::showBanner() {
  const QString words = diskWords();
  m_banner->setText(words);
  showReason(*m_banner, m_retry.reason(m_texts));
  m_banner->setVisible(!words.isEmpty());
}

void frmMANUAL::showDisk() {
  tellForeignHands();
  m_retry.refresh();
  findChild<QPushButton*>(QStringLiteral("cmdFORM"))->setEnabled(!m_game.isForReading());
  const GameDetails& details = m_game.details();
  const auto points = [this](Side team) { return QString::number(pointsOf(m_game.totals.teamCounts(team))); };
  const QString title =
      QStringLiteral("%1 - %2 %3 - %4 %5")
          .arg(toQt(m_texts.text(Text::ManualTitle)), toQt(details.abbreviation[Side::Visitor]),
               points(Side::Visitor), points(Side::Home), toQt(details.abbreviation[Side::Home]));
  setWindowTitle(asTitle(title) + QStringLiteral("[*]"));
  setWindowModified(!m_game.isSaved());
}

void frmMANUAL::relabelWindow() {
  relabel(*this, m_texts);
  showTeams();
  const std::size_t beside = m_game.totals.linesBeside();
  m_notice->setText(toQt(m_texts.withPlaceholder(Text::LinesBeside, std::to_string(beside))));
  m_notice->setVisible(beside > 0);
  m_table->relabelTable();
  m_shots->relabelPanel();
  m_forms->relabelPanel();
  giveMnemonics(*this);
  applyColours();
  showTotals();
}

void frmMANUAL::applyColours() {
  QPalette colours = m_banner->palette();
  colours.setColor(QPalette::Highlight, Theme::missed());
  colours.setColor(QPalette::HighlightedText, textOn(Theme::missed()));
  m_banner->setPalette(colours);
  m_foreign->applyColours();
  m_table->applyColours();
  m_shots->applyColours();
  m_forms->applyColours();
  m_score->showPoints();
}

QByteArray frmMANUAL::arrangement() const {
  return m_forms->arrangement();
}

void frmMANUAL::restoreArrangement(const QByteArray& state) {
  m_forms->restoreArrangement(state);
}

} // namespace hooptab
