// The live window: ten player panels, score and clock, the benches and the list of events. Lays out, hands
// what is pressed to the live game, and shows it again; what happens is the game's to decide.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/WidgetsFirst.h"
#include "court/ZoneMap.h"
#include "game/Side.h"
#include "recording/EventCorrection.h"
#include "recording/FollowUpQuestion.h"
#include "recording/FoulThrows.h"
#include "recording/GameSession.h"
#include "recording/Slot.h"
#include "recording/ToggleGuard.h"
#include "storage/GameLock.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

class QBoxLayout;
class QScrollArea;
class QShortcut;

namespace hooptab {

class BenchPanel;
class BenchShot;
class CorrectionBar;
class Dialogs;
class EventRequests;
class FollowUpBar;
class FreeThrowBar;
class LiveEventPanel;
class GameHold;
class LiveFile;
class LiveKeys;
class LiveNotices;
class NowStrip;
class PeriodEndCard;
class PanelGrid;
class RepeatedPress;
class ScorePanel;
class Settings;
class SideSwitch;
class Texts;
class frmBENCH;
class frmSUBST;
struct KeypadSetup;

class frmLIVE : public ChildWindow {
  Q_OBJECT
 public:
  // All must outlive it.
  frmLIVE(ProfileStore& store, Settings& settings, const Texts& texts, Dialogs& dialogs, TimeSource& time,
          QWidget* parent = nullptr);
  ~frmLIVE() override;

  // A game that is recorded elsewhere opens for reading, and so does one that cannot be written. A lock that
  // was taken before, for a game that was just made, is handed over. On every problem what was open stays.
  enum class Opening { Opened, Refused, Problem };
  [[nodiscard]] Opening open(const QString& path, GameLock lock = {});
  // Whether the file is looked after; not while a new game may take its place.
  void setWatching(bool isOn) { m_session.change()->disk().setWatching(isOn); }
  bool writeCopy(const QString& path);
  void writePending() { m_session.change()->settle(); }
  [[nodiscard]] GameHold& hold() const;
  [[nodiscard]] GameSession& session() { return m_session; } // for whoever listens or follows
  GameFileProblem problem() const { return m_problem; }      // after Problem
  QString path() const;
  const Game& game() const { return m_game.game(); } // as recorded so far
  const GameState& state() const { return m_game.state(); }
  bool isRunning() const { return m_game.phase() == LiveGame::Phase::Running; }

  void setKeypad(const KeypadSetup& setup);
  void keypadSwitched(); // the setting was changed

  void tell(const QString& words); // where it says what it has done itself
  void switchSides();
  void gameOver();
  void switchBench(); // opens the window for the bench, or closes it

  void relabelWindow() override;
  void applyColours() override;
  bool mayClose() override; // asks while the clock runs, and when something is not on disk; stops the clock
  QByteArray arrangement() const override;
  void restoreArrangement(const QByteArray& arrangement) override;

 protected:
  // A player of the bench, dropped on a panel of his team: he comes for the one who stands there.
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 signals:
  void commandStateChanged(); // the clock was started or stopped

 private:
  QWidget* makePanels();
  QWidget* makeSide();
  void connectEverything();
  void connectShots();
  void connectCard();
  void connectKeys();
  void connectPlayers();
  void connectLeague();
  void correct(const EventPlace& event);
  void addPlayer(Side team);
  void putInPlace(Slot slot);
  void askFives();
  void proposeFives(frmSUBST& several);
  void tellMissing();
  void placeOverlays();
  QScrollArea* makeScroll(QWidget* content);
  void applyMeasure();
  [[nodiscard]] QString pendingWords() const;
  void showSides();
  void showGame();
  void showSelected();
  void showTime();
  void tick();
  void toggleClock();
  void refuseClock(Text text);
  void say(Text text);
  void setOnCourt(const OnCourt& onCourt);
  void hear(const GameNews& news);
  void withdrawAfter(LiveGame::Phase before);
  void afterShot(Side team, int player, EventCode kind, bool isMade);
  void tellTarget(Side team, EventCode kind, bool isMade);
  void afterAction(Side team, int player, EventCode kind);
  void ask(Side team, int player, EventCode kind, bool isMade);
  void offerChips(EventCode kind);
  void nameOpponent(const FollowUpQuestion::Answer& answer);
  void showThrows();
  void throwFree(bool isMade);
  [[nodiscard]] bool isOwed(Side team, int player, EventCode kind) const; // on the strip
  void showLeague();
  [[nodiscard]] bool isSlip(EventCode kind, Side team);
  void noteOfTeam(EventCode kind, Side team);
  void takeTimeOut(Side team, const std::string& kind = {});
  void setArrow(Side team);
  void showTeamMenu(Side team, const QPoint& place);
  bool recordOfTeam(std::optional<Side> team, EventCode kind, const std::string& detail);
  void offerToPutIn(const EventPlace& event, Side team, int player);
  void askBenchShot(Side team, int player, const QPoint& place);
  void shootFromBench(EventCode kind, bool isMade, std::optional<std::pair<double, double>> place);
  void markDoubtful();
  void showPeriodEnd();
  void askOvertime();
  void shoot(Slot slot, EventCode kind, bool isMade,
             std::optional<std::pair<double, double>> place = std::nullopt);
  bool playsRightOf(Side team) const { return (team == Side::Home) != m_isSwitched; }
  void pressCourt(Slot slot, const QPointF& place, bool isMade);
  void act(Slot slot, EventCode kind);
  void followUp(const FollowUpQuestion::Answer& answer, EventCode kind);
  bool record(Side team, int player, EventCode kind);
  bool playsRight(Slot slot) const { return playsRightOf(slot.team()); }
  void chooseColour(Side team);

  ProfileStore& m_store;
  Settings& m_settings;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  GameSession m_session;
  const LiveGame& m_game = m_session.game();
  GameSession::Listening m_listening;
  bool m_isOpening = false; // what is shown meanwhile is shown again
  GameFileProblem m_problem = GameFileProblem::None;
  bool m_isSwitched = false;
  bool m_rowsStay = false; // of panels, plates and benches, where the sides are switched
  int m_endedPeriod = 0;   // shown last
  bool m_offersClock = false;
  bool m_hasMissed = false; // in this game, while nobody is asked for rebounds
  ToggleGuard m_toggles;
  QElapsedTimer m_sinceBegin; // for m_toggles
  std::function<void()> m_afterQuestion;
  QTimer m_timer; // Timer1
  QTimer m_lock;  // while the clock cannot be started

  LiveFile* m_file = nullptr;
  LiveNotices* m_notices = nullptr;
  QBoxLayout* m_parts = nullptr;
  QScrollArea* m_panelScroll = nullptr;
  QScrollArea* m_sideScroll = nullptr;
  NowStrip* m_now = nullptr;
  SideSwitch* m_sides = nullptr;
  PanelGrid* m_panels = nullptr;
  ScorePanel* m_score = nullptr;
  BenchPanel* m_bench = nullptr;
  LiveEventPanel* m_events = nullptr;
  FollowUpBar* m_followUp = nullptr;
  FreeThrowBar* m_throwBar = nullptr;
  FoulThrows m_throws;
  std::vector<QShortcut*> m_leagueKeys;
  QElapsedTimer m_sinceOfTeam; // the last of m_lastOfTeam
  std::pair<EventCode, Side> m_lastOfTeam = {EventCode::Unknown, Side::Visitor};
  EventPlace m_asked;        // the event that the questions are about
  QWidget* m_side = nullptr; // the column beside the panels
  LiveKeys* m_keys = nullptr;
  RepeatedPress* m_repeats = nullptr;
  EventRequests* m_requests = nullptr;
  PeriodEndCard* m_card = nullptr;
  CorrectionBar* m_correction = nullptr;
  EventCorrection::Who m_askedAbout; // by the follow-up
  frmBENCH* m_assistant = nullptr;   // once it was asked for
  QByteArray m_assistantPlace;       // as it was left
  Side m_assistantTeam = Side::Visitor;
  BenchShot* m_benchShot = nullptr;
  Side m_benchTeam = Side::Visitor; // whose shot m_benchShot asks for
  int m_benchPlayer = 0;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
