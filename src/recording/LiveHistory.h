// What the user has done, for taking it back and doing it again: actions, each with the steps that do and
// undo it. What earlier sessions have left comes behind this one's; a new action ends what could be done
// again.
#pragma once

#include "recording/GameFlow.h"
#include "recording/OnCourt.h"
#include "settings/Text.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

struct LiveAction {
  Text text = Text::None; // names the kind of action in words
  EventPlace event = {};
  std::vector<EventChange> steps = {}; // that take it back; of one that was taken back, that do it again
  int nextNumber = 0; // of events when it was done: what has this number or a higher one came later
  // Of a start of the clock that was taken back: how it went on, for doing it again as if nothing had been.
  std::optional<GameFlow::Stand> start = std::nullopt;
};

class LiveHistory {
 public:
  void add(LiveAction action) {
    m_done.push_back(std::move(action));
    m_undone.clear();
  }
  // More has become known of the event that the last action has recorded or edited: it is taken back with
  // that. `deletion` marks the event as it is now. False where the last action is another.
  bool amend(const EventChange& deletion) {
    if (m_done.empty() || m_done.back().steps.size() != 1)
      return false;
    EventChange& back = m_done.back().steps[0];
    if (back.period != deletion.period || back.key != deletion.key)
      return false;
    if (back.line.starts_with('E')) // it was recorded; the way back of an edit leads behind this one as well
      back = deletion;
    m_undone.clear();
    return true;
  }
  // Taken back, though it was never added: a start of the clock is found in the lines alone.
  void addUndone(LiveAction action) { m_undone.push_back(std::move(action)); }
  void dropUndone() { m_undone.pop_back(); }
  // The clock has been turned or set otherwise since.
  void forgetStarts() {
    std::erase_if(m_undone, [](const LiveAction& action) { return action.start.has_value(); });
  }
  // Of an earlier session, when nothing of this one is left to be taken back.
  void addEarlier(LiveAction action) { m_done.insert(m_done.begin(), std::move(action)); }
  void clear() {
    m_done.clear();
    m_undone.clear();
  }
  // The next to be taken back, or done again; null when there is none.
  const LiveAction* toUndo() const { return m_done.empty() ? nullptr : &m_done.back(); }
  const LiveAction* toRedo() const { return m_undone.empty() ? nullptr : &m_undone.back(); }
  // The last action was taken back, and done again; `steps` and `nextNumber` are those for the way back.
  void undone(std::vector<EventChange> steps, int nextNumber) {
    turn(m_done, m_undone, std::move(steps), nextNumber);
  }
  void redone(std::vector<EventChange> steps, int nextNumber) {
    turn(m_undone, m_done, std::move(steps), nextNumber);
  }

 private:
  using Actions = std::vector<LiveAction>;
  static void turn(Actions& from, Actions& to, std::vector<EventChange> steps, int nextNumber) {
    LiveAction action = std::move(from.back());
    from.pop_back();
    action.steps = std::move(steps);
    action.nextNumber = nextNumber;
    to.push_back(std::move(action));
  }

  Actions m_done;
  Actions m_undone;
};

} // namespace hooptab
