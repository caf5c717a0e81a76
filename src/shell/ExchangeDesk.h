// The way of games from and to other systems: opens the window of the import, of which there is one, and that
// of an export, and brings what they find to the team editor.
#pragma once

#include "shell/Workshop.h"

#include <QObject>
#include <QStringList>

#include <optional>
#include <string>

class QWidget;

namespace hooptab {

class CommandBar;
class LiveExport;
class TeamStore;
class TeamsOfGames;
class WindowArea;
struct GameToExport;

class ExchangeDesk : public QObject {
  Q_OBJECT
 public:
  // All must outlive it; `window` is in front of which it asks.
  ExchangeDesk(const Workshop& workshop, TeamStore& teams, WindowArea& area, QWidget& window);
  void serve(CommandBar& commands);

  // Takes folders and files of other systems into the window of the import; the others come back.
  [[nodiscard]] QStringList takeForeign(const QStringList& files);

 signals:
  void gameAsked(const QString& path); // to be opened as a scorecard
  void teamsChanged();                 // the editor is closed, and may show them
  void reported(const QString& message);

 private:
  void openImport(const QStringList& files);
  void exportGame();
  void follow(const std::string& kind, const std::string& folder);
  [[nodiscard]] std::optional<GameToExport> gameToExport();
  void takeTeams(const TeamsOfGames& teams);

  Workshop m_workshop;
  TeamStore& m_teams;
  WindowArea& m_area;
  QWidget& m_window;
  LiveExport* m_live = nullptr;
};

} // namespace hooptab
