#include "shell/ExchangeDesk.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "exchange/frmEXPORT.h"
#include "exchange/frmIMPORT.h"
#include "live/frmLIVE.h"
#include "publish/ExtractKinds.h"
#include "publish/LiveExport.h"
#include "review/frmVIEW.h"
#include "settings/Settings.h"
#include "shell/CommandBar.h"
#include "shell/GameDialogs.h"
#include "shell/WindowArea.h"
#include "shell/WindowMemory.h"
#include "storage/Placeholders.h"
#include "teams/frmEQUIPES.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace hooptab {

namespace {

constexpr std::size_t kMostTold = 10; // players in one question: it must fit on the screen

bool isForeign(const QString& path) {
  const QFileInfo file(path);
  const QString ending = file.suffix().toLower();
  return file.isDir() || ending == u"json" || ending == u"xml";
}

} // namespace

ExchangeDesk::ExchangeDesk(const Workshop& workshop, TeamStore& teams, WindowArea& area, QWidget& window)
    : QObject(&window), m_workshop(workshop), m_teams(teams), m_area(area), m_window(window),
      m_live(new LiveExport(this)) {
  connect(m_live, &LiveExport::failed, this, [this](int error) {
    emit reported(toQt(m_workshop.texts.withPlaceholder(Text::LiveExportFails, std::strerror(error))));
  });
  connect(m_live, &LiveExport::recovered, this, [this] {
    emit reported(toQt(m_workshop.texts.withPlaceholder(
        Text::LiveExportStarted, fromQt(QDir::toNativeSeparators(toQt(m_workshop.memory.exportFolder()))))));
  });
}

void ExchangeDesk::serve(CommandBar& commands) {
  commands.serve(CommandId::ImportGames, this, [this] { openImport({}); });
  commands.serve(CommandId::ExportGame, this, [this] { exportGame(); });
}

QStringList ExchangeDesk::takeForeign(const QStringList& files) {
  QStringList foreign;
  QStringList others;
  for (const QString& file : files)
    (isForeign(file) ? foreign : others) << file;
  if (!foreign.isEmpty())
    openImport(foreign);
  return others;
}

void ExchangeDesk::openImport(const QStringList& files) {
  auto* window = m_area.first<frmIMPORT>();
  if (window != nullptr) {
    m_area.bringToFront(*window);
  } else {
    window =
        new frmIMPORT(m_workshop.store.files(), m_workshop.settings, m_workshop.texts, m_workshop.dialogs);
    connect(window, &frmIMPORT::gameAsked, this, &ExchangeDesk::gameAsked);
    connect(window, &frmIMPORT::teamsAsked, this, &ExchangeDesk::takeTeams);
    m_area.add(*window);
  }
  window->add(files);
}

std::optional<GameToExport> ExchangeDesk::gameToExport() {
  GameToExport game;
  if (const auto* view = qobject_cast<frmVIEW*>(m_area.front())) {
    game.counted = view->card().counted();
  } else if (auto* live = qobject_cast<frmLIVE*>(m_area.front())) {
    const LiveGame& running = live->session().game();
    game.counted = std::make_shared<const CountedGame>(CountedGame{running.game(), running.state()});
    game.isRunning = true;
  } else if (const QString path = askForGame(m_workshop, &m_window, Text::ExportGame); !path.isEmpty()) {
    Scorecard card(m_workshop.store, fromQt(path));
    if (const GameFileProblem problem = card.load(); problem != GameFileProblem::None)
      refuse(m_workshop, &m_window, problem, path);
    else
      game.counted = card.counted();
  }
  if (game.counted == nullptr)
    return std::nullopt;
  if (game.counted->game.details.inputType != 0) {
    m_workshop.dialogs.inform(&m_window, toQt(m_workshop.texts.text(Text::WarningTitle)),
                              toQt(m_workshop.texts.text(Text::TotalsNotExported)));
    return std::nullopt;
  }
  game.text = m_workshop.store.read(game.path()).text;
  return game;
}

void ExchangeDesk::exportGame() {
  std::optional<GameToExport> game = gameToExport();
  if (!game)
    return;
  std::vector<ExportKind> kinds = gameFormatKinds();
  std::ranges::move(extractKinds(m_workshop.texts), std::back_inserter(kinds));
  frmEXPORT window(std::move(*game), std::move(kinds),
                   {m_workshop.memory.exportKind(), m_workshop.memory.exportFolder()},
                   m_workshop.store.files(), m_workshop.texts, m_workshop.dialogs, &m_window);
  if (window.exec() != QDialog::Accepted)
    return;
  const frmEXPORT::Choice choice = window.choice();
  m_workshop.memory.rememberExportKind(choice.kind);
  m_workshop.memory.rememberExportFolder(choice.folder);
  if (choice.follows)
    follow(choice.kind, choice.folder);
  emit reported(
      toQt(m_workshop.texts.withPlaceholder(choice.follows ? Text::LiveExportStarted : Text::ExportedTo,
                                            fromQt(QDir::toNativeSeparators(toQt(choice.folder))))));
}

// Until the window of the game closes, or another export follows it.
void ExchangeDesk::follow(const std::string& kind, const std::string& folder) {
  auto* live = m_area.first<frmLIVE>();
  if (live == nullptr)
    return;
  m_live->start(live->session(), {folder, formatOf(kind)}, m_workshop.texts.language());
  connect(live, &QObject::destroyed, m_live, &LiveExport::stop, Qt::UniqueConnection);
}

// The editor closes first, and asks for what it has not saved.
void ExchangeDesk::takeTeams(const TeamsOfGames& teams) {
  const Texts& texts = m_workshop.texts;
  const QString title = caption(texts, Text::TakeTeams);
  m_workshop.settings.settle();
  const std::vector<TeamsOfGames::Addition> additions = teams.lackingIn(m_teams);
  const auto [newTeams, newPlayers] = countsOf(additions);
  std::string leftOut;
  std::size_t told = 0;
  for (const TeamsOfGames::Addition& addition : additions) {
    for (const std::string& player : addition.leftOut) {
      if (++told <= kMostTold)
        leftOut += (leftOut.empty() ? "" : ", ") + player;
    }
  }
  if (told > kMostTold)
    leftOut += ", …";
  const QString left =
      leftOut.empty() ? QString()
                      : QStringLiteral("\n\n") + toQt(texts.withPlaceholder(Text::PlayersLeftOut, leftOut));
  if (newTeams + newPlayers == 0)
    return m_workshop.dialogs.inform(&m_window, title, caption(texts, Text::NoTeamsToAdd) + left);
  const auto counted = [&, teamCount = newTeams, playerCount = newPlayers](Text text) {
    return toQt(withPlaceholders(texts.text(text), std::to_string(teamCount), std::to_string(playerCount)));
  };
  if (!m_workshop.dialogs.ask(&m_window, title, counted(Text::TeamsToAdd) + left))
    return;
  if (auto* editor = m_area.first<frmEQUIPES>()) {
    if (!editor->agreesToClose())
      return;
    delete editor->parentWidget();
  }
  if (!addTo(m_teams, additions, texts))
    m_workshop.dialogs.complain(&m_window, toQt(texts.text(Text::ErrorTitle)),
                                toQt(texts.withPlaceholder(Text::NotWritten, m_workshop.settings.path())));
  emit teamsChanged();
  emit reported(counted(Text::TeamsAdded));
}

} // namespace hooptab
