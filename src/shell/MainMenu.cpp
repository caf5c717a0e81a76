#include "shell/MainMenu.h"

#include "appearance/Icons.h"
#include "appearance/Mnemonics.h"
#include "appearance/PlainText.h"
#include "appearance/relabel.h"
#include "shell/CommandBar.h"
#include "shell/GameMenu.h"
#include "shell/WindowArea.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QShortcut>
#include <algorithm>
#include <string_view>

namespace hooptab {

namespace {

constexpr int kZooms[] = {90, 100, 110, 125, 150};

} // namespace

MainMenu::MainMenu(QMainWindow& window, QMenuBar& bar, WindowArea& area, const CommandBar& commands,
                   GameMenu& recent, GameMenu& samples, QMenu& tables)
    : QObject(&window), m_window(window), m_bar(bar), m_commands(commands) {
  constexpr CommandId kSeparator = CommandId::None;

  QMenu& file = addMenu(Text::FileWord, {CommandId::OpenScorecard});
  file.addMenu(&recent);
  file.addSeparator();
  file.addAction(&commands.action(CommandId::ImportGames));
  file.addAction(&commands.action(CommandId::ExportGame));
  file.addSeparator();
  tables.menuAction()->setObjectName(QStringLiteral("exportTable"));
  tables.setIcon(icon(QStringLiteral("export")));
  setTextNumber(*tables.menuAction(), Text::ExportTable);
  file.addMenu(&tables);
  file.addAction(&commands.action(CommandId::SaveCopy));
  connect(&file, &QMenu::aboutToShow, this, &MainMenu::fileMenuShown);
  file.addSeparator();
  QAction& leave = addAction(file, "QUIT", Text::Quit, QStringLiteral("Ctrl+Q"));
  leave.setIcon(icon(QStringLiteral("quit")));
  leave.setMenuRole(QAction::QuitRole);
  connect(&leave, &QAction::triggered, &window, &QWidget::close);

  addMenu(Text::ViewMenu,
          {CommandId::Refresh, CommandId::RefreshByHand, CommandId::Refresh10, CommandId::Refresh30,
           CommandId::Refresh60, kSeparator, CommandId::ByLine, CommandId::MadeAttempted, kSeparator,
           CommandId::PrintScorecard, CommandId::CloseScorecard});
  addMenu(Text::Input,
          {CommandId::NewGame, CommandId::OpenForInput, kSeparator, CommandId::Keypad, CommandId::AskRebounds,
           CommandId::SwitchSides, CommandId::BenchView, CommandId::ShareGame, CommandId::GameSheet,
           CommandId::GameOver, kSeparator, CommandId::OpenForms, CommandId::SaveTotals, CommandId::PrintGame,
           CommandId::FormsMenu, CommandId::CloseInput});
  addMenu(Text::Teams, {CommandId::OpenTeams});
  addMenu(Text::Season, {CommandId::OpenSeason,
                         kSeparator,
                         CommandId::TeamSummary,
                         CommandId::TeamDetail,
                         kSeparator,
                         CommandId::PlayerShots,
                         CommandId::LineShots,
                         CommandId::PlayerOther,
                         CommandId::LineOther,
                         kSeparator,
                         CommandId::LeadersTotal,
                         CommandId::LeadersPerGame,
                         CommandId::LeadersPerMinute,
                         kSeparator,
                         CommandId::PlayerReport,
                         CommandId::LineReport,
                         kSeparator,
                         CommandId::GamesToFile,
                         CommandId::PrintSeason,
                         CommandId::CloseSeason});
  QMenu& settings = addMenu(Text::Settings, {CommandId::CourtColours, CommandId::OpenKeys,
                                             CommandId::OpenRating, kSeparator, CommandId::Language});
  QMenu& colours = coloursMenu();
  settings.addMenu(&colours);
  QMenu& zooms = zoomMenu();
  settings.addMenu(&zooms);
  addWindowMenu(area);
  QMenu& help = addMenu(Text::Help, {CommandId::Guide, CommandId::WebSite});
  help.addMenu(&samples);
  help.addSeparator();
  help.addAction(&commands.action(CommandId::About));

  // The drop-downs of the tool bar offer the same.
  commands.dropDown(CommandId::ViewMenu).addMenu(&recent);
  commands.dropDown(CommandId::SettingsMenu).addMenu(&colours);
  commands.dropDown(CommandId::SettingsMenu).addMenu(&zooms);
  commands.dropDown(CommandId::HelpMenu).insertMenu(&commands.action(CommandId::About), &samples);

  // Entries get theirs when they are shown: captions change with what they stand for.
  for (const QMenu* menu : window.findChildren<QMenu*>() + bar.findChildren<QMenu*>())
    connect(menu, &QMenu::aboutToShow, this, [menu] { giveMnemonics(menu->actions()); });
  connect(new QShortcut(QKeySequence(QStringLiteral("F10")), &window), &QShortcut::activated, this,
          [this] { m_bar.setActiveAction(m_bar.actions().constFirst()); });
}

void MainMenu::giveLetters() {
  giveMnemonics(m_bar.actions());
}

QMenu& MainMenu::addMenu(Text text, std::initializer_list<CommandId> ids) {
  QMenu* menu = m_bar.addMenu(QString());
  menu->setToolTipsVisible(true);
  setTextNumber(*menu->menuAction(), text);
  for (const CommandId id : ids) {
    if (id == CommandId::None)
      menu->addSeparator();
    else
      menu->addAction(&m_commands.action(id));
  }
  return *menu;
}

QAction& MainMenu::addAction(QMenu& menu, const char* name, Text text, const QString& shortcut) {
  QAction* action = menu.addAction(QString());
  action->setObjectName(QLatin1String(name));
  action->setShortcut(QKeySequence(shortcut));
  setTextNumber(*action, text);
  return *action;
}

QMenu& MainMenu::coloursMenu() {
  auto* menu = new QMenu(&m_window);
  menu->setIcon(icon(QStringLiteral("theme")));
  setTextNumber(*menu->menuAction(), Text::ColourTheme);
  auto* choice = new QActionGroup(this);
  m_light = &addAction(*menu, "coloursLight", Text::LightColours);
  m_dark = &addAction(*menu, "coloursDark", Text::DarkColours);
  for (QAction* action : {m_light, m_dark}) {
    action->setCheckable(true);
    choice->addAction(action);
  }
  connect(choice, &QActionGroup::triggered, this, [this](QAction* action) {
    emit coloursChosen(action == m_dark ? ColourScheme::Dark : ColourScheme::Light);
  });
  return *menu;
}

void MainMenu::showFront(bool isThere, bool hasClose) {
  m_close->setEnabled(isThere);
  QList<QKeySequence> keys = {QKeySequence(Qt::CTRL | Qt::Key_F4)};
  if (!hasClose)
    keys.prepend(QKeySequence(Qt::CTRL | Qt::Key_W)); // otherwise that command's
  m_close->setShortcuts(keys);
}

QMenu& MainMenu::zoomMenu() {
  auto* menu = new QMenu(&m_window);
  menu->setObjectName(QStringLiteral("zoom"));
  menu->setIcon(icon(QStringLiteral("theme")));
  setTextNumber(*menu->menuAction(), Text::ZoomMenu);
  m_zooms = new QActionGroup(this);
  for (const int percent : kZooms) {
    QAction* action = menu->addAction(QStringLiteral("%1 %").arg(percent));
    action->setObjectName(QStringLiteral("zoom%1").arg(percent));
    action->setData(percent);
    action->setCheckable(true);
    m_zooms->addAction(action);
  }
  connect(m_zooms, &QActionGroup::triggered, this,
          [this](QAction* action) { emit zoomChosen(action->data().toInt()); });
  menu->addSeparator();
  const auto addStep = [&](const char* name, Text text, const QString& key, int step) {
    QAction& action = addAction(*menu, name, text, key);
    connect(&action, &QAction::triggered, this, [this, step] {
      const QList<QAction*> zooms = m_zooms->actions();
      const qsizetype now = zooms.indexOf(m_zooms->checkedAction());
      zooms[std::clamp<qsizetype>(now + step, 0, zooms.size() - 1)]->trigger();
    });
  };
  addStep("zoomLarger", Text::Larger, QStringLiteral("Ctrl++"), 1);
  addStep("zoomSmaller", Text::Smaller, QStringLiteral("Ctrl+-"), -1);
  return *menu;
}

void MainMenu::showZoom(int percent) {
  for (QAction* action : m_zooms->actions())
    action->setChecked(action->data().toInt() == percent);
}

void MainMenu::showColours(ColourScheme scheme) {
  (scheme == ColourScheme::Dark ? m_dark : m_light)->setChecked(true);
}

void MainMenu::addWindowMenu(WindowArea& area) {
  QMenu& menu = addMenu(Text::Window, {});
  QAction& next = addAction(menu, "windowNext", Text::NextWindow, QStringLiteral("Ctrl+F6"));
  QAction& previous =
      addAction(menu, "windowPrevious", Text::PreviousWindow, QStringLiteral("Ctrl+Shift+F6"));
  menu.addSeparator();
  QAction& fill = addAction(menu, "windowFill", Text::Fill);
  QAction& tile = addAction(menu, "windowTile", Text::Tile);
  QAction& cascade = addAction(menu, "windowCascade", Text::Cascade);
  m_close = &addAction(menu, "windowClose", Text::CloseWindow);
  QAction& closeAll = addAction(menu, "windowCloseAll", Text::CloseAll);
  QAction* beforeWindows = menu.addSeparator();
  connect(&next, &QAction::triggered, &area, &QMdiArea::activateNextSubWindow);
  connect(&previous, &QAction::triggered, &area, &QMdiArea::activatePreviousSubWindow);
  connect(&fill, &QAction::triggered, &area, &WindowArea::fill);
  connect(&tile, &QAction::triggered, &area, &WindowArea::tile);
  connect(&cascade, &QAction::triggered, &area, &WindowArea::cascade);
  connect(m_close, &QAction::triggered, &area, &QMdiArea::closeActiveSubWindow);
  connect(&closeAll, &QAction::triggered, &area, &QMdiArea::closeAllSubWindows);

  // The open windows by name, made anew each time: titles change with score and language.
  connect(&menu, &QMenu::aboutToShow, this, [&menu, &area, beforeWindows] {
    const QList<QAction*> entries = menu.actions();
    for (qsizetype i = entries.indexOf(beforeWindows) + 1; i < entries.size(); ++i)
      delete entries[i];
    for (QMdiSubWindow* window : area.subWindowList()) {
      QAction* entry = menu.addAction(withoutMnemonic(shownTitle(*window)));
      entry->setCheckable(true);
      entry->setChecked(window == area.currentSubWindow());
      connect(entry, &QAction::triggered, window, [window, &area] { area.setActiveSubWindow(window); });
    }
  });
}

} // namespace hooptab
