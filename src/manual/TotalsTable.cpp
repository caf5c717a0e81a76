#include "manual/TotalsTable.h"

#include "appearance/ElidedLabel.h"
#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "manual/CountButton.h"
#include "manual/CountCell.h"
#include "totals/CounterWords.h"
#include "totals/ManualGame.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>

namespace hooptab {

namespace {

constexpr int kHeaderRows = 3; // group, made or attempted, button
constexpr int kCountsFrom = 2; // column of the first counts in the layout
constexpr int kNumberWidth = 34;
constexpr int kNameWidth = 110;
constexpr int kNameStretch = 6; // of the width that is left, and 1 for each count
constexpr int kButtonHeight = 26;
constexpr int kDigits = 3;

const ManualColumn& columnAt(int column) {
  return kManualColumns[static_cast<std::size_t>(column)];
}
constexpr int kColumns = static_cast<int>(kManualColumns.size());

bool isShot(const ManualColumn& column) {
  return kindOf(column.code)->isShot;
}

QString countText(int count) {
  return count > 0 ? QString::number(count) : QString();
}

} // namespace

TotalsTable::TotalsTable(ManualGame& game, const Settings& settings, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_game(game), m_settings(settings), m_texts(texts) {
  setObjectName(QStringLiteral("tblTOTALS"));
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleNumber(*this, Text::TableName);
  setToolTipNumber(*this, Text::TableKeys);
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  makeHeader();
  for (int slot = 0; slot <= ManualTotals::kSlots; ++slot)
    m_rows[static_cast<std::size_t>(slot)] = makeRow(slot);
  grid->setRowMinimumHeight(1, fontMetrics().height()); // where a page has nothing to say there
  grid->setColumnMinimumWidth(0, kNumberWidth);
  grid->setColumnMinimumWidth(1, kNameWidth);
  grid->setColumnStretch(1, kNameStretch);
  // Rows grow up to their largest height; the rest stays below.
  grid->setRowStretch(kHeaderRows + ManualTotals::kSlots, 1);
  grid->setRowStretch(kHeaderRows + ManualTotals::kSlots + 1, 1);
  showPage();
}

void TotalsTable::makeHeader() {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  m_nameHeader = new PlainLabel(this);
  setTextNumber(*m_nameHeader, Text::PlayerName);
  grid->addWidget(m_nameHeader, 0, 0, kHeaderRows, 2, Qt::AlignBottom);
  for (int column = 0; column < kColumns; ++column) {
    const auto at = static_cast<std::size_t>(column);
    const ManualColumn& counted = columnAt(column);
    const int place = kCountsFrom + column;
    if (counted.isMade) {
      auto* group = new PlainLabel(this);
      group->setAlignment(Qt::AlignCenter);
      QFont bold = group->font();
      bold.setBold(true);
      group->setFont(bold);
      group->setText(toQt(kindOf(counted.code)->shortName));
      grid->addWidget(group, 0, place, isShot(counted) ? 1 : 2, isShot(counted) ? 2 : 1);
      m_groups[at] = group;
    }
    if (isShot(counted)) {
      auto* made = new PlainLabel(this);
      made->setAlignment(Qt::AlignCenter);
      made->setForegroundRole(QPalette::PlaceholderText);
      setTextNumber(*made, counted.isMade ? Text::MadeShort : Text::AttemptedShort);
      grid->addWidget(made, 1, place);
      m_captions[at] = made;
    }
    if (counted.button == nullptr)
      continue;
    auto* button = new CountButton(!isShot(counted) ? QStringLiteral("±1")
                                   : counted.isMade ? QStringLiteral("●")
                                                    : QStringLiteral("✕"),
                                   this);
    button->setObjectName(QLatin1String(counted.button));
    button->setFixedHeight(kButtonHeight);
    button->setMinimumWidth(0);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    grid->addWidget(button, 2, place);
    connect(button, &CountButton::counted, this,
            [this, &counted](ManualTotals::Step step) { press(counted, step); });
    m_buttons[at] = button;
  }
  m_pointsHeader = new PlainLabel(QStringLiteral("PTS"), this);
  m_pointsHeader->setAlignment(Qt::AlignCenter | Qt::AlignBottom);
  setToolTipNumber(*m_pointsHeader, Text::PointsScored);
  grid->addWidget(m_pointsHeader, 0, kCountsFrom + kColumns, kHeaderRows, 1);
}

TotalsTable::Row TotalsTable::makeRow(int slot) {
  auto* grid = qobject_cast<QGridLayout*>(layout());
  const bool isTotal = slot == 0;
  const int place = kHeaderRows + (isTotal ? ManualTotals::kSlots : slot - 1);
  const auto named = [slot](const char* name) {
    return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(slot);
  };
  Row row;
  row.number = new ElidedLabel(this);
  row.number->setObjectName(named("lblNO"));
  Theme::setType(*row.number, Type::Body, QFont::Bold);
  row.number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  row.name = new ElidedLabel(this);
  row.name->setObjectName(named("lblNom"));
  for (ElidedLabel* label : {row.number, row.name}) {
    label->setContentsMargins(4, 0, 4, 0);
    label->setAutoFillBackground(true);
    label->setMaximumHeight(CountCell::kLargestHeight);
  }
  if (isTotal) {
    setTextNumber(*row.name, Text::Total);
    row.name->setFont(row.number->font());
  }
  grid->addWidget(row.number, place, 0);
  grid->addWidget(row.name, place, 1);
  for (int column = 0; column < kColumns; ++column) {
    auto* cell = new CountCell(named(columnAt(column).label), this);
    grid->addWidget(cell, place, kCountsFrom + column);
    row.counts[static_cast<std::size_t>(column)] = cell;
  }
  row.points = new CountCell(named("lblPTS"), this);
  grid->addWidget(row.points, place, kCountsFrom + kColumns);
  return row;
}

int TotalsTable::players() const {
  return std::min<int>(static_cast<int>(m_game.roster(m_team).players().size()), ManualTotals::kSlots);
}

bool TotalsTable::isOnPage(int column) const {
  return column >= 0 && column < kColumns && columnAt(column).page == m_page;
}

// --- What is shown

void TotalsTable::setTeam(Side team) {
  takeTyped();
  m_team = team;
  m_player = 0;
  showTotals();
  emit playerChanged();
}

void TotalsTable::nextPage() {
  takeTyped();
  m_page = m_page % kManualPages + 1;
  if (!isOnPage(m_column)) {
    m_column = 0;
    while (!isOnPage(m_column))
      ++m_column;
  }
  showPage();
  showTotals();
}

void TotalsTable::showPage() {
  for (int column = 0; column < kColumns; ++column) {
    const auto at = static_cast<std::size_t>(column);
    const bool isShown = isOnPage(column);
    qobject_cast<QGridLayout*>(layout())->setColumnStretch(kCountsFrom + column, isShown ? 1 : 0);
    for (QWidget* widget : {static_cast<QWidget*>(m_groups[at]), static_cast<QWidget*>(m_captions[at]),
                            static_cast<QWidget*>(m_buttons[at])}) {
      if (widget != nullptr)
        widget->setVisible(isShown);
    }
    for (const Row& row : m_rows)
      row.counts[at]->setVisible(isShown);
  }
}

void TotalsTable::showTotals() {
  for (int slot = 0; slot <= ManualTotals::kSlots; ++slot)
    showRow(slot);
  for (CountButton* button : m_buttons) {
    if (button != nullptr)
      button->setEnabled(m_player > 0 && !m_game.isForReading());
  }
  setAccessibleDescription(m_player == 0 ? QString()
                                         : QStringLiteral("%1 %2: %3")
                                               .arg(m_rows[static_cast<std::size_t>(m_player)].name->text(),
                                                    words(m_column), typedText(m_player, m_column)));
}

void TotalsTable::showRow(int slot) {
  const Row& row = m_rows[static_cast<std::size_t>(slot)];
  const bool isTotal = slot == 0;
  const bool isShown = isTotal || slot <= players();
  if (!isTotal)
    qobject_cast<QGridLayout*>(layout())->setRowStretch(kHeaderRows + slot - 1, isShown ? 1 : 0);
  row.number->setVisible(isShown);
  row.name->setVisible(isShown);
  row.points->setVisible(isShown);
  for (int column = 0; column < kColumns; ++column)
    row.counts[static_cast<std::size_t>(column)]->setVisible(isShown && isOnPage(column));
  if (!isShown)
    return;

  using enum CountCell::Look;
  const bool isChosen = !isTotal && slot == m_player;
  const CountCell::Look look = isTotal ? Total : isChosen ? InRow : slot % 2 == 0 ? Odd : Even;
  const Counters counts =
      isTotal ? m_game.totals.teamCounts(m_team) : m_game.totals.slot(m_team, slot).counts();
  for (int column = 0; column < kColumns; ++column) {
    CountCell* cell = row.counts[static_cast<std::size_t>(column)];
    const bool isCurrent = isChosen && column == m_column && hasFocus();
    cell->setLook(!isCurrent ? look : m_isTyping ? Typing : Current);
    cell->setText(isTotal ? countText(counts[columnAt(column).counter]) : typedText(slot, column));
  }
  row.points->setLook(look);
  row.points->setText(countText(pointsOf(counts)));
  const QPalette::ColorRole ground = isTotal         ? QPalette::Button
                                     : isChosen      ? QPalette::Highlight
                                     : slot % 2 == 0 ? QPalette::AlternateBase
                                                     : QPalette::Base;
  for (ElidedLabel* label : {row.number, row.name}) {
    label->setBackgroundRole(ground);
    label->setForegroundRole(isChosen ? QPalette::HighlightedText : QPalette::WindowText);
  }
  if (isTotal)
    return;
  const RosterPlayer& player = *m_game.roster(m_team).player(slot);
  row.number->setText(toQt(player.jersey));
  row.name->setText(toQt(player.name));
}

QString TotalsTable::typedText(int slot, int column) const {
  if (m_isTyping && slot == m_player && column == m_column)
    return m_typed;
  return countText(m_game.totals.slot(m_team, slot).counts()[columnAt(column).counter]);
}

QString TotalsTable::words(int column) const {
  return toQt(counterWords(columnAt(column), m_game.details(), m_settings, m_texts));
}

TableContent TotalsTable::tableContent() const {
  TableContent content;
  const GameDetails& details = m_game.details();
  content.title = toQt(details.abbreviation[m_team]) + QStringLiteral(" – ") + toQt(details.name[m_team]);
  content.columns = {{QStringLiteral("No"), QStringLiteral("No"), {}, true},
                     {caption(m_texts, Text::PlayerName), QStringLiteral("Name"), {}, true}};
  for (int column = 0; column < kColumns; ++column) {
    const ManualColumn& counted = columnAt(column);
    const QString name = toQt(kindOf(counted.code)->shortName);
    const QString header =
        isShot(counted) ? name + caption(m_texts, counted.isMade ? Text::MadeShort : Text::AttemptedShort)
                        : name;
    content.columns.push_back({header, header, words(column)});
  }
  content.columns.push_back(
      {QStringLiteral("PTS"), QStringLiteral("PTS"), caption(m_texts, Text::PointsScored)});
  const auto numberCell = [](int number) {
    return TableContent::Cell{QString::number(number), TableKind::Number, static_cast<double>(number)};
  };
  const auto add = [&](const QString& number, const QString& name, const Counters& counts) -> auto& {
    TableContent::Row& row = content.rows.emplace_back();
    row.cells = {{number}, {name}};
    for (const ManualColumn& column : kManualColumns)
      row.cells.push_back(numberCell(counts[column.counter]));
    row.cells.push_back(numberCell(pointsOf(counts)));
    return row;
  };
  for (int slot = 1; slot <= players(); ++slot) {
    const RosterPlayer& player = *m_game.roster(m_team).player(slot);
    add(toQt(player.jersey), toQt(player.name), m_game.totals.slot(m_team, slot).counts());
  }
  add({}, caption(m_texts, Text::Total), m_game.totals.teamCounts(m_team)).isTotal = true;
  return content;
}

void TotalsTable::relabelTable() {
  for (int column = 0; column < kColumns; ++column) {
    const auto at = static_cast<std::size_t>(column);
    const ManualColumn& counted = columnAt(column);
    const QString hint =
        counted.button == nullptr ? u'\n' + caption(m_texts, Text::FieldGoalHint) : QString();
    if (m_groups[at] != nullptr)
      m_groups[at]->setToolTip(words(column) + hint);
    if (m_captions[at] != nullptr)
      m_captions[at]->setToolTip(words(column) + hint);
    for (int slot = 0; slot <= ManualTotals::kSlots; ++slot)
      m_rows[static_cast<std::size_t>(slot)].counts[at]->setAccessibleName(words(column));
    if (m_buttons[at] == nullptr)
      continue;
    const bool isOwn = counted.code == EventCode::SU1 || counted.code == EventCode::SU2;
    const QString toolTip = (isOwn ? words(column) : QString()) + caption(m_texts, counted.buttonWords);
    m_buttons[at]->setToolTip(toolTip);
    m_buttons[at]->setStatusTip(toolTip);
    m_buttons[at]->setAccessibleName(toolTip);
  }
  applyColours();
  showTotals();
}

void TotalsTable::applyColours() {
  for (int column = 0; column < kColumns; ++column) {
    CountButton* button = m_buttons[static_cast<std::size_t>(column)];
    if (button == nullptr || !isShot(columnAt(column)))
      continue;
    QPalette colours;
    colours.setColor(QPalette::Active, QPalette::ButtonText,
                     columnAt(column).isMade ? Theme::made() : Theme::missed());
    colours.setColor(QPalette::Inactive, QPalette::ButtonText,
                     colours.color(QPalette::Active, QPalette::ButtonText));
    button->setPalette(colours);
  }
}

// --- Choosing and typing

void TotalsTable::choose(int player, int column) {
  const bool isOther = player != m_player;
  m_player = player;
  m_column = column;
  showTotals();
  if (isOther)
    emit playerChanged();
}

void TotalsTable::mousePressEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  for (int slot = 1; slot <= players(); ++slot) {
    const Row& row = m_rows[static_cast<std::size_t>(slot)];
    if (at.y() < row.name->y() || at.y() > row.name->geometry().bottom())
      continue;
    int chosen = m_column;
    for (int column = 0; column < kColumns; ++column) {
      if (isOnPage(column) && row.counts[static_cast<std::size_t>(column)]->geometry().contains(at))
        chosen = column;
    }
    if (takeTyped())
      choose(slot, chosen);
    return;
  }
}

void TotalsTable::focusInEvent(QFocusEvent* event) {
  const bool isByKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (isByKey && m_player == 0 && players() > 0)
    choose(1, m_column);
  else
    showTotals();
}

void TotalsTable::focusOutEvent(QFocusEvent* event) {
  if (event->reason() != Qt::PopupFocusReason)
    takeTyped();
  showTotals();
}

bool TotalsTable::moveAlong(int by) {
  int player = m_player;
  int column = m_column + by;
  if (!isOnPage(column)) {
    player += by;
    column = by > 0 ? 0 : kColumns - 1;
    while (!isOnPage(column))
      column += by;
  }
  if (player < 1 || player > players())
    return false;
  choose(player, column);
  return true;
}

bool TotalsTable::focusNextPrevChild(bool next) {
  if (hasFocus() && m_player > 0 && (!takeTyped() || moveAlong(next ? 1 : -1)))
    return true;
  return QWidget::focusNextPrevChild(next);
}

bool TotalsTable::takeTyped() {
  if (!m_isTyping)
    return true;
  m_isTyping = false;
  return setCount(columnAt(m_column), m_typed.toInt());
}

bool TotalsTable::setCount(const ManualColumn& column, int count) {
  const ManualTotals::Typed outcome = m_game.totals.setCount(m_team, m_player, column.counter, count);
  showTotals();
  if (outcome == ManualTotals::Typed::Taken)
    emit totalsChanged();
  else
    emit typedRefused(outcome, column);
  return outcome == ManualTotals::Typed::Taken;
}

void TotalsTable::press(const ManualColumn& column, ManualTotals::Step step) {
  if (!takeTyped() || m_player == 0 || m_game.isForReading())
    return;
  if (kindOf(column.code)->hasPlace) { // has no button: a key in its cell
    const int count = m_game.totals.slot(m_team, m_player).counts()[column.counter];
    setCount(column, step == ManualTotals::Step::Up ? count + 1 : std::max(count - 1, 0));
    return;
  }
  if (!m_game.totals.press(m_team, m_player, column.code, column.isMade, step))
    return;
  showTotals();
  emit totalsChanged();
}

// Digits, and what changes them; false for every other key.
bool TotalsTable::typeInto(const QKeyEvent& event) {
  if (m_game.isForReading())
    return false;
  const QString text = event.text();
  if (text.size() == 1 && text[0] >= u'0' && text[0] <= u'9') {
    if (!m_isTyping)
      m_typed.clear();
    m_isTyping = true;
    if (m_typed.size() < kDigits)
      m_typed += text;
    return true;
  }
  if (event.key() == Qt::Key_Backspace) {
    if (!m_isTyping)
      m_typed = typedText(m_player, m_column);
    m_isTyping = true;
    m_typed.chop(1);
    return true;
  }
  if (event.key() == Qt::Key_F2 && !m_isTyping) {
    m_typed = typedText(m_player, m_column);
    m_isTyping = true;
    return true;
  }
  if (event.key() == Qt::Key_Delete) {
    m_isTyping = true;
    m_typed.clear();
    takeTyped();
    return true;
  }
  if (event.key() == Qt::Key_Escape && m_isTyping) {
    m_isTyping = false;
    return true;
  }
  return false;
}

void TotalsTable::keyPressEvent(QKeyEvent* event) {
  const bool isPlain = (event->modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
  if (!isPlain || players() == 0)
    return QWidget::keyPressEvent(event);
  if (event->key() == Qt::Key_PageUp || event->key() == Qt::Key_PageDown) {
    if (takeTyped())
      emit pageAsked();
    return;
  }
  if (m_player == 0) {
    const bool isArrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    if (!isArrow && (event->text().isEmpty() || !QStringLiteral("0123456789+-").contains(event->text())))
      return QWidget::keyPressEvent(event);
    choose(1, m_column);
    if (isArrow) // it has chosen the first player; a count is his
      return;
  }
  if (typeInto(*event))
    return showTotals();
  const bool isUp = event->text() == u"+";
  if (isUp || event->text() == u"-")
    return press(columnAt(m_column), isUp ? ManualTotals::Step::Up : ManualTotals::Step::Down);
  const auto go = [this](auto step) {
    if (takeTyped())
      step();
  };
  switch (event->key()) {
  case Qt::Key_Left: return go([this] { moveAlong(-1); });
  case Qt::Key_Right: return go([this] { moveAlong(1); });
  case Qt::Key_Up: return go([this] { choose(std::max(m_player - 1, 1), m_column); });
  case Qt::Key_Down:
  case Qt::Key_Return:
  case Qt::Key_Enter: return go([this] { choose(std::min(m_player + 1, players()), m_column); });
  default: QWidget::keyPressEvent(event);
  }
}

} // namespace hooptab
