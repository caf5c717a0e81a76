#include "game/GameOnDisk.h"

#include "game/WallClock.h"
#include "storage/Module1.h"
#include "storage/codepage.h"

#include <algorithm>
#include <set>
#include <span>

namespace hooptab {

namespace {

constexpr std::string_view kRescueEnding = ".rescue"; // not that of a game: a season would count it twice

PeriodLines asStored(std::span<const GameEvent> events) {
  PeriodLines stored;
  stored.reserve(events.size());
  for (const GameEvent& event : events)
    stored.emplace_back(codepage::fromUtf8(event.key), codepage::fromUtf8(event.whole()));
  return stored;
}

// All events where the file of that text has others, and the number that the next one gets.
void addLines(const EventList& all, const ProfileText& text, ProfileBatch& batch) {
  const EventLines present = storedEventLines(text);
  int highest = 0;
  std::set<int> periods;
  for (const GameEvent& event : all) {
    highest = std::max(highest, Module1::leadingNumber(event.key));
    periods.insert(event.period);
  }
  for (const int period : periods) {
    PeriodLines stored = asStored(all.ofPeriod(period));
    const auto found = present.find(period);
    if (found == present.end() || stored != found->second)
      batch.setStoredSectionLines(periodSection(period), std::move(stored));
  }
  if (highest > 0)
    batch.set(std::string(kDetailsSection), "EVENUM", std::to_string(highest + 1));
}

std::string_view nameOf(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

} // namespace

void GameOnDisk::open(const std::string& path, const ProfileText& text) {
  m_guard.begin(path, text);
  m_rescuedAs.clear();
  m_isLost = false;
  m_isWatching = true;
  m_steps.clear();
  m_values.clear();
  m_pending.clear();
  m_foreign = {};
}

bool GameOnDisk::change(const std::vector<EventChange>& steps, const EventList& all, const Sections& more) {
  for (const auto& [section, values] : more)
    note(section, values);
  m_steps.insert(m_steps.end(), steps.begin(), steps.end());
  m_pending.add();
  return settle(all);
}

bool GameOnDisk::set(std::string_view section, const Values& values, const EventList& all) {
  note(section, values);
  m_pending.add();
  return settle(all);
}

void GameOnDisk::note(std::string_view section, const Values& values) {
  for (const auto& [key, value] : values) {
    std::optional<std::string> before;
    if (const auto stored = m_guard.left().value(section, key))
      before = codepage::toUtf8(*stored);
    m_values[{std::string(section), key}] = {std::move(before), value};
  }
}

bool GameOnDisk::settle(const EventList& all) {
  if (!m_isWatching)
    return isOnDisk();
  m_isLost = m_isLost || (m_isOurs && !m_isOurs());
  // A file that is lost is not written: the disk has no reason to give.
  const WriteResult written = m_isLost ? WriteResult() : lookAndSettle(all);
  if (!written.isOnDisk() || m_isLost) {
    m_pending.refuse(written.error(), m_store.files().nowNanoseconds());
    rescue(all);
    return isOnDisk();
  }
  m_steps.clear();
  for (auto& [place, value] : m_values)
    value.isWaiting = false;
  m_pending.clear();
  if (!m_rescuedAs.empty()) { // the game stands where it belongs
    m_store.files().remove(m_rescuedAs);
    m_rescuedAs.clear();
  }
  return true;
}

WriteResult GameOnDisk::lookAndSettle(const EventList& all) {
  WriteResult written = settleFound(all, m_guard.look());
  if (!written.isOnDisk() && m_guard.look() == FileGuard::Found::Changed) // while it was being written
    written = settleFound(all, FileGuard::Found::Changed);
  return written;
}

WriteResult GameOnDisk::settleFound(const EventList& all, FileGuard::Found found) {
  switch (found) {
  case FileGuard::Found::AsLeft: return isOnDisk() ? WriteResult() : writeSteps(all);
  case FileGuard::Found::Changed: return bringTogether(all);
  case FileGuard::Found::Gone:
  case FileGuard::Found::Unusable: return rewrite(all);
  case FileGuard::Found::OutOfReach: break;
  }
  return m_guard.obstacle();
}

WriteResult GameOnDisk::writeSteps(const EventList& all) {
  ProfileBatch batch;
  if (!GameFile::plan(m_steps, m_guard.left(), batch)) // it holds what others added, and was not taken in yet
    return bringTogether(all);
  addValues(m_guard.left(), batch);
  return m_guard.write(batch);
}

void GameOnDisk::addValues(const ProfileText& text, ProfileBatch& batch) const {
  // Times of the game that stood in this file before are none of this one's. Whose they are stands first.
  const std::string section(kWallClockSection);
  const auto owner = m_values.find({section, std::string(kWallClockOwner)});
  const auto stored = text.value(section, kWallClockOwner);
  const bool isOthers = owner != m_values.end() && stored != owner->second.value;
  if (isOthers) {
    if (text.hasSection(section))
      batch.deleteSection(section);
    batch.set(section, owner->first.second, owner->second.value);
  }
  for (const auto& [place, value] : m_values) {
    if (value.isWaiting || (isOthers && place.first == section))
      batch.set(place.first, place.second, value.value);
  }
}

WriteResult GameOnDisk::bringTogether(const EventList& all) {
  const ProfileText theirs = m_guard.found();
  const GameMerge merge = mergeGame(all, m_guard.left(), theirs);
  if (merge.isHidden)
    return rewrite(all);
  // Kept before it is changed: what cannot be kept is not overwritten.
  if (!merge.gaveWay.empty()) {
    if (WriteResult kept = m_guard.keepFound(); !kept.isOnDisk())
      return kept;
  }

  ProfileBatch batch;
  addLines(merge.events, theirs, batch);
  addMissingPlayers(all, batch);
  addValues(theirs, batch);
  // A file that went back to an older version has lost what was set since, too.
  for (const auto& [place, value] : m_values) {
    const auto stored = theirs.value(place.first, place.second);
    const std::optional<std::string> now = stored ? std::optional(codepage::toUtf8(*stored)) : std::nullopt;
    if (!value.isWaiting && now != value.value && (merge.restored > 0 || now == value.before))
      batch.set(place.first, place.second, value.value);
  }
  addTimes(merge, theirs, batch);
  if (WriteResult written = m_guard.write(batch); !written.isOnDisk())
    return written;
  m_foreign.isTouched = true;
  m_foreign.added += merge.added;
  m_foreign.restored += merge.restored;
  m_foreign.gaveWay.insert(m_foreign.gaveWay.end(), merge.gaveWay.begin(), merge.gaveWay.end());
  noteWhatWasKept();
  return {};
}

// Times go with their events: those of lines that come back, too, and those of lines that gave way stay with
// none of ours.
void GameOnDisk::addTimes(const GameMerge& merge, const ProfileText& theirs, ProfileBatch& batch) const {
  const std::string section(kWallClockSection);
  const ProfileText& left = m_guard.left();
  const auto owner = m_values.find({section, std::string(kWallClockOwner)});
  const bool areOurs = owner == m_values.end() || left.value(section, kWallClockOwner) == owner->second.value;
  if (merge.restored > 0 && areOurs) {
    for (const ProfileText::Line& line : left.section(section)) {
      if (line.kind == ProfileText::Line::Kind::KeyValue && !theirs.value(section, line.name))
        batch.set(section, codepage::toUtf8(line.name), codepage::toUtf8(line.value));
    }
  }
  for (const EventPlace& event : merge.gaveWay) {
    if (!theirs.value(section, event.key))
      continue;
    const auto own = m_values.find({section, event.key});
    const auto before = left.value(section, event.key);
    batch.set(section, event.key,
              own != m_values.end() ? own->second.value
              : before && areOurs   ? std::string(*before)
                                    : "0");
  }
}

// A player whom the events name cannot be missed.
void GameOnDisk::addMissingPlayers(const EventList& all, ProfileBatch& batch) {
  const ProfileText& left = m_guard.left();
  const ProfileText& theirs = m_guard.found();
  for (const Side team : kSides) {
    const std::string section = rosterSection(team);
    for (const ProfileText::Line& line : left.section(section)) {
      if (line.kind != ProfileText::Line::Kind::KeyValue || theirs.value(section, line.name))
        continue;
      if (const std::string jersey = codepage::toUtf8(line.name); isNamed(all, team, jersey))
        batch.set(section, jersey, codepage::toUtf8(line.value));
    }
  }
}

// With what others had added and was not taken in yet.
ProfileBatch GameOnDisk::whole(const EventList& all) const {
  ProfileBatch batch;
  addLines(mergeGame(all, m_guard.left(), m_guard.left()).events, m_guard.left(), batch);
  addValues(m_guard.left(), batch);
  return batch;
}

WriteResult GameOnDisk::rewrite(const EventList& all) {
  if (WriteResult written = m_guard.rewrite(whole(all)); !written.isOnDisk())
    return written;
  m_foreign.isTouched = true;
  m_foreign.isRewritten = true;
  noteWhatWasKept();
  return {};
}

void GameOnDisk::noteWhatWasKept() {
  if (std::string kept = m_guard.takeKeptAs(); !kept.empty())
    m_foreign.keptAs = std::move(kept);
}

// Only what waits needs rescue: all else is on disk, or was.
void GameOnDisk::rescue(const EventList& all) {
  if (m_rescueFolder.empty() || isOnDisk() || (!m_rescuedAs.empty() && m_rescuedChanges == waiting()))
    return;
  std::string path = m_rescuedAs;
  if (path.empty()) {
    path = m_rescueFolder + '/';
    path += nameOf(m_guard.path());
    path += kRescueEnding;
    FileStamp taken; // by an earlier session
    if (m_store.files().stamp(path, taken))
      path = freeNameBeside(m_store.files(), path);
  }
  if (path.empty() || !m_guard.writeCopy(path, whole(all)).isOnDisk())
    return;
  m_rescuedAs = path;
  m_rescuedChanges = waiting();
}

bool GameOnDisk::writeCopy(const std::string& path, const EventList& all) {
  return m_guard.writeCopy(path, whole(all)).isOnDisk();
}

} // namespace hooptab
