#include "teams/frmEQUIPES.h"

#include "appearance/Dialogs.h"
#include "appearance/Fields.h"
#include "appearance/Icons.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "storage/codepage.h"
#include "teams/PlayerEditor.h"
#include "teams/PlayerTableModel.h"
#include "teams/TeamColours.h"
#include "teams/TeamList.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>
#include <algorithm>

namespace hooptab {

namespace {

constexpr int kErrorTitle = 1060;
constexpr int kWarningTitle = 1139;
constexpr int kSelectTeamFirst = 1174;
constexpr int kReallyDelete = 1175;
constexpr int kTeamSaved = 1803;
constexpr int kUnsavedTeam = 1818;
constexpr int kUnsavedPlayer = 1819;
constexpr int kNotWritten = 1820;
constexpr int kRepeatedNumber = 1821;
constexpr int kReadOnly = 1822;
constexpr int kTeamTooLong = 1823;
constexpr int kPlayerCount = 1824;
constexpr int kPrintTip = 2253;

constexpr int kMargin = 8;
constexpr int kListWidth = 270;
constexpr int kRowAir = 4; // so that 15 players are in sight on the smallest screen
constexpr int kSwatch = 16;
constexpr int kRuleWidth = 64;

// Fields of the rules, by their order in the record.
constexpr struct {
  const char* name;
  int text;
  std::string TeamRecord::*rule;
  int digits; // minutes are those of a clock that shows mm:ss
} kRules[] = {
    {"txtDUREE", 1124, &TeamRecord::minutesPerPeriod, 2},
    {"txtNBREPERIODE", 1123, &TeamRecord::periods, 3},
    {"txtBONUS", 1125, &TeamRecord::bonus, 3},
    {"txtPF", 1126, &TeamRecord::personalFoulLimit, 3},
    {"txtTF", 1127, &TeamRecord::technicalFoulLimit, 3},
};

} // namespace

frmEQUIPES::frmEQUIPES(TeamStore& teams, const Texts& texts, Dialogs& dialogs, QWidget* parent)
    : ChildWindow(parent), m_teams(teams), m_texts(texts), m_dialogs(dialogs),
      m_exchange(teams.store().files(), texts, dialogs),
      m_list(new TeamList(QStringLiteral("lstequipes"), QStringLiteral(" - "), this)),
      m_model(new PlayerTableModel(m_sheet, texts, this)), m_notice(noticeLabel(this)) {
  setObjectName(QStringLiteral("frmEQUIPES"));
  setTextNumber(*this, 1048);

  auto* editor = new QVBoxLayout;
  editor->setSpacing(kMargin);
  editor->addWidget(m_notice);
  editor->addWidget(makeTeamFields());
  editor->addWidget(makePlayers(), 1);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->setSpacing(kMargin);
  layout->addWidget(makeTeams());
  layout->addLayout(editor, 1);

  connectEverything();
  selectOnFocus(*this);
  relabelWindow();
  listTeams();
}

QWidget* frmEQUIPES::makeTeams() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, 1156);
  group->setFixedWidth(kListWidth);
  auto* layout = new QVBoxLayout(group);
  layout->addWidget(m_list, 1);
  layout->addWidget(iconButton("cmdAJOUTEREQUIPE", 1163, 1163, "add", this));
  layout->addWidget(iconButton("cmdEFFACEREQUIPE", 1161, 1161, "delete", this));
  return group;
}

QLineEdit* frmEQUIPES::addField(QGridLayout& layout, int row, int column, int span, const char* name,
                                int text) {
  auto* field = new QLineEdit(this);
  field->setObjectName(QLatin1String(name));
  layout.addWidget(captionFor(*field, text), row, column, 1, span);
  layout.addWidget(field, row + 1, column, 1, span);
  connect(field, &QLineEdit::returnPressed, this, &frmEQUIPES::saveTeam);
  return field;
}

QWidget* frmEQUIPES::makeTeamFields() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, 1305);
  auto* layout = new QGridLayout(group);
  layout->setHorizontalSpacing(kMargin);
  layout->setVerticalSpacing(2);
  m_abbreviation = addField(*layout, 0, 0, 2, "txtABB", 1170);
  m_category = addField(*layout, 0, 2, 2, "txtCATEGORIE", 1159);
  m_name = addField(*layout, 0, 4, 2, "txtNOMEQUIPE", 1157);
  limitField(*m_abbreviation, m_texts, kLongestAbbreviation);
  for (const auto& [field, part] :
       {std::pair(m_category, &TeamRecord::category), {m_name, &TeamRecord::name}}) {
    const auto fits = [this, part = part](const std::string& text) {
      TeamRecord record = teamFields();
      record.*part = text;
      return fitsInValue(teamValue(record, m_teams.settings().statisticLabel));
    };
    limitField(*field, fits, m_texts);
  }
  for (std::size_t i = 0; i < m_rules.size(); ++i) {
    m_rules[i] = addField(*layout, 2, static_cast<int>(i), 1, kRules[i].name, kRules[i].text);
    m_rules[i]->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("\\d{0,%1}").arg(kRules[i].digits)), m_rules[i]));
    m_rules[i]->setMinimumWidth(kRuleWidth);
  }
  layout->setColumnStretch(5, 1);

  m_isMain = new QCheckBox(group);
  m_isMain->setObjectName(QStringLiteral("chkMAIN"));
  setTextNumber(*m_isMain, 1169);
  setToolTipNumber(*m_isMain, 1169);
  auto* last = new QHBoxLayout;
  last->addWidget(m_isMain);
  last->addStretch();
  last->addWidget(iconButton("cmdCOUL", 1248, 1168, "theme", this));
  last->addWidget(iconButton("cmdSAVEEQUIPE", 1164, 1326, "savemanual", this));
  layout->addLayout(last, 4, 0, 1, 6);
  layout->setRowMinimumHeight(4, 34);
  return group;
}

QWidget* frmEQUIPES::makePlayers() {
  auto* group = new QGroupBox(this);
  setTextNumber(*group, 1160);
  m_table = new QTableView(group);
  m_table->setObjectName(QStringLiteral("lvwJOUEURS"));
  setAccessibleNumber(*m_table, 1160);
  m_table->setModel(m_model);
  m_table->setColumnHidden(static_cast<int>(PlayerColumn::PositionIndex), true);
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setTabKeyNavigation(false);
  m_table->setWordWrap(false);
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + kRowAir);
  QHeaderView& header = *m_table->horizontalHeader();
  header.setSectionsClickable(true);
  header.setHighlightSections(false);
  header.setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  constexpr int kWidths[kPlayerColumns] = {70, 300, 100, 50, 110, 110, 80, 120};
  for (int column = 0; column < kPlayerColumns; ++column)
    header.resizeSection(column, kWidths[column]);
  header.setStretchLastSection(true);
  header.setSortIndicatorShown(true);
  header.setSortIndicator(-1, Qt::AscendingOrder); // the file's order

  m_count = new PlainLabel(group);
  m_count->setObjectName(QStringLiteral("lblCOUNT"));
  m_count->setForegroundRole(QPalette::PlaceholderText);
  auto* head = new QHBoxLayout;
  head->addWidget(m_count);
  head->addStretch();
  head->addWidget(iconButton("cmdIMPORT", 1825, 1826, "import", this));
  head->addWidget(iconButton("cmdPASTE", 1827, 1828, "copy", this));
  head->addWidget(iconButton("cmdEXPORT", 1829, 1830, "export", this));
  head->addWidget(iconButton("cmdPRINT", 1311, kPrintTip, "vwprint", this));
  auto* layout = new QVBoxLayout(group);
  layout->addLayout(head);
  layout->addWidget(m_table, 1);
  m_player = new PlayerEditor(m_sheet, m_texts, group); // the last of the tab order
  layout->addWidget(m_player);
  return group;
}

void frmEQUIPES::connectEverything() {
  const auto onClick = [this](const char* name, auto method) {
    connect(findChild<QPushButton*>(QLatin1String(name)), &QPushButton::clicked, this, method);
  };
  onClick("cmdAJOUTEREQUIPE", &frmEQUIPES::addTeam);
  onClick("cmdEFFACEREQUIPE", &frmEQUIPES::deleteTeam);
  onClick("cmdSAVEEQUIPE", &frmEQUIPES::saveTeam);
  onClick("cmdCOUL", &frmEQUIPES::chooseColour);
  onClick("cmdIMPORT", [this] { takePlayers(&frmEQUIPES::importPlayers); });
  onClick("cmdPASTE", [this] { takePlayers(&frmEQUIPES::pastePlayers); });
  onClick("cmdEXPORT", &frmEQUIPES::exportPlayers);
  onClick("cmdPRINT", [this] {
    if (team() == nullptr)
      return m_dialogs.complain(this, toQt(m_texts.text(kErrorTitle)), toQt(m_texts.text(kSelectTeamFirst)));
    emit printAsked(teamFields(), m_sheet.players());
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
  const TeamRecord record = entry == nullptr ? TeamRecord() : m_teams.read(entry->key);
  m_sheet.load(entry == nullptr ? std::vector<TeamPlayer>() : m_teams.players(entry->key));
  // Bare texts, past the limits: a longer one from a file changed by hand is shown whole.
  m_abbreviation->setText(toQt(record.abbreviation));
  m_category->setText(toQt(record.category));
  m_name->setText(toQt(record.name));
  for (QLineEdit* field : {m_category, m_name})
    field->setCursorPosition(0); // the beginning of a long one is in sight
  for (std::size_t i = 0; i < m_rules.size(); ++i)
    m_rules[i]->setText(toQt(record.*kRules[i].rule));
  m_isMain->setChecked(record.isMain);
  m_colour = record.colour();
  m_loadedTeam = teamFields();
  m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder); // the file's order
  m_player->setHasTeam(entry != nullptr);
  m_player->show({});
  showPlayers();
  showColour();

  const bool canChange = !isReadOnly();
  for (const char* name : {"cmdEFFACEREQUIPE", "cmdSAVEEQUIPE", "cmdCOUL", "cmdIMPORT", "cmdPASTE"})
    findChild<QPushButton*>(QLatin1String(name))->setEnabled(canChange);
  m_player->setEditable(canChange);
  showNotice();
}

void frmEQUIPES::showNotice() {
  m_notice->setVisible(isReadOnly());
  if (isReadOnly())
    m_notice->setText(toQt(m_texts.withPlaceholder(kReadOnly, team()->key)));
}

void frmEQUIPES::showPlayers() {
  m_model->changed();
  m_count->setText(toQt(m_texts.withPlaceholder(kPlayerCount, std::to_string(m_sheet.players().size()))));
}

void frmEQUIPES::showColour() {
  showTeamColour(*m_table, team() == nullptr ? this->palette().color(QPalette::Base) : colourOf(m_colour));
  QPixmap swatch(kSwatch, kSwatch);
  swatch.fill(colourOf(m_colour));
  findChild<QPushButton*>(QStringLiteral("cmdCOUL"))->setIcon(swatch);
}

TeamRecord frmEQUIPES::teamFields() const {
  TeamRecord record;
  record.abbreviation = fromQt(m_abbreviation->text());
  record.category = fromQt(m_category->text());
  record.name = fromQt(m_name->text());
  for (std::size_t i = 0; i < m_rules.size(); ++i)
    record.*kRules[i].rule = m_rules[i] == nullptr ? std::string() : fromQt(m_rules[i]->text());
  record.isMain = m_isMain->isChecked();
  record.storedColour = m_colour;
  return record;
}

void frmEQUIPES::addTeam() {
  if (!mayLeaveTeam())
    return;
  const std::optional<int> id = m_teams.create(m_texts);
  if (!id)
    return tellNotWritten();
  listTeams();
  const auto made = std::ranges::find(m_entries, *id, &TeamEntry::id);
  if (made != m_entries.end())
    showTeam(static_cast<int>(made - m_entries.begin()));
  m_abbreviation->setFocus(Qt::OtherFocusReason);
}

bool frmEQUIPES::saveTeam() {
  if (team() == nullptr || isReadOnly())
    return false;
  // The fields show what the file will hold.
  for (QLineEdit* field : {m_category, m_abbreviation, m_name})
    field->setText(toQt(codepage::storedForm(withoutCommas(fromQt(field->text())))));
  TeamRecord record = teamFields();
  if (!fitsInValue(teamValue(record, m_teams.settings().statisticLabel))) {
    warn(caption(m_texts, kTeamTooLong));
    m_name->setFocus(Qt::OtherFocusReason);
    return false;
  }
  if (const std::string number = m_sheet.repeatedNumber(); !number.empty()) {
    warn(toQt(m_texts.withPlaceholder(kRepeatedNumber, number)));
    m_player->focusNumber();
    return false;
  }
  TeamEntry& entry = m_entries[static_cast<std::size_t>(m_position)];
  if (!m_teams.save(entry.id, record, m_sheet.players())) {
    tellNotWritten();
    return false;
  }
  entry.abbreviation = record.abbreviation;
  entry.category = record.category;
  m_list->setTeam(m_position, entry);
  m_loadedTeam = record;
  m_sheet.load(m_teams.players(entry.key));
  showPlayers();
  emit reported(toQt(m_texts.withPlaceholder(kTeamSaved, record.abbreviation)));
  return true;
}

void frmEQUIPES::deleteTeam() {
  if (team() == nullptr)
    return m_dialogs.complain(this, toQt(m_texts.text(kErrorTitle)), toQt(m_texts.text(kSelectTeamFirst)));
  if (isReadOnly() ||
      !m_dialogs.ask(this, toQt(m_texts.text(kWarningTitle)), toQt(m_texts.text(kReallyDelete))))
    return;
  if (!m_teams.remove(team()->id))
    return tellNotWritten();
  listTeams();
}

bool frmEQUIPES::addPlayer() {
  if (team() == nullptr) {
    m_dialogs.complain(this, toQt(m_texts.text(kErrorTitle)), toQt(m_texts.text(kSelectTeamFirst)));
    return false;
  }
  if (isReadOnly())
    return false;
  const PlayerFields fields = m_player->fields();
  if (const int problem = TeamSheet::problem(fields)) {
    warn(toQt(m_texts.text(problem)));
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
    warn(toQt(m_texts.withPlaceholder(kRepeatedNumber, number)));
    m_player->focusNumber();
    return false;
  }
  if (!m_teams.savePlayers(team()->id, changed.players())) {
    tellNotWritten();
    return false;
  }
  const TeamPlayer written = changed.players()[static_cast<std::size_t>(row)];
  m_sheet.load(m_teams.players(team()->key));
  showPlayers();
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
  const QColor chosen = m_dialogs.chooseColour(this, toQt(m_texts.text(1835)), colourOf(m_colour));
  if (!chosen.isValid())
    return;
  m_colour = storedColour(chosen);
  showColour();
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
    return m_dialogs.complain(this, toQt(m_texts.text(kErrorTitle)), toQt(m_texts.text(kSelectTeamFirst)));
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
    return m_dialogs.complain(this, toQt(m_texts.text(kErrorTitle)), toQt(m_texts.text(kSelectTeamFirst)));
  m_exchange.exportFile(this, m_sheet, toQt(m_teams.settings().folder()),
                        toQt(team()->abbreviation + '-' + team()->category).trimmed());
}

bool frmEQUIPES::isTeamChanged() const {
  return team() != nullptr && !isReadOnly() && (teamFields() != m_loadedTeam || m_sheet.isChanged());
}

bool frmEQUIPES::isPlayerChanged() const {
  return !isReadOnly() && m_player->isChanged();
}

bool frmEQUIPES::askAndSave(const QString& question, bool (frmEQUIPES::*save)()) {
  switch (m_dialogs.askToSave(this, toQt(m_texts.text(kWarningTitle)), question)) {
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
  return askAndSave(toQt(m_texts.withPlaceholder(kUnsavedPlayer, fields.number + ' ' + fields.name)),
                    &frmEQUIPES::addPlayer);
}

bool frmEQUIPES::mayLeaveTeam() {
  if (!mayLeavePlayer())
    return false;
  return !isTeamChanged() ||
         askAndSave(toQt(m_texts.withPlaceholder(kUnsavedTeam, fromQt(m_abbreviation->text()))),
                    &frmEQUIPES::saveTeam);
}

void frmEQUIPES::warn(const QString& text) {
  m_dialogs.warn(this, toQt(m_texts.text(kWarningTitle)), text);
}

void frmEQUIPES::tellNotWritten() {
  m_dialogs.complain(this, toQt(m_texts.text(kErrorTitle)),
                     toQt(m_texts.withPlaceholder(kNotWritten, m_teams.settings().path())));
}

void frmEQUIPES::relabelWindow() {
  relabel(*this, m_texts);
  giveMnemonics(*this);
  m_player->relabelPanel();
  showPlayers();
  showNotice();
}

void frmEQUIPES::applyColours() {
  showColour();
}

QByteArray frmEQUIPES::arrangement() const {
  return m_table->horizontalHeader()->saveState();
}

void frmEQUIPES::restoreArrangement(const QByteArray& state) {
  m_table->horizontalHeader()->restoreState(state);
  m_table->setColumnHidden(static_cast<int>(PlayerColumn::PositionIndex), true);
  m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

} // namespace hooptab
