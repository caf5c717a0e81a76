// The one print preview: which reports it offers for what asked for it, and where the user comes back to when
// it closes; and what goes to a file without a preview, many games at once.
#pragma once

#include "printing/frmprint.h"
#include "report/SeasonReports.h"
#include "shell/Workshop.h"

#include <QObject>
#include <QPointer>

#include <vector>

class QMdiSubWindow;

namespace hooptab {

class CommandBar;
class ReportOutput;
class TeamStore;
class WindowArea;
class frmSTATS;

class PreviewDesk : public QObject {
  Q_OBJECT
 public:
  // All must outlive it; `window` is in front of which it asks.
  PreviewDesk(const Workshop& workshop, TeamStore& teams, WindowArea& area, ReportOutput& output,
              QWidget& window);
  // Its commands: the reports of a scorecard, a season and teams.
  void serve(CommandBar& commands);

  // In the preview that is open, or a new one.
  void show(std::vector<ReportOffer> offers);
  // The games chosen in that window, to one file.
  void saveGames(const frmSTATS& window);
  // The reports of a season's window, that one first.
  void printSeason(frmSTATS& window, SeasonReport first);

 signals:
  void reported(const QString& message);

 private:
  Workshop m_workshop;
  TeamStore& m_teams;
  WindowArea& m_area;
  ReportOutput& m_output;
  QWidget& m_window;
  QPointer<QMdiSubWindow> m_askedFrom; // comes back to the front when the preview closes
};

} // namespace hooptab
