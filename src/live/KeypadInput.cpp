#include "live/KeypadInput.h"

#include "live/KeyCodes.h"
#include "storage/Module1.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

constexpr int kSubjectAndWords = 1801;
constexpr int kComesIn = 1960;
constexpr int kLeaves = 1959;
constexpr int kAllLeave = 1949;

constexpr int kNothingTyped = 1984;
constexpr int kNumberMissing = 1985;
constexpr int kActionMissing = 1986;
constexpr int kNoShotKind = 1987;
constexpr int kNotUnderstood = 1988;
constexpr int kAllAlone = 1989;
constexpr int kNoSuchPlayer = 1990;
constexpr int kOnlyInOtherTeam = 1991;
constexpr int kOnCourtAlready = 1992;
constexpr int kNotOnCourt = 1993;
constexpr int kCourtIsFull = 1994;
constexpr int kGameIsClosed = 1995;
constexpr int kTooLong = 1996;
constexpr int kNobodyOnCourt = 1997;

// By their digit, from 1.
constexpr EventCode kShots[] = {EventCode::GFT, EventCode::GFG, EventCode::GF3, EventCode::GLG,
                                EventCode::GLD, EventCode::GPB, EventCode::GDK};

EventCode codeOf(KeypadAction action) {
  switch (action) {
  case KeypadAction::PF: return EventCode::SPF;
  case KeypadAction::TF: return EventCode::STF;
  case KeypadAction::BS: return EventCode::SBS;
  case KeypadAction::ST: return EventCode::SST;
  case KeypadAction::DR: return EventCode::SDR;
  case KeypadAction::OR: return EventCode::SOR;
  case KeypadAction::TO: return EventCode::STO;
  case KeypadAction::A: return EventCode::SA;
  case KeypadAction::U1: return EventCode::SU1;
  case KeypadAction::U2: return EventCode::SU2;
  default: return EventCode::Unknown;
  }
}

KeypadOrder::Kind kindOfOrder(KeypadAction action) {
  switch (action) {
  case KeypadAction::IN: return KeypadOrder::Kind::In;
  case KeypadAction::OUT: return KeypadOrder::Kind::Out;
  case KeypadAction::All: return KeypadOrder::Kind::AllOut;
  default: return KeypadOrder::Kind::Action;
  }
}

std::string playerWords(const Game& game, int team, int player) {
  const RosterPlayer* who = game.roster[team].player(player);
  std::string words = game.details.abbreviation[team];
  if (who != nullptr)
    words += ' ' + who->jersey + ' ' + who->name;
  return words;
}

std::string actionWords(const KeypadOrder& order, const Texts& texts) {
  switch (order.kind) {
  case KeypadOrder::Kind::In: return std::string(texts.text(kComesIn));
  case KeypadOrder::Kind::Out: return std::string(texts.text(kLeaves));
  default: break;
  }
  const EventKind* kind = kindOf(order.code);
  const char* mark = order.kind != KeypadOrder::Kind::Shot ? "" : order.isMade ? "● " : "✕ ";
  return kind == nullptr ? std::string() : mark + std::string(texts.text(kind->wordsText));
}

// What stands against an order that makes sense in itself.
std::optional<KeypadReason> objection(const KeypadOrder& order, const LiveGame& game) {
  const auto team = static_cast<std::size_t>(order.team);
  const std::string& name = game.game().details.abbreviation[team];
  const bool isOnCourt = game.slotOf(order.team, order.player).has_value();
  const RosterPlayer* who = game.game().roster[team].player(order.player);
  const std::string jersey = who == nullptr ? std::string() : who->jersey;
  switch (order.kind) {
  case KeypadOrder::Kind::In:
    if (isOnCourt)
      return KeypadReason{kOnCourtAlready, {jersey, name}};
    if (std::popcount(game.onCourt()[team]) >= kMostOnCourt)
      return KeypadReason{kCourtIsFull, {name}};
    return std::nullopt;
  case KeypadOrder::Kind::Out:
    return isOnCourt ? std::nullopt : std::optional(KeypadReason{kNotOnCourt, {jersey, name}});
  case KeypadOrder::Kind::AllOut:
    return game.onCourt()[team] != 0 ? std::nullopt : std::optional(KeypadReason{kNobodyOnCourt, {name}});
  default: return std::nullopt;
  }
}

} // namespace

bool carryOut(LiveGame& game, const KeypadOrder& order) {
  switch (order.kind) {
  case KeypadOrder::Kind::Shot: return game.recordShot(order.team, order.player, order.code, order.isMade);
  case KeypadOrder::Kind::Action: return game.recordAction(order.team, order.player, order.code);
  case KeypadOrder::Kind::In:
  case KeypadOrder::Kind::Out: return game.toggleOnCourt(order.team, order.player);
  case KeypadOrder::Kind::AllOut: return game.takeAllOut(order.team);
  }
  return false;
}

std::string KeypadReason::words(const Texts& texts) const {
  std::string words = texts.withPlaceholder(text, parts[0]);
  words = Module1::withPlaceholder(words, parts[1], "YYY");
  return Module1::withPlaceholder(words, parts[2], "ZZZ");
}

void KeypadInput::setSetup(const KeypadSetup& setup) {
  m_setup = setup;
  clear();
}

void KeypadInput::clear() {
  m_typed.clear();
  m_reason.reset();
}

// A key of the keypad does the same with Num Lock off, unless that code is bound to something itself.
KeypadInput::Key KeypadInput::keyOf(const KeyPress& press) const {
  Key key;
  key.isKeypad = press.isKeypad;
  key.digit = keys::digit(press.code, press.isKeypad);
  key.action = m_setup.keys.actionOf(press.code);
  if (!key.action && press.isKeypad)
    key.action = m_setup.keys.actionOf(keys::otherCode(press.code));
  if (!key.action && !press.isKeypad) {
    const auto what = m_setup.letters.whatIs(press.code);
    key.isMiss = what == LetterAssignment::kMiss;
    if (what && !key.isMiss)
      key.action = static_cast<KeypadAction>(*what);
  }
  return key;
}

bool KeypadInput::isLine() const {
  return !m_typed.empty() && std::ranges::none_of(m_typed, &Key::isKeypad);
}

std::optional<int> KeypadInput::digitOf(const KeyPress& key) const {
  return keyOf(key).digit;
}

KeypadInput::Meaning KeypadInput::meaningOf(const KeyPress& press) const {
  const Key key = keyOf(press);
  if (key.action == KeypadAction::CLOCK)
    return Meaning::Clock;
  if (key.action == KeypadAction::CLR || press.code == keys::kEscape)
    return Meaning::Clear;
  if (key.action == KeypadAction::OK0 || key.action == KeypadAction::OK1)
    return Meaning::Confirm;
  if (key.digit)
    return Meaning::Digit;
  return key.action || key.isMiss ? Meaning::Other : Meaning::None;
}

std::optional<int> KeypadInput::teamOf(const KeyPress& press, const Game& game) const {
  const auto action = keyOf(press).action;
  if (action == KeypadAction::OK0)
    return game.details.mainTeam;
  return action == KeypadAction::OK1 ? std::optional(1 - game.details.mainTeam) : std::nullopt;
}

KeypadInput::Outcome KeypadInput::refuse(KeypadReason reason) {
  m_reason = std::move(reason);
  return Outcome::Refused;
}

// Shift makes no difference to a letter, and no key of ours of any other but the line's Enter.
bool KeypadInput::owns(const KeyPress& press) const {
  if (isLine() && !press.isKeypad && (press.code == keys::kEnter || press.code == keys::kBackspace))
    return true;
  if (press.hasShift && !keys::isLetter(press.code))
    return false;
  const Key key = keyOf(press);
  if (press.code == keys::kEscape && !key.action)
    return !isEmpty() || m_reason;
  return key.digit || key.action || key.isMiss;
}

KeypadInput::Outcome KeypadInput::press(const KeyPress& press, const LiveGame& game) {
  if (!owns(press))
    return Outcome::NotMine;
  if (isLine() && !press.isKeypad) {
    const int mainTeam = game.game().details.mainTeam;
    if (press.code == keys::kEnter)
      return confirm(press.hasShift ? 1 - mainTeam : mainTeam, true, game);
    if (press.code == keys::kBackspace) {
      m_typed.pop_back();
      m_reason.reset();
      return Outcome::Typed;
    }
  }
  const Key key = keyOf(press);
  if (key.action == KeypadAction::CLOCK)
    return Outcome::Clock;
  if (key.action == KeypadAction::CLR || (press.code == keys::kEscape && !key.action)) {
    clear();
    return Outcome::Cleared;
  }
  if (const auto team = teamOf(press, game.game()))
    return confirm(*team, false, game);
  if (m_reason) // what was refused is not gone on with: a confirm key tries again, another key begins anew
    clear();
  if (m_typed.size() == kMostKeys)
    return refuse({kTooLong});
  m_typed.push_back(key);
  return Outcome::Typed;
}

std::optional<std::string> KeypadInput::digits(std::size_t begin, std::size_t end) const {
  std::string digits;
  for (std::size_t place = begin; place < end; ++place) {
    if (!m_typed[place].digit)
      return std::nullopt;
    digits += static_cast<char>('0' + *m_typed[place].digit);
  }
  return digits;
}

// Jersey and kind: "122" is 12, kind 2.
KeypadInput::Reading KeypadInput::readShot(std::size_t begin, std::size_t end, bool isMade) const {
  std::optional<std::string> number = digits(begin, end);
  if (!number)
    return {kNotUnderstood};
  if (number->size() < 2)
    return {kNumberMissing};
  const int kind = number->back() - '0';
  number->pop_back();
  if (kind < 1 || kind > static_cast<int>(std::size(kShots)))
    return {kNoShotKind};
  return {0, {KeypadOrder::Kind::Shot, 0, 0, kShots[kind - 1], isMade}, *number};
}

KeypadInput::Reading KeypadInput::read(bool isLine) const {
  if (m_typed.empty())
    return {kNothingTyped};
  const std::size_t last = m_typed.size() - 1;
  const auto beginsShot = [](const Key& key) { return key.action == KeypadAction::A && !key.digit; };
  const auto shots =
      static_cast<std::size_t>(std::ranges::find_if_not(m_typed, beginsShot) - m_typed.begin());
  if (shots > 0)
    return shots > 2 ? Reading{kNotUnderstood} : readShot(shots, m_typed.size(), shots == 1);
  if (m_typed[last].isMiss)
    return readShot(0, last, false);
  const auto action = m_typed[last].action;
  if (!action)
    return isLine ? readShot(0, m_typed.size(), true) : Reading{kActionMissing};
  const std::optional<std::string> number = digits(0, last);
  if (!number)
    return {kNotUnderstood};
  const KeypadOrder order = {kindOfOrder(*action), 0, 0, codeOf(*action), false};
  if (order.kind == KeypadOrder::Kind::AllOut)
    return number->empty() ? Reading{0, order} : Reading{kAllAlone};
  return number->empty() ? Reading{kNumberMissing} : Reading{0, order, *number};
}

KeypadInput::Outcome KeypadInput::confirm(int team, bool isLine, const LiveGame& game) {
  m_reason.reset();
  const Reading reading = read(isLine);
  if (reading.problem != 0)
    return refuse({reading.problem});
  if (!game.canRecord())
    return refuse({kGameIsClosed});
  const Game& shown = game.game();
  KeypadOrder order = reading.order;
  order.team = team;
  if (order.kind != KeypadOrder::Kind::AllOut) {
    order.player = shown.roster[team].entryOf(reading.jersey);
    if (order.player == 0) {
      const bool isInOther = shown.roster[1 - team].entryOf(reading.jersey) != 0;
      return refuse(
          {isInOther ? kOnlyInOtherTeam : kNoSuchPlayer,
           {reading.jersey, shown.details.abbreviation[team], shown.details.abbreviation[1 - team]}});
    }
  }
  if (const auto reason = objection(order, game))
    return refuse(*reason);
  m_order = order;
  m_typed.clear();
  return Outcome::Confirmed;
}

std::string KeypadInput::typed() const {
  std::string text;
  for (const Key& key : m_typed) {
    if (key.digit)
      text += static_cast<char>('0' + *key.digit);
    else
      text.append(text.empty() || text.ends_with(' ') ? "" : " ")
          .append(key.isMiss ? "✕" : kKeypadKeys[static_cast<std::size_t>(*key.action)])
          .append(" ");
  }
  return text;
}

std::string KeypadInput::preview(const Game& game, const Texts& texts) const {
  const Reading reading = read(isLine());
  if (isEmpty() || reading.problem != 0)
    return isEmpty() ? std::string() : std::string(texts.text(reading.problem));
  std::string lines = actionWords(reading.order, texts);
  bool isAnybody = reading.order.kind == KeypadOrder::Kind::AllOut;
  for (const int team : {game.details.mainTeam, 1 - game.details.mainTeam}) {
    KeypadOrder order = reading.order;
    order.team = team;
    order.player = game.roster[team].entryOf(reading.jersey);
    if (order.kind == KeypadOrder::Kind::AllOut)
      lines += (lines.empty() ? "" : "\n") + words(order, game, texts);
    else if (order.player != 0)
      lines += '\n' + playerWords(game, team, order.player);
    isAnybody = isAnybody || order.player != 0;
  }
  const auto& names = game.details.abbreviation;
  return isAnybody ? lines
                   : KeypadReason{kNoSuchPlayer, {reading.jersey, names[0] + ", " + names[1]}}.words(texts);
}

std::string KeypadInput::words(const KeypadOrder& order, const Game& game, const Texts& texts) {
  if (order.kind == KeypadOrder::Kind::AllOut)
    return texts.withPlaceholder(kAllLeave, game.details.abbreviation[order.team]);
  return Module1::withPlaceholder(
      Module1::withPlaceholder(texts.text(kSubjectAndWords), actionWords(order, texts), "YYY"),
      playerWords(game, order.team, order.player));
}

} // namespace hooptab
