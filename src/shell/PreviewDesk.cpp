#include "shell/PreviewDesk.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "printing/ReportOutput.h"
#include "printing/frmWEEKEND.h"
#include "review/frmVIEW.h"
#include "shell/CommandBar.h"
#include "shell/PrintOffers.h"
#include "shell/WindowArea.h"
#include "shell/WindowMemory.h"
#include "studies/frmSTATS.h"

#include <QFileInfo>
#include <QMdiSubWindow>
#include <utility>

namespace hooptab {

namespace {

constexpr std::pair<CommandId, SeasonReport> kReportCommands[] = {
    {CommandId::TeamSummary, SeasonReport::TeamSummary},
    {CommandId::TeamDetail, SeasonReport::TeamDetail},
    {CommandId::PlayerShots, SeasonReport::PlayerShots},
    {CommandId::LineShots, SeasonReport::LineShots},
    {CommandId::PlayerOther, SeasonReport::PlayerOther},
    {CommandId::LineOther, SeasonReport::LineOther},
    {CommandId::LeadersTotal, SeasonReport::LeadersTotal},
    {CommandId::LeadersPerGame, SeasonReport::LeadersPerGame},
    {CommandId::LeadersPerMinute, SeasonReport::LeadersPerMinute},
    {CommandId::PlayerReport, SeasonReport::Player},
    {CommandId::LineReport, SeasonReport::Line},
};

} // namespace

PreviewDesk::PreviewDesk(const Workshop& workshop, TeamStore& teams, WindowArea& area, ReportOutput& output,
                         QWidget& window)
    : QObject(&window), m_workshop(workshop), m_teams(teams), m_area(area), m_output(output),
      m_window(window) {}

void PreviewDesk::serve(CommandBar& commands) {
  commands.serve(CommandId::PrintScorecard, this, [this] {
    if (const auto* view = qobject_cast<frmVIEW*>(m_area.front()))
      show(gameOffers(view->card().counted(), view->choice(), m_workshop.settings, m_workshop.texts));
  });
  for (const auto& [command, report] : kReportCommands) {
    commands.serve(command, this, [this, report = report] {
      if (auto* window = m_area.first<frmSTATS>())
        printSeason(*window, report);
    });
  }
  commands.serve(CommandId::GamesToFile, this, [this] {
    if (const auto* window = m_area.first<frmSTATS>())
      saveGames(*window);
  });
  commands.serve(CommandId::PrintSeason, this, [this] {
    if (auto* window = m_area.first<frmSTATS>())
      printSeason(*window,
                  reportOfPage(window->shownPage(), window->shownLeaders(), window->chosenPerson().get()));
  });
  commands.serve(CommandId::PreparedForms, this, [this] { show(teamForms(m_teams, m_workshop.texts)); });
  commands.serve(CommandId::BlankForms, this, [this] { show(emptyForms(m_workshop.texts)); });
}

void PreviewDesk::show(std::vector<ReportOffer> offers) {
  if (offers.empty())
    return m_workshop.dialogs.warn(&m_window, toQt(m_workshop.texts.text(Text::WarningTitle)),
                                   toQt(m_workshop.texts.text(Text::SelectTeamFirst)));
  auto* open = m_area.first<frmprint>();
  if (open == nullptr || m_area.front() != open)
    m_askedFrom = m_area.currentSubWindow();
  if (open != nullptr) {
    open->offer(std::move(offers));
    return m_area.bringToFront(*open);
  }
  auto* window = new frmprint(m_workshop.texts, m_workshop.dialogs, m_workshop.printers, m_output);
  window->offer(std::move(offers));
  m_area.add(*window);
  // Later: closing, the area chooses a window of its own.
  connect(
      window, &QObject::destroyed, this,
      [this] {
        if (m_askedFrom != nullptr)
          m_area.setActiveSubWindow(m_askedFrom);
      },
      Qt::QueuedConnection);
}

void PreviewDesk::saveGames(const frmSTATS& window) {
  const Texts& texts = m_workshop.texts;
  const std::vector<const ListedGame*> games = window.chosenGames();
  if (games.empty())
    return m_workshop.dialogs.inform(&m_window, toQt(texts.text(Text::WeekendTitle)),
                                     toQt(texts.text(Text::WeekendNoGame)));
  std::vector<std::string> paths;
  std::vector<std::string> dates;
  for (const ListedGame* game : games) {
    paths.push_back(game->path);
    dates.push_back(game->date);
  }
  QString folder = toQt(m_workshop.memory.exportFolder());
  if (!QFileInfo(folder).isDir()) // none yet, or it is gone
    folder = QFileInfo(toQt(paths.front())).absolutePath();
  frmWEEKEND dialog(std::move(paths), folder,
                    toQt(nameOfGames(std::move(dates), std::string(texts.text(Text::WeekendSummary)))),
                    m_workshop.store.files(), texts, m_workshop.dialogs, &m_window);
  if (dialog.exec() != QDialog::Accepted)
    return;
  m_workshop.memory.rememberExportFolder(fromQt(dialog.folder()));
  emit reported(dialog.message());
}

void PreviewDesk::printSeason(frmSTATS& window, SeasonReport first) {
  SeasonOffer offer;
  offer.season = window.statistics();
  offer.team = window.chosenTeam();
  offer.person = window.chosenPerson();
  offer.scouted = window.shownTeam();
  offer.reader = window.readingTeam();
  const auto question = [this](Text text) { return toQt(m_workshop.texts.text(text)); };
  if (const MissingForReport missing = missingFor(first, offer); missing != MissingForReport::Nothing) {
    const Text why = missing == MissingForReport::Person ? Text::ChooseSomebody
                     : missing == MissingForReport::Team ? Text::SelectTeamFirst
                                                         : Text::GenerateFirst;
    return m_workshop.dialogs.inform(&m_window, question(Text::ReportOption), question(why));
  }
  if (offer.person && canHighlight(first, *offer.person))
    offer.highlightsPerson =
        m_workshop.dialogs.ask(&m_window, question(Text::ReportOption), question(Text::Highlight));
  show(seasonOffers(offer, first, m_workshop.settings, m_workshop.texts));
}

} // namespace hooptab
