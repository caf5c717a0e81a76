#include "events/LiveEventPanel.h"

#include "appearance/Icons.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "checks/FindingWords.h"
#include "events/EventFilterRow.h"
#include "events/EventWindow.h"
#include "events/LiveEventList.h"
#include "events/PassingMenu.h"
#include "game/ShotFollowUp.h"
#include "recording/EventCorrection.h"
#include "recording/LiveGame.h"

#include <QAction>
#include <QBoxLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QPainter>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <utility>

namespace hooptab {

namespace {

constexpr int kFewestRows = 2; // that notices and the filters leave on a small screen
constexpr double kRadius = 7;

QString withPlaceholder(const Texts& texts, Text which, const QString& replacement) {
  return caption(texts, which).replace(QLatin1String("XXX"), replacement);
}

} // namespace

LiveEventPanel::LiveEventPanel(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_rows(texts) {
  makeList();
  m_filters = new EventFilterRow(texts, this);
  m_filters->hide();
  connect(m_filters, &EventFilterRow::changed, this, [this] { m_rows.setFilter(m_filters->filter()); });
  m_checks = new QPushButton(this);
  m_checks->setObjectName(QStringLiteral("lblCHECKS"));
  m_checks->setFocusPolicy(Qt::TabFocus);
  connect(m_checks, &QPushButton::clicked, this, &LiveEventPanel::leadToCheck);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 2);
  layout->setSpacing(0);
  layout->addWidget(makeButtons());
  layout->addWidget(m_filters);
  layout->addWidget(m_list, 1);
  hooptab::relabel(*this, texts);
  relabelPanel();
  applyColours();
}

void LiveEventPanel::makeList() {
  m_list = new LiveEventList(QStringLiteral("lvwEVENT"), m_rows, this);
  setAccessibleNumber(*m_list, Text::Events);
  serve(*m_list);
  connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          &LiveEventPanel::showCommands);
}

// A double click puts what was counted in correction; anything else is edited.
void LiveEventPanel::serve(LiveEventList& list) {
  list.setDoubleClick([this](const QModelIndex& row) {
    const EventPlace event = placeOf(m_rows.eventAt(row));
    if (m_game == nullptr || !EventCorrection::canCorrect(*m_game, event))
      return false;
    emit correctionAsked(event);
    return true;
  });
  connect(&list, &QTableView::activated, this, [this] { m_edit->trigger(); });
  connect(&list, &LiveEventList::chipClicked, this, [this, &list](const QModelIndex& row) {
    offerRepairs(m_rows.eventAt(row), list.cornerUnder(row));
  });
}

// By the command, and by the window's own button.
void LiveEventPanel::showWindow(bool isOpen) {
  if (!isOpen) {
    if (m_window != nullptr)
      m_windowPlace = m_window->saveGeometry();
    delete std::exchange(m_window, nullptr);
    return;
  }
  m_window = new EventWindow(*m_list, this);
  setAccessibleNumber(m_window->list(), Text::Events);
  hooptab::relabel(*m_window, m_texts);
  serve(m_window->list());
  // Not while it is closing.
  connect(
      m_window, &EventWindow::closed, m_detach, [this] { m_detach->setChecked(false); },
      Qt::QueuedConnection);
  nameWindow();
  m_window->open(m_windowPlace);
}

void LiveEventPanel::nameWindow() {
  if (m_window == nullptr)
    return;
  const PerSide<std::string>& names = m_rows.game().details.abbreviation;
  const QString words =
      QStringLiteral("%1: %2 – %3")
          .arg(caption(m_texts, Text::Events), toQt(names[Side::Visitor]), toQt(names[Side::Home]));
  m_window->setWindowTitle(asTitle(words));
}

QByteArray LiveEventPanel::windowPlace() const {
  return m_window != nullptr ? m_window->saveGeometry() : m_windowPlace;
}

void LiveEventPanel::restoreWindow(const QByteArray& place, bool isOpen) {
  m_windowPlace = place;
  // On one screen alone it would lie over the panels.
  m_detach->setChecked(isOpen && QGuiApplication::screens().size() > 1);
}

QAction* LiveEventPanel::makeAction(const char* name, Text text, const char* iconName) {
  auto* action = new QAction(icon(QLatin1String(iconName)), {}, this);
  action->setObjectName(QLatin1String(name));
  if (text != Text::None) {
    setTextNumber(*action, text);
    setToolTipNumber(*action, text);
  }
  return action;
}

QWidget* LiveEventPanel::makeButtons() {
  m_delete = makeAction("cmdDELETE", Text::Delete, "delete");
  m_undelete = makeAction("cmdUNDELETE", Text::Undelete, "undelete");
  m_edit = makeAction("cmdEDIT", Text::Edit, "edit");
  m_insertBefore = makeAction("cmdINSERTBEFORE", Text::InsertBefore, "insertbefore");
  m_insertAfter = makeAction("cmdINSERTAFTER", Text::InsertAfter, "insertafter");
  m_time = makeAction("cmdTIME", Text::ChangeTime, "edit");
  m_doubt = makeAction("cmdDOUBT", Text::DoubtfulOrNot, "doubtful");
  m_substituteBefore = makeAction("cmdSUBSTBEFORE", Text::SubstituteBefore, "insertbefore");
  m_substituteAfter = makeAction("cmdSUBSTAFTER", Text::SubstituteAfter, "insertafter");
  m_undo = makeAction("cmdUNDO", Text::None, "undo");
  m_redo = makeAction("cmdREDO", Text::None, "redo");
  m_filter = makeAction("cmdFILTER", Text::FilterTip, "filter");
  m_detach = makeAction("cmdDETACH", Text::DetachTip, "detach");
  for (QAction* action : {m_filter, m_detach})
    action->setCheckable(true);
  m_delete->setShortcut(QKeySequence::Delete);
  m_undo->setShortcut(Qt::CTRL | Qt::Key_Z);
  m_redo->setShortcut(Qt::CTRL | Qt::Key_Y);
  for (QAction* action : {m_undo, m_redo}) // in the whole live window; no window may have the keys once more
    action->setAutoRepeat(false);

  auto* row = new QWidget(this);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(4, 1, 4, 1);
  layout->setSpacing(1);
  for (QAction* action : {m_undo, m_redo, m_edit, m_insertAfter, m_delete, m_doubt, m_filter, m_detach}) {
    auto* button = new QToolButton(row);
    button->setDefaultAction(action);
    button->setToolButtonStyle(Qt::ToolButtonIconOnly);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    if (action == m_filter) {
      layout->addStretch();
      layout->addWidget(m_checks);
    }
    layout->addWidget(button);
    m_buttons.push_back(button);
  }
  m_list->addActions({m_undo, m_redo, m_delete, m_undelete, m_edit, m_time, m_doubt, m_insertBefore,
                      m_insertAfter, m_substituteBefore, m_substituteAfter});

  connect(m_delete, &QAction::triggered, this, &LiveEventPanel::askDeletion);
  connect(m_undelete, &QAction::triggered, this, [this] {
    std::vector<EventPlace> events;
    for (const std::size_t event : selected()) {
      if (m_rows.game().events[event].isDeleted)
        events.push_back(placeOf(event));
    }
    if (!events.empty())
      emit deleteAsked(events, false);
  });
  const auto ask = [this](QAction* action, auto signal) {
    connect(action, &QAction::triggered, this, [this, signal] {
      if (const auto event = current())
        signal(*event);
    });
  };
  ask(m_edit, [this](const EventPlace& event) { emit editAsked(event); });
  ask(m_insertBefore, [this](const EventPlace& event) { emit insertAsked(event, true); });
  ask(m_insertAfter, [this](const EventPlace& event) { emit insertAsked(event, false); });
  ask(m_time, [this](const EventPlace& event) { emit timeAsked(event); });
  ask(m_doubt, [this](const EventPlace& event) {
    const auto chosenNow = selected();
    emit doubtAsked(event, !m_rows.game().events[chosenNow.front()].isDoubtful);
  });
  using enum PastSubstitution::What;
  ask(m_substituteBefore, [this](const EventPlace& event) {
    emit substitutionAsked({InsertBefore, event}, Side::Visitor, 0);
  });
  ask(m_substituteAfter, [this](const EventPlace& event) {
    emit substitutionAsked({InsertBehind, event}, Side::Visitor, 0);
  });
  connect(m_undo, &QAction::triggered, this, &LiveEventPanel::undoAsked);
  connect(m_redo, &QAction::triggered, this, &LiveEventPanel::redoAsked);
  connect(m_detach, &QAction::toggled, this, &LiveEventPanel::showWindow);
  connect(m_filter, &QAction::toggled, this, [this](bool isOpen) {
    m_filters->setVisible(isOpen);
    if (!isOpen) // nothing stays hidden that one could wait for
      m_filters->clear();
  });
  return row;
}

// --- What is shown

void LiveEventPanel::showGame(const LiveGame& game) {
  m_game = &game;
  const QString path = toQt(game.game().path);
  const bool isNew = path != m_path;
  m_path = path;
  if (isNew) {
    m_list->clearSelection();
    m_list->setCurrentIndex({});
    m_filter->setChecked(false);
  }
  // Who looks at an older event keeps it in view; at the top the newest comes in.
  struct Sight {
    LiveEventList& list;
    QPersistentModelIndex top;
    bool isAtTop;
  };
  std::vector<Sight> sights;
  for (LiveEventList* list : {m_list, m_window != nullptr ? &m_window->list() : nullptr}) {
    if (list == nullptr)
      continue;
    const QModelIndex top = list->indexAt({0, 0});
    sights.push_back({*list, top, isNew || !top.isValid() || top.row() == 0});
  }
  const std::vector<EventPlace> chosenNow = placesOf(selected());
  const std::optional<EventPlace> currentNow = current();
  m_rows.show(game.game());
  if (placesOf(selected()) != chosenNow) // an event has moved: it stays the selected one
    select(chosenNow, currentNow);
  for (const Sight& sight : sights) {
    if (sight.isAtTop)
      sight.list.scrollToTop();
    else if (sight.top.isValid())
      sight.list.showAtTop(sight.top);
  }
  m_filters->showGame(m_rows.game(), m_rows.words());
  nameWindow();
  showChecks();
  showCommands();
}

void LiveEventPanel::relabelPanel() {
  m_rows.relabel();
  m_filters->relabelRow(m_rows.game(), m_rows.words());
  nameWindow();
  showChecks();
  showCommands();
}

void LiveEventPanel::applyColours() {
  const Measure& measure = Theme::measure();
  m_list->applyColours();
  m_list->setMinimumHeight(kFewestRows * m_list->verticalHeader()->defaultSectionSize());
  if (m_window != nullptr)
    m_window->applyColours();
  for (QToolButton* button : m_buttons) {
    button->setFixedSize(measure(26, 34), measure(26, 32));
    button->setIconSize({measure(18, 22), measure(18, 22)});
  }
  m_checks->setFixedSize(measure(44, 56), measure(22, 26));
  m_checks->setFont(Theme::font(Type::Small, QFont::DemiBold));
  showChecks();
  update();
}

void LiveEventPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Theme::look().line);
  painter.setBrush(Theme::look().surface);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

// A chip that stands out where there is something to look at, and is not there where there is nothing.
void LiveEventPanel::showChecks() {
  const std::size_t count = m_rows.findings().size() + m_rows.doubtful().size();
  m_checks->setEnabled(count > 0);
  m_checks->setVisible(count > 0);
  m_checks->setText(QStringLiteral("⚠ %1").arg(count));
  const QString words = count > 0 ? withPlaceholder(m_texts, Text::ToCheck, QString::number(count))
                                  : caption(m_texts, Text::NothingToCheck);
  m_checks->setAccessibleName(words);
  m_checks->setToolTip(words + u'\n' + caption(m_texts, Text::ToCheckTip));
  QPalette colours;
  colours.setColor(QPalette::Button, Theme::look().warningGround);
  colours.setColor(QPalette::ButtonText, Theme::look().warningText);
  m_checks->setPalette(colours);
}

void LiveEventPanel::showCommands() {
  const bool canEdit = m_game != nullptr && m_game->canRecord();
  bool canDelete = false;
  bool canRestore = false;
  for (const std::size_t event : selected()) {
    const bool isDeleted = m_rows.game().events[event].isDeleted;
    canRestore = canRestore || isDeleted;
    canDelete = canDelete || (!isDeleted && m_game != nullptr && m_game->canDelete(placeOf(event)));
  }
  m_delete->setEnabled(canEdit && canDelete);
  m_undelete->setEnabled(canEdit && canRestore);
  // What cannot be understood stays as it is, and has no time at which anything could be put in.
  const QModelIndex now = m_list->currentIndex();
  const bool isUnderstood = now.isValid() && m_rows.game().events[m_rows.eventAt(now)].isUnderstood;
  for (QAction* action :
       {m_edit, m_time, m_doubt, m_insertBefore, m_insertAfter, m_substituteBefore, m_substituteAfter})
    action->setEnabled(canEdit && isUnderstood && current());
  const std::optional<LiveAction> undo = canEdit ? m_game->toUndo() : std::nullopt;
  showTurn(*m_undo, undo ? &*undo : nullptr, Text::UndoWhat, Text::NothingToUndo);
  showTurn(*m_redo, canEdit ? m_game->toRedo() : nullptr, Text::RedoWhat, Text::NothingToRedo);
}

// "Undo: Deletion (LYNX 12 ● 2 points)"; what was recorded is named by its event alone.
void LiveEventPanel::showTurn(QAction& action, const LiveAction* turned, Text text, Text nothing) const {
  action.setEnabled(turned != nullptr);
  QString words;
  if (turned != nullptr) {
    if (const auto event = m_rows.game().events.indexOf(turned->event))
      words = toQt(m_rows.words().shortWords(*event));
    constexpr std::array kNamed = {Text::Deletion, Text::Restoring, Text::Edit, Text::Insertion};
    if (words.isEmpty() || std::ranges::find(kNamed, turned->text) != kNamed.end())
      words = caption(m_texts, turned->text) + (words.isEmpty() ? words : QStringLiteral(" (%1)").arg(words));
  }
  const QString whole = turned == nullptr ? caption(m_texts, nothing) : withPlaceholder(m_texts, text, words);
  action.setText(withoutMnemonic(whole));
  action.setToolTip(
      QStringLiteral("%1 (%2)").arg(whole, action.shortcut().toString(QKeySequence::NativeText)));
}

void LiveEventPanel::select(const std::vector<EventPlace>& events, const std::optional<EventPlace>& current) {
  QItemSelection rows;
  QModelIndex now;
  for (const EventPlace& place : events) {
    const auto event = m_rows.game().events.indexOf(place);
    const QModelIndex row = event ? m_rows.rowOf(*event) : QModelIndex();
    if (!row.isValid())
      continue;
    rows.select(row, row);
    if (place == current)
      now = row;
  }
  m_list->selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  m_list->selectionModel()->setCurrentIndex(now, QItemSelectionModel::NoUpdate);
}

void LiveEventPanel::leaveDeleted() {
  const std::vector<std::size_t> chosenNow = selected();
  if (std::ranges::any_of(chosenNow,
                          [this](std::size_t event) { return m_rows.game().events[event].isDeleted; }))
    select({}, std::nullopt);
}

void LiveEventPanel::showOnly(Side team, int period) {
  m_filter->setChecked(true);
  m_filters->choose(team, period);
}

// --- What is asked

EventPlace LiveEventPanel::placeOf(std::size_t event) const {
  return hooptab::placeOf(m_rows.game().events[event]);
}

std::vector<EventPlace> LiveEventPanel::placesOf(const std::vector<std::size_t>& events) const {
  std::vector<EventPlace> places;
  std::ranges::transform(events, std::back_inserter(places),
                         [this](std::size_t event) { return placeOf(event); });
  return places;
}

std::vector<std::size_t> LiveEventPanel::selected() const {
  std::vector<std::size_t> events;
  for (const QModelIndex& row : m_list->selectionModel()->selectedRows())
    events.push_back(m_rows.eventAt(row));
  std::ranges::sort(events);
  return events;
}

std::optional<EventPlace> LiveEventPanel::current() const {
  const QModelIndex index = m_list->currentIndex();
  if (!index.isValid() || !m_list->selectionModel()->isRowSelected(index.row()))
    return std::nullopt;
  return placeOf(m_rows.eventAt(index));
}

void LiveEventPanel::choose(const EventPlace& event) {
  if (const auto place = m_rows.game().events.indexOf(event))
    choose(*place);
}

void LiveEventPanel::choose(std::size_t event) {
  if (!m_rows.rowOf(event).isValid())
    m_filters->clear();
  const QModelIndex row = m_rows.rowOf(event);
  m_list->selectRow(row.row());
  m_list->scrollTo(row);
}

std::vector<std::size_t> LiveEventPanel::toCheck() const {
  std::vector<std::size_t> events = m_rows.doubtful();
  for (const Finding& finding : m_rows.findings())
    events.push_back(finding.event);
  std::ranges::sort(events);
  const auto repeated = std::ranges::unique(events);
  events.erase(repeated.begin(), repeated.end());
  return events;
}

// With what mends it.
void LiveEventPanel::leadToCheck() {
  const std::vector<std::size_t> events = toCheck();
  if (events.empty())
    return;
  const auto chosenNow = selected();
  auto next = events.begin();
  if (chosenNow.size() == 1 && std::ranges::binary_search(events, chosenNow[0]))
    next = std::ranges::upper_bound(events, chosenNow[0]);
  const std::size_t event = next == events.end() ? events.front() : *next;
  choose(event);
  offerRepairs(event, m_list->cornerUnder(m_rows.rowOf(event)));
}

// `corner` of the screen, where the menu comes up.
void LiveEventPanel::offerRepairs(std::size_t event, const QPoint& corner) {
  if (m_game == nullptr || !m_game->canRecord())
    return;
  auto* menu = new PassingMenu(this);
  menu->setObjectName(QStringLiteral("mnuREPAIR"));
  const auto add = [menu](std::string_view words) { return menu->addAction(withoutMnemonic(toQt(words))); };
  const EventPlace place = placeOf(event);
  if (m_rows.game().events[event].isDoubtful) {
    add(m_texts.text(Text::MarkedDoubtful))->setEnabled(false);
    connect(add(m_texts.text(Text::IsRight)), &QAction::triggered, this,
            [this, place] { emit doubtAsked(place, false); });
    connect(add(m_texts.text(Text::Edit)), &QAction::triggered, this,
            [this, place] { emit editAsked(place); });
    menu->addSeparator();
  }
  const bool isLast = toCheck().size() < 2;
  for (const Finding& finding : m_rows.findings()) {
    if (finding.event != event)
      continue;
    QAction* title = add(wordsOf(finding, m_rows.game(), m_texts));
    title->setEnabled(false);
    for (const LiveRepair& offered : repairsOf(finding, m_rows.game()))
      connect(add(wordsOf(offered, m_rows.game(), m_texts)), &QAction::triggered, this,
              [this, offered] { repair(offered); });
    if (!finding.isWrong()) // what cannot be so stays so
      connect(add(m_texts.text(Text::AcceptAsItIs)), &QAction::triggered, this,
              [this, place, number = static_cast<int>(finding.kind)] { emit acceptAsked(place, number); });
    menu->addSeparator();
  }
  if (!isLast)
    connect(add(m_texts.text(Text::NextToCheck)), &QAction::triggered, this, &LiveEventPanel::leadToCheck,
            Qt::QueuedConnection); // when this menu has closed
  menu->popup(corner);
}

void LiveEventPanel::repair(const LiveRepair& repair) {
  switch (repair.kind) {
  case LiveRepair::Kind::Substitution: return emit substitutionAsked(repair.past, repair.team, repair.player);
  case LiveRepair::Kind::Change: return emit editAsked(repair.event);
  case LiveRepair::Kind::Deletion: return emit deleteAsked({repair.event}, true);
  }
}

// A shot takes its assist or rebound along where that is wanted.
void LiveEventPanel::askDeletion() {
  std::vector<EventPlace> events;
  std::vector<EventPlace> followUps;
  QStringList words;
  const std::vector<std::size_t> chosenEvents = selected();
  for (const std::size_t event : chosenEvents) {
    if (m_rows.game().events[event].isDeleted || !m_game->canDelete(placeOf(event)))
      continue;
    events.push_back(placeOf(event));
    const auto followUp = followUpOf(m_rows.game().events, event);
    if (!followUp || std::ranges::binary_search(chosenEvents, *followUp))
      continue;
    followUps.push_back(placeOf(*followUp));
    words.push_back(toQt(m_rows.words().shortWords(*followUp)));
  }
  if (events.empty())
    return;
  if (followUps.empty()) {
    emit deleteAsked(events, true);
    return;
  }
  auto* menu = new PassingMenu(this);
  menu->setObjectName(QStringLiteral("mnuDELETE"));
  std::vector<EventPlace> together = events;
  together.insert(together.end(), followUps.begin(), followUps.end());
  const auto offer = [&](const QString& text, const std::vector<EventPlace>& places) {
    connect(menu->addAction(withoutMnemonic(text)), &QAction::triggered, this,
            [this, places] { emit deleteAsked(places, true); });
  };
  offer(withPlaceholder(m_texts, Text::DeleteWith, words.join(QStringLiteral(", "))), together);
  offer(caption(m_texts, Text::DeleteAlone), events);
  const bool isInWindow = m_window != nullptr && m_window->underMouse();
  const LiveEventList& list = isInWindow ? m_window->list() : *m_list;
  menu->popup(list.cornerUnder(m_rows.rowOf(chosenEvents.front())));
  menu->setActiveAction(menu->actions().constFirst());
}

} // namespace hooptab
