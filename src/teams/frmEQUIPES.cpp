#include "teams/frmEQUIPES.h"

#include "appearance/Card.h"
#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "teams/PlayerDelegate.h"
#include "teams/PlayerEditor.h"
#include "teams/PlayerTableModel.h"
#include "teams/TeamColours.h"
#include "teams/TeamDelegate.h"
#include "teams/TeamFields.h"
#include "teams/TeamList.h"

#include <QBoxLayout>
#include <QFrame>
#include <QHeaderView>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>
#include <algorithm>

namespace hooptab {

namespace {

Text textOf(TeamSheet::Problem problem) {
  switch (problem) {
  case TeamSheet::Problem::NoJersey: return Text::InvalidNumber;
  case TeamSheet::Problem::NoPosition: return Text::NoPositionChosen;
  case TeamSheet::Problem::NoName: return Text::NoName;
  case TeamSheet::Problem::TooLong: return Text::PlayerTooLong;
  case TeamSheet::Problem::None: break;
  }
  return Text::None;
}

constexpr int kLeastRows = 6; // of the table that stay in sight, its head among them

} // namespace

frmEQUIPES::frmEQUIPES(TeamStore& teams, const Texts& texts, Dialogs& dialogs, QWidget* parent)
    : ChildWindow(parent), m_teams(teams), m_texts(texts), m_dialogs(dialogs),
      m_exchange(teams.store().files(), texts, dialogs),
      m_list(new TeamList(QStringLiteral("lstequipes"), QStringLiteral(" - "), this)),
      m_model(new PlayerTableModel(m_sheet, texts, this)), m_notice(noticeLabel(this)) {
  setObjectName(QStringLiteral("frmEQUIPES"));
  setTextNumber(*this, Text::TeamManagement);

  auto* content = new QWidget;
  m_editor = new QVBoxLayout(content);
  m_editor->setContentsMargins(0, 0, 0, 0);
  m_editor->addWidget(m_notice);
  m_fields = new TeamFields(teams, texts, this);
  m_editor->addWidget(m_fields);
  m_editor->addWidget(makePlayers(), 1);
  // What a large zoom leaves no room for is a turn of the wheel away.
  auto* scroll = new QScrollArea(this);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(content);
  scroll->viewport()->setAutoFillBackground(false);
  content->setAutoFillBackground(false);
  m_whole = new QHBoxLayout(this);
  m_whole->addWidget(makeTeams());
  m_whole->addWidget(scroll, 1);

  connectEverything();
  selectOnFocus(*this);
  relabelWindow();
  applyColours();
  listTeams();
}

QLabel* frmEQUIPES::title(Text text, QWidget* parent) {
  auto* label = new PlainLabel(parent);
  setTextNumber(*label, text);
  m_titles.push_back(label);
  return label;
}

QWidget* frmEQUIPES::makeTeams() {
  m_teamsCard = new Card(this);
  auto* layout = new QVBoxLayout(m_teamsCard);
  layout->addWidget(title(Text::TeamList, m_teamsCard));
  layout->addWidget(iconButton("cmdAJOUTEREQUIPE", Text::AddTeam, Text::AddTeam, "add", this));
  layout->addWidget(m_list, 1);
  layout->addWidget(iconButton("cmdEFFACEREQUIPE", Text::DeleteTeam, Text::DeleteTeam, "delete", this));
  m_list->list().setFrameShape(QFrame::NoFrame);
  m_list->list().setItemDelegate(new TeamDelegate(&m_list->list()));
  return m_teamsCard;
}

QWidget* frmEQUIPES::makePlayers() {
  auto* card = new Card(this);
  m_table = new QTableView(card);
  m_table->setObjectName(QStringLiteral("lvwJOUEURS"));
  setAccessibleNumber(*m_table, Text::PlayersList);
  m_table->setModel(m_model);
  m_table->setFrameShape(QFrame::NoFrame);
  m_table->setShowGrid(false);
  m_table->setItemDelegate(new PlayerDelegate(m_table));
  m_table->setColumnHidden(static_cast<int>(PlayerColumn::PositionIndex), true);
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setTabKeyNavigation(false);
  m_table->setWordWrap(false);
  m_table->verticalHeader()->hide();
  QHeaderView& header = *m_table->horizontalHeader();
  header.setSectionsClickable(true);
  header.setHighlightSections(false);
  header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  constexpr int kWidths[kPlayerColumns] = {70, 260, 100, 50, 90, 90, 70, 120};
  for (int column = 0; column < kPlayerColumns; ++column)
    header.resizeSection(column, Theme::measure()(kWidths[column]));
  header.setStretchLastSection(true);
  header.setSortIndicatorShown(true);
  header.setSortIndicator(-1, Qt::AscendingOrder); // the file's order

  m_count = new PlainLabel(card);
  m_count->setObjectName(QStringLiteral("lblCOUNT"));
  m_count->setForegroundRole(QPalette::PlaceholderText);
  m_playersHead = new QHBoxLayout;
  m_playersHead->addWidget(title(Text::PlayersList, card));
  m_playersHead->addWidget(m_count);
  m_playersHead->addStretch();
  m_playersHead->addWidget(iconButton("cmdIMPORT", Text::Import, Text::ImportTip, "import", this));
  m_playersHead->addWidget(iconButton("cmdPASTE", Text::Paste, Text::PasteTip, "copy", this));
  m_playersHead->addWidget(iconButton("cmdEXPORT", Text::ExportTeams, Text::ExportTip, "export", this));
  m_playersHead->addWidget(iconButton("cmdPRINT", Text::Print, Text::PrintTip, "vwprint", this));
  auto* layout = new QVBoxLayout(card);
  layout->setContentsMargins(1, 0, 1, 0); // beside the card's border
  layout->setSpacing(0);
  layout->addLayout(m_playersHead);
  layout->addWidget(m_table, 1);
  m_player = new PlayerEditor(m_sheet, m_texts, card); // the last of the tab order
  layout->addWidget(m_player);
  return card;
}

void frmEQUIPES::connectEverything() {
  const auto onClick = [this](const char* name, auto method) {
    connect(findChild<QPushButton*>(QLatin1String(name)), &QPushButton::clicked, this, method);
  };
  onClick("cmdAJOUTEREQUIPE", &frmEQUIPES::addTeam);
  onClick("cmdEFFACEREQUIPE", &frmEQUIPES::deleteTeam);
  onClick("cmdIMPORT", [this] { takePlayers(&frmEQUIPES::importPlayers); });
  onClick("cmdPASTE", [this] { takePlayers(&frmEQUIPES::pastePlayers); });
  onClick("cmdEXPORT", &frmEQUIPES::exportPlayers);
  onClick("cmdPRINT", [this] {
    if (team() == nullptr)
      return m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)),
                                toQt(m_texts.text(Text::SelectTeamFirst)));
    emit printAsked(m_fields->record(), m_sheet.players());
  });
  connect(m_fields, &TeamFields::saveAsked, this, &frmEQUIPES::saveTeam);
  connect(m_fields, &TeamFields::colourAsked, this, &frmEQUIPES::chooseColour);
  connect(m_fields, &TeamFields::coloured, this, [this] {
    showTeamColour(*m_table, m_fields->hasTeam() ? m_fields->colour() : palette().color(QPalette::Base));
  });
  connect(m_player, &PlayerEditor::addAsked, this, &frmEQUIPES::addPlayer);
  connect(m_player, &PlayerEditor::deleteAsked, this, &frmEQUIPES::deletePlayer);
  connect(m_player, &PlayerEditor::clearAsked, this, &frmEQUIPES::clearPlayer);
  connect(m_list, &TeamList::chosen, this, &frmEQUIPES::changeTeam);
  whenSelected(*m_table, [this] { selectPlayer(); });
  connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, &frmEQUIPES::sortPlayers);

  auto* remove = new QShortcut(QKeySequence::Delete, m_table);
  remove->setContext(Qt::WidgetShortcut);
  connect(remove, &QShortcut::activated, this, &frmEQUIPES::deletePlayer);
  auto* pasteKey = new QShortcut(QKeySequence::Paste, m_table);
  pasteKey->setContext(Qt::WidgetShortcut);
  connect(pasteKey, &QShortcut::activated, this, [this] { takePlayers(&frmEQUIPES::pastePlayers); });
}

const TeamEntry* frmEQUIPES::team() const {
  return m_position < 0 ? nullptr : &m_entries[static_cast<std::size_t>(m_position)];
}

bool frmEQUIPES::isReadOnly() const {
  return team() != nullptr && !team()->isEditable();
}

void frmEQUIPES::listTeams() {
  m_entries = m_teams.list();
  m_list->setTeams(m_entries);
  showTeam(newestTeam(m_entries, m_texts));
}

void frmEQUIPES::changeTeam(int position) {
  if (position == m_position)
    return;
  // A player who was typed before any team was chosen is for the first one.
  const PlayerFields typed = m_player->fields();
  if (team() == nullptr) {
    showTeam(position);
    m_player->show({});
    m_player->type(typed);
  } else if (mayLeaveTeam()) {
    showTeam(position);
  } else {
    m_list->setPosition(m_position);
  }
}

void frmEQUIPES::showTeam(int position) {
  m_position = position;
  m_list->setPosition(position);
  const TeamEntry* entry = team();
  m_sheet.load(entry == nullptr ? std::vector<TeamPlayer>() : m_teams.players(entry->key));
  if (entry == nullptr)
    m_fields->clear();
  else
    m_fields->show(m_teams.read(entry->key));
  m_loadedTeam = m_fields->record();
  m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder); // the file's order
  m_player->setHasTeam(entry != nullptr);
  m_player->show({});
  showPlayers();

  const bool canChange = !isReadOnly();
  for (const char* name : {"cmdEFFACEREQUIPE", "cmdIMPORT", "cmdPASTE"})
    findChild<QPushButton*>(QLatin1String(name))->setEnabled(canChange);
  m_fields->setEditable(canChange);
  m_player->setEditable(canChange);
  showNotice();
}

void frmEQUIPES::showNotice() {
  m_notice->setVisible(isReadOnly());
  if (isReadOnly())
    m_notice->setText(toQt(m_texts.withPlaceholder(Text::ReadOnly, team()->key)));
}

void frmEQUIPES::showPlayers() {
  m_model->changed();
  m_count->setText(
      toQt(m_texts.withPlaceholder(Text::PlayerCount, std::to_string(m_sheet.players().size()))));
}

void frmEQUIPES::addTeam() {
  if (!mayLeaveTeam())
    return;
  const std::optional<int> id = m_teams.create(m_texts);
  if (!id)
    return tellNotWritten();
  tellSaved();
  listTeams();
  const auto made = std::ranges::find(m_entries, *id, &TeamEntry::id);
  if (made != m_entries.end())
    showTeam(static_cast<int>(made - m_entries.begin()));
  m_fields->focusAbbreviation();
}

bool frmEQUIPES::saveTeam() {
  if (team() == nullptr || isReadOnly())
    return false;
  m_fields->takeStoredForm();
  const TeamRecord record = m_fields->record();
  if (!fitsInValue(teamValue(record, m_teams.settings().statisticLabel))) {
    warn(caption(m_texts, Text::TeamTooLong));
    m_fields->focusName();
    return false;
  }
  if (const std::string number = m_sheet.repeatedNumber(); !number.empty()) {
    warn(toQt(m_texts.withPlaceholder(Text::RepeatedNumber, number)));
    m_player->focusNumber();
    return false;
  }
  if (!m_teams.save(team()->id, record, m_sheet.players())) {
    tellNotWritten();
    return false;
  }
  m_loadedTeam = record;
  takeWritten();
  tellSaved(toQt(m_texts.withPlaceholder(Text::TeamSaved, record.abbreviation)));
  return true;
}

// The sheet and the list as the file has them now; the fields stay.
void frmEQUIPES::takeWritten() {
  TeamEntry& entry = m_entries[static_cast<std::size_t>(m_position)];
  m_sheet.load(m_teams.players(entry.key));
  entry.abbreviation = m_loadedTeam.abbreviation;
  entry.category = m_loadedTeam.category;
  entry.name = m_loadedTeam.name;
  entry.colour = m_loadedTeam.colour();
  entry.players = m_sheet.players().size();
  m_list->setTeam(m_position, entry);
  showPlayers();
}

void frmEQUIPES::deleteTeam() {
  if (team() == nullptr)
    return m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)),
                              toQt(m_texts.text(Text::SelectTeamFirst)));
  if (isReadOnly() ||
      !m_dialogs.ask(this, toQt(m_texts.text(Text::WarningTitle)), toQt(m_texts.text(Text::ReallyDelete))))
    return;
  if (!m_teams.remove(team()->id))
    return tellNotWritten();
  tellSaved();
  listTeams();
}

bool frmEQUIPES::addPlayer() {
  if (team() == nullptr) {
    m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)), toQt(m_texts.text(Text::SelectTeamFirst)));
    return false;
  }
  if (isReadOnly())
    return false;
  const PlayerFields fields = m_player->fields();
  if (const auto problem = TeamSheet::problem(fields); problem != TeamSheet::Problem::None) {
    warn(toQt(m_texts.text(textOf(problem))));
    m_player->focusOn(problem);
    return false;
  }
  const std::size_t before = m_sheet.players().size();
  TeamSheet changed = m_sheet;
  const int row = changed.put(fields);
  if (row < 0) {
    warn(toQt(m_sheet.announcement(fields, m_texts)));
    m_player->focusNumber();
    return false;
  }
  if (const std::string number = changed.repeatedNumber(); !number.empty()) {
    warn(toQt(m_texts.withPlaceholder(Text::RepeatedNumber, number)));
    m_player->focusNumber();
    return false;
  }
  if (!m_teams.savePlayers(team()->id, changed.players())) {
    tellNotWritten();
    return false;
  }
  tellSaved();
  const TeamPlayer written = changed.players()[static_cast<std::size_t>(row)];
  takeWritten();
  showRow(written);
  // Empty for the next new player: his number over the name of the one before would renumber that one.
  m_player->show(m_sheet.players().size() > before ? PlayerFields() : fieldsOf(written));
  m_player->focusNumber();
  return true;
}

void frmEQUIPES::deletePlayer() {
  if (isReadOnly() || !m_sheet.remove(m_player->fields().number))
    return;
  showPlayers();
  m_player->show({});
}

void frmEQUIPES::chooseColour() {
  const QColor chosen =
      m_dialogs.chooseColour(this, toQt(m_texts.text(Text::SelectColour)), m_fields->colour());
  if (chosen.isValid())
    m_fields->setColour(chosen);
}

void frmEQUIPES::clearPlayer() {
  if (!mayLeavePlayer())
    return;
  m_table->clearSelection();
  m_table->selectionModel()->clearCurrentIndex();
  m_player->show({});
  m_player->focusNumber();
}

void frmEQUIPES::sortPlayers(int column) {
  const QModelIndexList selected = m_table->selectionModel()->selectedRows();
  const TeamPlayer player =
      selected.isEmpty() ? TeamPlayer() : m_sheet.players()[static_cast<std::size_t>(selected.first().row())];
  m_model->sort(column, m_table->horizontalHeader()->sortIndicatorOrder());
  showRow(player); // the row moves with the player who was selected
}

void frmEQUIPES::selectPlayer() {
  const QModelIndexList selected = m_table->selectionModel()->selectedRows();
  if (selected.isEmpty())
    return;
  const TeamPlayer chosen = m_sheet.players()[static_cast<std::size_t>(selected.first().row())];
  if (fieldsOf(chosen) == m_player->fields())
    return;
  if (mayLeavePlayer()) {
    m_player->show(fieldsOf(chosen));
    showRow(chosen);
  } else {
    m_table->clearSelection();
  }
}

void frmEQUIPES::showRow(const TeamPlayer& player) {
  const auto found = std::ranges::find(m_sheet.players(), player);
  if (found == m_sheet.players().end())
    return;
  const QSignalBlocker quiet(m_table->selectionModel());
  m_table->selectRow(static_cast<int>(found - m_sheet.players().begin()));
  m_table->scrollTo(m_table->currentIndex());
}

void frmEQUIPES::takePlayers(bool (frmEQUIPES::*from)()) {
  if (team() == nullptr)
    return m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)),
                              toQt(m_texts.text(Text::SelectTeamFirst)));
  if (!isReadOnly() && mayLeavePlayer() && (this->*from)()) {
    showPlayers();
    m_player->show({});
  }
}

bool frmEQUIPES::importPlayers() {
  return m_exchange.importFile(this, m_sheet, toQt(m_teams.settings().folder()));
}

bool frmEQUIPES::pastePlayers() {
  return m_exchange.paste(this, m_sheet);
}

void frmEQUIPES::exportPlayers() {
  if (team() == nullptr)
    return m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)),
                              toQt(m_texts.text(Text::SelectTeamFirst)));
  m_exchange.exportFile(this, m_sheet, toQt(m_teams.settings().folder()),
                        toQt(team()->abbreviation + '-' + team()->category).trimmed());
}

bool frmEQUIPES::isTeamChanged() const {
  return team() != nullptr && !isReadOnly() && (m_fields->record() != m_loadedTeam || m_sheet.isChanged());
}

bool frmEQUIPES::isPlayerChanged() const {
  return !isReadOnly() && m_player->isChanged();
}

bool frmEQUIPES::askAndSave(const QString& question, bool (frmEQUIPES::*save)()) {
  switch (m_dialogs.askToSave(this, toQt(m_texts.text(Text::WarningTitle)), question)) {
  case SaveChoice::Save: return (this->*save)();
  case SaveChoice::Discard: return true;
  case SaveChoice::Stay: return false;
  }
  return false;
}

bool frmEQUIPES::mayLeavePlayer() {
  if (!isPlayerChanged())
    return true;
  const PlayerFields fields = m_player->fields();
  return askAndSave(toQt(m_texts.withPlaceholder(Text::UnsavedPlayer, fields.number + ' ' + fields.name)),
                    &frmEQUIPES::addPlayer);
}

bool frmEQUIPES::mayLeaveTeam() {
  if (!mayLeavePlayer())
    return false;
  return !isTeamChanged() ||
         askAndSave(toQt(m_texts.withPlaceholder(Text::UnsavedTeam, m_fields->record().abbreviation)),
                    &frmEQUIPES::saveTeam);
}

void frmEQUIPES::warn(const QString& text) {
  m_dialogs.warn(this, toQt(m_texts.text(Text::WarningTitle)), text);
}

// What waits for the disk is more than what was done.
void frmEQUIPES::tellSaved(const QString& done) {
  if (!m_teams.settings().isOnDisk())
    emit reported(toQt(m_texts.withPlaceholder(Text::NotSaved, m_teams.settings().path())));
  else if (!done.isEmpty())
    emit reported(done);
}

void frmEQUIPES::tellNotWritten() {
  m_dialogs.complain(this, toQt(m_texts.text(Text::ErrorTitle)),
                     toQt(m_texts.withPlaceholder(Text::NotWritten, m_teams.settings().path())));
}

void frmEQUIPES::relabelWindow() {
  relabel(*this, m_texts);
  giveMnemonics(*this);
  m_player->relabelPanel();
  showPlayers();
  showNotice();
  m_fields->showColour();
  widenColumns();
  placeGroups();
}

void frmEQUIPES::applyColours() {
  const Measure& measure = Theme::measure();
  const int gap = measure(8, 12);
  m_whole->setContentsMargins(gap, gap, gap, gap);
  m_whole->setSpacing(gap);
  m_editor->setSpacing(gap);
  m_teamsCard->setFixedWidth(measure(270, 330));
  m_teamsCard->layout()->setContentsMargins(gap, gap, gap, gap);
  const int side = measure(14);
  m_playersHead->setContentsMargins(side, measure(6), measure(10), measure(6));
  m_player->setContentsMargins(side, measure(4), side, measure(4));
  for (QLabel* label : m_titles)
    label->setFont(Theme::font(Type::Count, QFont::DemiBold));
  m_playersHead->setSpacing(measure(8));
  m_fields->applyMeasure();
  const int row = measure(24, 30);
  m_table->verticalHeader()->setMinimumSectionSize(row);
  m_table->verticalHeader()->setDefaultSectionSize(row);
  m_table->setMinimumHeight(row * kLeastRows);
  widenColumns();
  m_list->list().doItemsLayout(); // another measure, other heights
  placeGroups();
}

void frmEQUIPES::resizeEvent(QResizeEvent* event) {
  ChildWindow::resizeEvent(event);
  placeGroups();
}

// No head of a column is cut, in any language and measure.
void frmEQUIPES::widenColumns() {
  QHeaderView& header = *m_table->horizontalHeader();
  for (int column = 0; column + 1 < kPlayerColumns; ++column) {
    if (!header.isSectionHidden(column) && header.sectionSize(column) < header.sectionSizeHint(column))
      header.resizeSection(column, header.sectionSizeHint(column));
  }
}

void frmEQUIPES::placeGroups() {
  m_fields->place(width() - m_teamsCard->width() - 3 * m_whole->spacing());
}

QByteArray frmEQUIPES::arrangement() const {
  return m_table->horizontalHeader()->saveState();
}

void frmEQUIPES::restoreArrangement(const QByteArray& state) {
  m_table->horizontalHeader()->restoreState(state);
  m_table->setColumnHidden(static_cast<int>(PlayerColumn::PositionIndex), true);
  m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  widenColumns();
}

} // namespace hooptab
