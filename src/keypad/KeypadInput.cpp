#include "keypad/KeypadInput.h"

#include "game/EventDetails.h"
#include "keypad/KeyCodes.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

using Problem = KeypadReason::Problem;

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

// What of it a team can do without any of its players; Unknown where it can not.
EventCode ofTeam(EventCode code) {
  switch (code) {
  case EventCode::SOR: return EventCode::XOR;
  case EventCode::SDR: return EventCode::XDR;
  case EventCode::STO: return EventCode::XTV;
  case EventCode::STF: return EventCode::XCF;
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

// "12 Dana Dunn"
std::string numberAndName(const Game& game, Side team, int player) {
  const RosterPlayer* who = game.roster[team].player(player);
  return who == nullptr ? std::string() : who->jersey + ' ' + who->name;
}

std::string playerWords(const Game& game, Side team, int player) {
  const std::string who = numberAndName(game, team, player);
  return game.details.abbreviation[team] + (who.empty() ? "" : " ") + who;
}

std::string actionWords(const KeypadOrder& order, const Texts& texts) {
  switch (order.kind) {
  case KeypadOrder::Kind::In: return std::string(texts.text(Text::ComesIn));
  case KeypadOrder::Kind::Out: return std::string(texts.text(Text::Leaves));
  default: break;
  }
  const EventKind* kind = kindOf(order.code);
  const char* mark = order.kind != KeypadOrder::Kind::Shot ? "" : order.isMade ? "● " : "✕ ";
  return kind == nullptr ? std::string() : mark + std::string(texts.text(kind->wordsText));
}

Text textOf(KeypadReason::Problem problem) {
  switch (problem) {
  case Problem::NothingTyped: return Text::NothingTyped;
  case Problem::NumberMissing: return Text::NumberMissing;
  case Problem::ActionMissing: return Text::ActionMissing;
  case Problem::NoShotKind: return Text::NoShotKind;
  case Problem::NotUnderstood: return Text::InputNotUnderstood;
  case Problem::TooManyKeys: return Text::TooManyKeys;
  case Problem::AllAlone: return Text::AllAlone;
  case Problem::GameIsClosed: return Text::GameIsClosed;
  case Problem::NoSuchPlayer: return Text::NoSuchPlayer;
  case Problem::OnlyInOtherTeam: return Text::OnlyInOtherTeam;
  case Problem::SameTwice: return Text::SameTwice;
  case Problem::OnCourtAlready: return Text::OnCourtAlready;
  case Problem::NotOnCourt: return Text::IsNotOnCourt;
  case Problem::CourtIsFull: return Text::CourtIsFull;
  case Problem::NobodyOnCourt: break;
  }
  return Text::NobodyIsOnCourt;
}

// What stands against an order that makes sense in itself.
std::optional<KeypadReason> objection(const KeypadOrder& order, const LiveGame& game) {
  const Side team = order.team;
  const std::string& name = game.game().details.abbreviation[team];
  const bool isOnCourt = game.slotOf(order.team, order.player).has_value();
  const auto jerseyOf = [&](int player) {
    const RosterPlayer* who = game.game().roster[team].player(player);
    return who == nullptr ? std::string() : who->jersey;
  };
  const std::string jersey = jerseyOf(order.player);
  switch (order.kind) {
  case KeypadOrder::Kind::Exchange:
    if (order.leaving == order.player)
      return KeypadReason{Problem::SameTwice, jersey};
    if (!game.slotOf(order.team, order.leaving))
      return KeypadReason{Problem::NotOnCourt, jerseyOf(order.leaving), name};
    return isOnCourt ? std::optional(KeypadReason{Problem::OnCourtAlready, jersey, name}) : std::nullopt;
  case KeypadOrder::Kind::In:
    if (isOnCourt)
      return KeypadReason{Problem::OnCourtAlready, jersey, name};
    if (std::popcount(game.onCourt()[team]) >= kMostOnCourt)
      return KeypadReason{.problem = Problem::CourtIsFull, .team = name};
    return std::nullopt;
  case KeypadOrder::Kind::Out:
    return isOnCourt ? std::nullopt : std::optional(KeypadReason{Problem::NotOnCourt, jersey, name});
  case KeypadOrder::Kind::AllOut:
    return game.onCourt()[team] != 0
               ? std::nullopt
               : std::optional(KeypadReason{.problem = Problem::NobodyOnCourt, .team = name});
  default: return std::nullopt;
  }
}

} // namespace

bool carryOut(LiveGame& game, const KeypadOrder& order) {
  switch (order.kind) {
  case KeypadOrder::Kind::Shot: return game.recordShot(order.team, order.player, order.code, order.isMade);
  case KeypadOrder::Kind::Action: return game.recordAction(order.team, order.player, order.code);
  case KeypadOrder::Kind::OfTeam:
    return game.recordOfTeam(order.team, order.code,
                             order.code == EventCode::XCF ? LiveGame::Details{{detail_key::kKind, "C"}}
                                                          : LiveGame::Details());
  case KeypadOrder::Kind::In:
  case KeypadOrder::Kind::Out: return game.toggleOnCourt(order.team, order.player);
  case KeypadOrder::Kind::AllOut: return game.takeAllOut(order.team);
  case KeypadOrder::Kind::Exchange: {
    OnCourt wanted = game.onCourt();
    unsigned& five = wanted[order.team];
    five = (five & ~(1U << static_cast<unsigned>(order.leaving))) | 1U << static_cast<unsigned>(order.player);
    return game.setOnCourt(wanted);
  }
  }
  return false;
}

std::string KeypadReason::words(const Texts& texts) const {
  const bool isOfTeam = problem == Problem::CourtIsFull || problem == Problem::NobodyOnCourt;
  return withPlaceholders(texts.text(textOf(problem)), isOfTeam ? team : jersey, team, otherTeam);
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
  if (press.isKeypad && !m_hasBoundKeys)
    return key;
  key.digit = keys::digit(press.code, press.isKeypad);
  if (m_hasBoundKeys)
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

EventCode KeypadInput::recordedBy(const KeyPress& press) const {
  const Key key = keyOf(press);
  return key.action && !key.digit ? codeOf(*key.action) : EventCode::Unknown;
}

std::optional<Side> KeypadInput::teamOf(const KeyPress& press, const Game& game) const {
  const auto action = keyOf(press).action;
  if (action == KeypadAction::OK0)
    return game.details.mainTeam;
  return action == KeypadAction::OK1 ? std::optional(otherSide(game.details.mainTeam)) : std::nullopt;
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
    const Side mainTeam = game.game().details.mainTeam;
    if (press.code == keys::kEnter)
      return confirm(press.hasShift ? otherSide(mainTeam) : mainTeam, true, game);
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
    return refuse({Problem::TooManyKeys});
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
    return {Problem::NotUnderstood};
  if (number->size() < 2)
    return {Problem::NumberMissing};
  const int kind = number->back() - '0';
  number->pop_back();
  if (kind < 1 || kind > static_cast<int>(std::size(kShots)))
    return {Problem::NoShotKind};
  return {
      std::nullopt, {.kind = KeypadOrder::Kind::Shot, .code = kShots[kind - 1], .isMade = isMade}, *number};
}

// "12 OUT 8", with or without IN behind it, and "8 IN 12" the other way round. A digit is never the key in
// the middle, whatever it is bound to.
std::optional<KeypadInput::Reading> KeypadInput::readExchange() const {
  const auto isMove = [](const Key& key) {
    return !key.digit && (key.action == KeypadAction::IN || key.action == KeypadAction::OUT);
  };
  const auto middle = std::ranges::find_if(m_typed, isMove);
  const std::size_t place = static_cast<std::size_t>(middle - m_typed.begin());
  if (place == 0 || place + 1 >= m_typed.size())
    return std::nullopt;
  const bool hasSecondKey = isMove(m_typed.back()) && m_typed.back().action != middle->action;
  const std::optional<std::string> first = digits(0, place);
  const std::optional<std::string> second = digits(place + 1, m_typed.size() - (hasSecondKey ? 1 : 0));
  if (!first || !second || second->empty())
    return std::nullopt;
  const KeypadOrder order = {.kind = KeypadOrder::Kind::Exchange};
  return middle->action == KeypadAction::IN ? Reading{std::nullopt, order, *first, *second}
                                            : Reading{std::nullopt, order, *second, *first};
}

KeypadInput::Reading KeypadInput::read(bool isLine, const Game& game) const {
  if (m_typed.empty())
    return {Problem::NothingTyped};
  const std::size_t last = m_typed.size() - 1;
  const auto beginsShot = [](const Key& key) { return key.action == KeypadAction::A && !key.digit; };
  const auto shots =
      static_cast<std::size_t>(std::ranges::find_if_not(m_typed, beginsShot) - m_typed.begin());
  if (shots > 0)
    return shots > 2 ? Reading{Problem::NotUnderstood} : readShot(shots, m_typed.size(), shots == 1);
  if (auto exchange = readExchange())
    return *std::move(exchange);
  if (m_typed[last].isMiss)
    return readShot(0, last, false);
  const auto action = m_typed[last].action;
  if (!action)
    return isLine ? readShot(0, m_typed.size(), true) : Reading{Problem::ActionMissing};
  const std::optional<std::string> number = digits(0, last);
  if (!number)
    return {Problem::NotUnderstood};
  const KeypadOrder order = {kindOfOrder(*action), Side::Visitor, 0, codeOf(*action), false};
  if (order.kind == KeypadOrder::Kind::AllOut)
    return number->empty() ? Reading{std::nullopt, order} : Reading{Problem::AllAlone};
  if (!number->empty())
    return {std::nullopt, order, *number};
  const EventCode code = ofTeam(order.code);
  if (code == EventCode::Unknown || game.details.recordingLevel() == RecordingLevel::Basic)
    return {Problem::NumberMissing};
  return {std::nullopt, {.kind = KeypadOrder::Kind::OfTeam, .code = code}};
}

// The players whose numbers were typed, of the order's team; the reason where it has none such.
std::optional<KeypadReason> KeypadInput::nameIn(KeypadOrder& order, const Reading& reading,
                                                const Game& game) {
  if (order.kind == KeypadOrder::Kind::AllOut || order.kind == KeypadOrder::Kind::OfTeam)
    return std::nullopt;
  const bool isExchange = order.kind == KeypadOrder::Kind::Exchange;
  const Roster& roster = game.roster[order.team];
  const Roster& others = game.roster[otherSide(order.team)];
  order.player = roster.entryOf(reading.jersey);
  order.leaving = isExchange ? roster.entryOf(reading.leaving) : 0;
  const bool isLeavingMissing = isExchange && order.leaving == 0;
  if (order.player != 0 && !isLeavingMissing)
    return std::nullopt;
  const bool areOthers =
      others.entryOf(reading.jersey) != 0 && (!isExchange || others.entryOf(reading.leaving) != 0);
  const auto& names = game.details.abbreviation;
  return KeypadReason{areOthers ? Problem::OnlyInOtherTeam : Problem::NoSuchPlayer,
                      isLeavingMissing ? reading.leaving : reading.jersey, names[order.team],
                      names[otherSide(order.team)]};
}

KeypadInput::Outcome KeypadInput::confirm(Side team, bool isLine, const LiveGame& game) {
  m_reason.reset();
  const Reading reading = read(isLine, game.game());
  if (reading.problem)
    return refuse({*reading.problem});
  if (!game.canRecord())
    return refuse({Problem::GameIsClosed});
  KeypadOrder order = reading.order;
  order.team = team;
  if (const auto reason = nameIn(order, reading, game.game()))
    return refuse(*reason);
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
  const Reading reading = read(isLine(), game);
  if (isEmpty() || reading.problem)
    return isEmpty() ? std::string() : KeypadReason{*reading.problem}.words(texts);
  std::string lines = actionWords(reading.order, texts); // none where words() are a sentence
  const bool isSentence = lines.empty();
  std::string missing;
  const auto add = [](std::string& to, const std::string& line) { to += (to.empty() ? "" : "\n") + line; };
  bool isAnybody = false;
  for (const Side team : {game.details.mainTeam, otherSide(game.details.mainTeam)}) {
    KeypadOrder order = reading.order;
    order.team = team;
    if (const auto reason = nameIn(order, reading, game)) {
      add(missing, reason->words(texts));
      continue;
    }
    add(lines, isSentence ? words(order, game, texts) : playerWords(game, team, order.player));
    isAnybody = true;
  }
  if (isAnybody)
    return lines;
  for (const std::string& jersey : {reading.leaving, reading.jersey}) {
    const auto& names = game.details.abbreviation;
    if (!jersey.empty() && game.roster[Side::Visitor].entryOf(jersey) == 0 &&
        game.roster[Side::Home].entryOf(jersey) == 0)
      return KeypadReason{Problem::NoSuchPlayer, jersey, names[Side::Visitor] + ", " + names[Side::Home]}
          .words(texts);
  }
  return missing;
}

std::string KeypadInput::words(const KeypadOrder& order, const Game& game, const Texts& texts) {
  if (order.kind == KeypadOrder::Kind::AllOut)
    return texts.withPlaceholder(Text::AllLeave, game.details.abbreviation[order.team]);
  if (order.kind == KeypadOrder::Kind::Exchange)
    return withPlaceholders(texts.text(Text::Exchanged), playerWords(game, order.team, order.leaving),
                            numberAndName(game, order.team, order.player));
  return withPlaceholders(texts.text(Text::SubjectAndWords), playerWords(game, order.team, order.player),
                          actionWords(order, texts));
}

} // namespace hooptab
