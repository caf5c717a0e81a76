// A game as it is recorded: clock, periods and overtime, who is on court, shots and actions, what follows
// them, and taking back. Every count comes from the tally of its log; every change is on disk, or waits to
// be, when the call returns. Decides for the live window and knows none.
#pragma once

#include "game/FreeThrows.h"
#include "game/Side.h"
#include "recording/CourtSlots.h"
#include "recording/GameEditing.h"
#include "recording/GameFlow.h"
#include "recording/LiveHistory.h"
#include "recording/LiveLog.h"
#include "recording/NewPlayer.h"
#include "recording/Slot.h"
#include "recording/TimeSource.h"

#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace hooptab {

class LiveGame {
 public:
  // Both must outlive it.
  LiveGame(ProfileStore& store, TimeSource& time);

  // Shows the game as it was left. On a problem the game that was open stays.
  enum class Access { Recording, Reading };
  [[nodiscard]] GameFileProblem open(const std::string& path, Access access = Access::Recording);

  const Game& game() const { return m_log.game(); }
  const GameState& state() const { return m_log.state(); }
  const LiveLog& log() const { return m_log; }
  const GameOnDisk& disk() const { return m_log.disk(); }
  GameOnDisk& disk() { return m_log.disk(); }
  // Looks at the file, brings it back to what was recorded and writes what waits. Whether everything is on
  // disk now.
  bool settle() { return m_access == Access::Reading || m_log.settle(); }
  // Takes in what others made of the file, between two actions: what to tell the user.
  [[nodiscard]] ForeignHands takeForeignHands();
  // What has become of events, players and details since it was last asked for.
  [[nodiscard]] GameNews takeNews() { return m_log.takeNews(); }
  bool writeCopy(const std::string& path) { return m_log.writeCopy(path); }

  // --- Clock and periods
  using Phase = GameFlow::Phase;
  Phase phase() const { return m_flow.phase(); }
  bool canRecord() const { return m_flow.isOpen(); }
  bool hasTime() const { return m_log.game().details.minutesPerPeriod > 0; }
  int period() const { return m_flow.period(); }
  bool isOvertime() const { return period() > m_log.game().details.periods; }
  const GameClock& clock() const { return m_flow.clock(); }
  int clockSeconds() const; // that remain
  int fullLength() const;   // of this period, in seconds; 0 in a game without time
  bool isHalfTime() const;  // the second half is next, and nothing has happened in it yet
  // START or STOP. At 00:00 it decides once more how the period ended.
  void toggleClock();
  void start();
  void stop();
  // Seconds for which nobody can start the clock, because a period has just ended: who reacts to the horn
  // with the key that stops would start the next one.
  int startLock() const { return m_flow.startLock(); }
  // To be called once a second or more often while the clock runs; stops at 00:00.
  void tick();
  // Stops, and notes in the game that its window was closed in mid-play; `now` is the wall clock, in seconds
  // since 1970.
  void stopForClosing(std::int64_t now);
  // The same, as it was left: that stop is still the last event.
  bool wasClosedInPlay() const;
  // The clock stands, but the events say that it runs: the game was left without a stop. The next start puts
  // it in, at the clock shown; so does settleStop(), at that clock.
  bool isStopLost() const;
  bool settleStop(int clockSeconds);
  // While the clock stands, in a game with time: sets what remains, at most the length of a period.
  bool setClock(int seconds);
  // By hand, while the clock stands; 1 and up.
  bool setPeriod(int period);
  // After the buzzer, until START: back into the period that has ended, with its clock at 00:00.
  bool canReturnToEndedPeriod() const { return endedPeriod() > 0; }
  // The one that has ended; 0: none, since the last start.
  int endedPeriod() const { return m_flow.endedPeriod(); }
  bool returnToEndedPeriod();
  // From OvertimeAsked; 1 to 99 minutes.
  bool beginOvertime(int minutes, bool keepsFouls);
  void finish(const std::string& notes);
  void saveNotes(const std::string& notes);
  void reopen();
  void setTeamColour(Side team, std::uint32_t colour); // as files keep colours
  // Keys of the game's details with their values, which an empty one clears; what belongs to nobody's action.
  bool setDetails(const std::vector<std::pair<std::string, std::string>>& keysAndValues);
  // How much is asked for; it can be changed at any time, and what was recorded stays.
  RecordingLevel level() const { return game().details.recordingLevel(); }

  // --- Players
  int playerIn(Slot slot) const { return m_slots.playerIn(slot); } // 0: nobody
  std::optional<Slot> slotOf(Side team, int player) const { return m_slots.slotOf(team, player); }
  // IN or OUT by one click. False: no such player, five are on court, or nothing can be recorded. While the
  // clock runs, what leaves fewer on court than could play is pending.
  bool toggleOnCourt(Side team, int player);
  // A substitution of which only a part was clicked. It is on court here, and written with the clock of its
  // first click when it is whole, before whatever is recorded next, or after some seconds.
  struct Pending {
    OnCourt before = {};
    int clockSeconds = 0;
    std::int64_t since = 0;                               // the time of its first click
    std::optional<std::int64_t> wallClock = std::nullopt; // then
  };
  static constexpr int kLongestPending = 20; // seconds
  const std::optional<Pending>& pending() const { return m_pending; }
  bool writePending();
  // Several at once, both teams as they shall stand; one event. More than five of a team is refused.
  bool setOnCourt(const OnCourt& onCourt);
  bool takeAllOut(Side team);
  // How many of a team can stand on court: five, or all who have not fouled out.
  [[nodiscard]] int fullNumber(Side team) const;
  // IN of a player of that slot's team; where places are kept he takes exactly this one. False: he is on
  // court or nobody, the slot is taken, or nothing can be recorded.
  bool putInSlot(Slot slot, int player);
  // Off: after an IN those on court stand in order of the roster. On: nobody moves for one who comes. To be
  // set before a game is opened that shall be shown as it was left.
  void setKeepsPlaces(bool isOn) { m_slots.setKeepsPlaces(isOn); }
  OnCourt onCourt() const { return m_slots.onCourt(); }
  const CourtSlots& places() const { return m_slots; }
  // A player who came late, or was forgotten, behind all others of his team; on the bench. In the file at
  // once, and no action that could be taken back: his events can be, and he stays. Events and lists that name
  // his number already count for him from then on. Jersey and name come trimmed; the name may be empty.
  [[nodiscard]] NewPlayer addPlayer(Side team, std::string_view jersey, std::string_view name);

  // --- What is counted
  // Of a player on court or on the bench, who can be given a technical foul. The place in left-hand
  // orientation; none for kinds without one. False: no such player (an empty slot), or nothing can be
  // recorded.
  bool recordShot(Side team, int player, EventCode kind, bool isMade,
                  std::optional<std::pair<double, double>> place = std::nullopt);
  bool recordAction(Side team, int player, EventCode kind);
  // The assist or rebound of the shot that was recorded last, or what follows another event: behind it when
  // its period has ended since.
  bool recordFollowUp(Side team, int player, EventCode kind) {
    return recordFollowUp(m_lastShot, team, player, kind);
  }
  bool recordFollowUp(const EventPlace& event, Side team, int player, EventCode kind);
  const EventPlace& lastShot() const { return m_lastShot; } // that was recorded here; period 0: none
  // What was recorded here last, a shot or anything else.
  const EventPlace& lastAdded() const { return m_lastAdded; }

  // --- What a league's sheet holds beside that
  // Keys of details with their values.
  using Details = std::vector<std::pair<std::string_view, std::string>>;
  // What a team does and none of its players; without a team: nobody's time-out.
  bool recordOfTeam(std::optional<Side> team, EventCode kind, const Details& details = {});
  // What more is known of an event; an empty value takes a detail away. Is taken back with the event while
  // that is the last action.
  bool setDetailsOf(const EventPlace& event, const Details& details);
  // The throw of that number, where it is known: two fouls at one clock are not always shot in their order.
  bool recordFreeThrow(Side team, int player, bool isMade, int number, int awarded);
  // The turnover that was recorded last was nobody's in particular, but his team's.
  bool giveToTeam(const EventPlace& turnover);
  [[nodiscard]] std::optional<Side>
  arrow() const; // whose the next held ball is; nobody knows before the first
  // The free throws of the period, as far as they were taken.
  [[nodiscard]] FreeThrows freeThrows() const;
  // What such a shot asks for; the places of the players who can be chosen.
  struct FollowUps {
    std::vector<Slot> assist;           // of the shooter's team, without him
    std::vector<Slot> offensiveRebound; // of the shooter's team
    std::vector<Slot> defensiveRebound; // of the other
    // Of the other team: who drew the foul, who shoots for a technical one, who stole the ball.
    std::vector<Slot> opponents = {};
    bool asksTeam = false;  // the rebound or turnover can be the team's
    bool asksBlock = false; // the shot can have been blocked
    bool isEmpty() const {
      return assist.empty() && offensiveRebound.empty() && defensiveRebound.empty() && opponents.empty();
    }
  };
  FollowUps followUps(Side team, int player, EventCode kind, bool isMade, bool asksRebounds) const;

  // --- Taking back
  // A start of the clock in this session, with nothing but events of the clock behind it and its period not
  // at its end, comes before all else.
  std::optional<LiveAction> toUndo() const;
  const LiveAction* toRedo() const { return m_history.toRedo(); }
  bool undo();
  bool redo();

  // --- Editing; each is one action, as GameEditing plans it. False: nothing was changed.
  using Where = GameEditing::Where;
  using Counted = GameEditing::Counted;
  [[nodiscard]] GameEditing editing() const { return GameEditing(m_log); }
  // A plan for the game as it stands.
  bool take(const EditPlan& plan);
  bool setDeleted(std::span<const EventPlace> events, bool isDeleted) {
    return writePending() && take(editing().deletion(events, isDeleted));
  }
  bool canDelete(const EventPlace& event) const { return editing().canDelete(event); }
  bool replaceEvent(const EventPlace& event, int clockSeconds, const std::string& eventText) {
    return writePending() && take(editing().replacement(event, clockSeconds, eventText));
  }
  bool setTime(const EventPlace& event, int clockSeconds) {
    return writePending() && take(editing().newTime(event, clockSeconds));
  }
  bool editEvent(const EventPlace& event, int clockSeconds, const Counted& counted) {
    return writePending() && take(editing().change(event, clockSeconds, counted));
  }
  bool insertEvent(const EventPlace& at, Where where, int clockSeconds, const Counted& counted) {
    return writePending() && take(editing().insertion(at, where, clockSeconds, counted));
  }
  bool insertSubstitution(const EventPlace& at, Where where, const OnCourt& out, const OnCourt& in) {
    return writePending() && take(editing().substitution(at, where, out, in));
  }
  // To be looked at again. Of what is recorded, not of the clock's own events.
  [[nodiscard]] std::optional<EventPlace> lastRecorded() const;
  bool setDoubtful(const EventPlace& event, bool isDoubtful);
  // A finding that is right as it is, by its kind as a number, until the event is changed.
  bool acceptFinding(const EventPlace& event, int finding);
  // Of the last plan that was refused.
  const std::optional<CourtConflict>& conflict() const { return m_conflict; }

 private:
  [[nodiscard]] int lengthOf(int period) const;
  [[nodiscard]] bool isTied() const { return state().points(Side::Visitor) == state().points(Side::Home); }
  void standIn(int period);                               // the whole of it before it
  std::string lineOf(const std::string& eventText) const; // at the present clock
  EventChange added(const std::string& line);
  bool record(const std::string& eventText, Text text);
  [[nodiscard]] std::string withNumberOfThrow(std::string eventText, const PlayerReference& thrower) const;
  [[nodiscard]] std::string withBlockedShot(std::string eventText, Side team) const;
  [[nodiscard]] bool turnsArrow() const;
  [[nodiscard]] bool isLastThrow() const;
  void recordStop(std::optional<std::int64_t> when);
  void checkCounts() const;
  void leavePeriod();
  void closePeriod();
  void showAsLeft();
  void putOnCourt(const OnCourt& lists) { m_slots.put(lists); }
  void comeAndGo();
  bool keepListsMeaning(Side team, const RosterPlayer& added);
  bool mayStand(const OnCourt& wanted) const;
  bool changeByClick(const OnCourt& wanted);
  bool isWhole(const OnCourt& wanted) const;
  bool recordOnCourt(int clockSeconds, std::optional<std::int64_t> wallClock);
  bool done(Text text, const std::vector<EventChange>& steps, std::vector<EventChange> back,
            std::optional<std::int64_t> wallClock = std::nullopt);
  [[nodiscard]] std::optional<std::int64_t> wallClock() const;
  [[nodiscard]] const GameEvent* openSubstitution(int clockSeconds) const;
  [[nodiscard]] std::optional<LiveAction> startToTakeBack() const;
  bool takeStartBack(LiveAction start);
  void offerEarlier();
  bool turn(const LiveAction& action, std::vector<EventChange>& inverse);

  LiveLog m_log;
  Access m_access = Access::Recording;
  TimeSource& m_time;
  GameFlow m_flow;
  LiveHistory m_history;
  std::optional<CourtConflict> m_conflict;
  CourtSlots m_slots;
  std::optional<Pending> m_pending;
  bool m_wasLeftRunning = false; // when it was opened; until the clock is started or the stop put in
  std::map<int, int>
      m_starts;          // of this session: the event's number, and the period to which one could return
  EventPlace m_lastShot; // of this session, as the next
  EventPlace m_lastAdded;
};

} // namespace hooptab
