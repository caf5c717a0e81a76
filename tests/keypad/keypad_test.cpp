#include "keypad/KeyCodes.h"
#include "keypad/KeypadInput.h"
#include "recording/LiveTable.h"
#include "storage/Placeholders.h"

#include <set>

namespace hooptab {
namespace {

using Problem = KeypadReason::Problem;
using Outcome = KeypadInput::Outcome;
using Kind = KeypadOrder::Kind;

TEST(KeyCodes, AreStoredWithTheLabelOfTheKeypad) {
  const std::pair<int, const char*> cases[] = {
      {48, "48-0-INS"},    {96, "96-0-INS"},      {45, "45-0-INS"},     {97, "97-1-END"},
      {98, "98-2-DOWN"},   {34, "34-3-HOME"},     {99, "99-3-HOME"},    {37, "37-4-LEFT"},
      {12, "12-5-CLEAR"},  {102, "102-6-RIGHT"},  {36, "36-7-HOME"},    {56, "56-8-UP"},
      {33, "33-9-PAGEUP"}, {107, "107-PLUS"},     {8, "8-BACK"},        {106, "106-MULT"},
      {46, "46-.-DELETE"}, {110, "110-.-DELETE"}, {144, "144-NUMLOCK"}, {109, "109-MINUS"},
      {111, "111-DIVISE"}, {13, "13-ENTER"},      {65, "65-"},          {112, "112-"},
  };
  for (const auto& [code, text] : cases) {
    EXPECT_EQ(keys::text(code), text);
    EXPECT_EQ(keys::code(text), code);
  }
  for (const char* text : {"", "13", "-5-X", "abc-", "0-X", "99999-", "--"})
    EXPECT_EQ(keys::code(text), 0) << text;
}

TEST(KeyCodes, ADigitIsTypedByTheUpperRowAndByTheKeypadWithNumLockOnAndOff) {
  for (int digit = 0; digit < 10; ++digit) {
    EXPECT_EQ(keys::digit('0' + digit, false), digit);
    EXPECT_EQ(keys::digit(96 + digit, true), digit);
    const int off = keys::otherCode(96 + digit);
    EXPECT_EQ(keys::digit(off, true), digit);
    EXPECT_FALSE(keys::digit(off, false)) << "an arrow is no digit";
    EXPECT_EQ(keys::otherCode(off), 96 + digit);
  }
  EXPECT_FALSE(keys::digit(110, true) || keys::digit(0, true));
}

TEST(KeypadAssignmentTest, KeepsWhatWasNeverBoundAndFindsKeysBoundTwice) {
  KeypadSetup setup;
  EXPECT_TRUE(setup.canBeSaved());
  EXPECT_EQ(setup.keys.actionOf(105), KeypadAction::PF);
  EXPECT_EQ(setup.keys.actionOf(0), std::nullopt);
  setup.keys.bind(KeypadAction::TF, 105);
  EXPECT_TRUE(setup.isTwice(KeypadAction::TF) && setup.isTwice(KeypadAction::PF));
  EXPECT_FALSE(setup.isTwice(KeypadAction::BS));
  EXPECT_FALSE(setup.canBeSaved());
  setup.keys.bind(KeypadAction::TF, 'F');
  EXPECT_TRUE(setup.isTwice(KeypadAction::TF)) << "the letter of the line is a key as well";
  setup.letters.bind(static_cast<std::size_t>(KeypadAction::PF), 'G');
  EXPECT_TRUE(setup.canBeSaved());
  setup.letters.bind(LetterAssignment::kMiss, 'G');
  EXPECT_FALSE(setup.canBeSaved());

  KeypadKeyTexts texts = {"13", "spare"};
  const KeypadAssignment unbound(texts);
  for (std::size_t place = 0; place < kKeypadActions; ++place)
    EXPECT_EQ(unbound.code(static_cast<KeypadAction>(place)), 0);
  setup = {};
  setup.keys = unbound;
  EXPECT_TRUE(setup.canBeSaved()) << "boxes without a key do not share one";
  EXPECT_EQ(unbound.texts(), texts);
}

TEST(KeypadAssignmentTest, TheLettersAreRememberedAsOneTextAndAnyOtherTextLeavesThem) {
  KeypadSetup setup;
  setup.letters.bind(LetterAssignment::kMiss, 'Q');
  setup.flashes = false;
  KeypadSetup other;
  other.take(setup.choices());
  EXPECT_EQ(other, setup);
  for (const char* text : {"", ",,", "ABC,0,0", "ftbsdovaiezywx,0,0", "FTBSDOVAIEZYW1,0,0"}) {
    KeypadSetup unchanged;
    unchanged.take(text);
    EXPECT_EQ(unchanged, KeypadSetup()) << text;
  }
}

class KeypadInputTest : public LiveTableTest {
 protected:
  void SetUp() override { begin(); }
  void begin(const std::string& details = {}) {
    open(textOfGame("[PERIODE1]\n1=10:00,ARRET,IN-04-05-10-12-15,IN-03-07\n", details));
  }
  PeriodLines lines() const { return linesOf(live.game().events).at(1); }
  std::string lastLine() const { return lines().back().second; }

  // Keys of the keypad by what is printed on them ("<" Backspace, "E" Enter), those of the main keyboard
  // behind "|": digits, letters, "\n" Enter, "\t" Shift+Enter, "\b" Backspace, "\x1b" Esc.
  Outcome press(std::string_view keys) {
    Outcome outcome = Outcome::NotMine;
    bool isMain = false;
    for (const char key : keys) {
      if (key == '|') {
        isMain = true;
        continue;
      }
      outcome = input.press(isMain ? mainKey(key) : KeyPress{keypadCode(key)}, live);
      EXPECT_TRUE(outcome != Outcome::Confirmed || carryOut(live, input.order()));
    }
    return outcome;
  }
  static KeyPress mainKey(char key) {
    if (key == '\n' || key == '\t')
      return {keys::kEnter, false, key == '\t'};
    if (key == '\b')
      return {keys::kBackspace, false};
    return {key == '\x1b' ? keys::kEscape : key, false};
  }
  static int keypadCode(char key) {
    constexpr std::string_view kPrinted = "/*-+.<E";
    constexpr int kCodes[] = {111, 106, 109, 107, 110, 8, 13};
    const auto place = kPrinted.find(key);
    return place == std::string_view::npos ? 96 + key - '0' : kCodes[place];
  }

  KeypadInput input;
};

TEST_F(KeypadInputTest, TheLastKeyIsTheActionAndAllBeforeItTheJersey) {
  const std::pair<const char*, const char*> cases[] = {
      {"129<", "10:00,SPF,0-12"},  {"126<", "10:00,STF,0-12"},    {"77-", "10:00,SBS,1-7"},
      {"48<", "10:00,SST,0-4"},    {"42<", "10:00,SDR,0-4"},      {"41<", "10:00,SOR,0-4"},
      {"43<", "10:00,STO,0-4"},    {"4.<", "10:00,SA,0-4"},       {"44<", "10:00,SU1,0-4"},
      {"45<", "10:00,SU2,0-4"},    {"229-", "10:00,SPF,1-22"},    {"09<", "10:00,SPF,0-0"},
      {"009<", "10:00,SPF,0-00"},  {"0059<", "10:00,SPF,0-5"},    {".121<", "10:00,GFT,0-12"},
      {".122<", "10:00,GFG,0-12"}, {"..122<", "10:00,GFGA,0-12"}, {".33-", "10:00,GF3,1-3"},
      {"..34-", "10:00,GLGA,1-3"}, {".45<", "10:00,GLD,0-4"},     {".46<", "10:00,GPB,0-4"},
      {"..47<", "10:00,GDKA,0-4"}};
  for (const auto& [keys, line] : cases) {
    SCOPED_TRACE(keys);
    EXPECT_EQ(press(keys), Outcome::Confirmed);
    EXPECT_EQ(lastLine(), line);
    EXPECT_TRUE(input.isEmpty());
  }
  // The upper row types jerseys, the keypad's key decides.
  EXPECT_EQ(press("|12"), Outcome::Typed);
  EXPECT_EQ(press("9<"), Outcome::Confirmed);
  EXPECT_EQ(lastLine(), "10:00,SPF,0-12");
}

TEST_F(KeypadInputTest, PlayersComeAndLeaveAndWhatDoesNotFitIsRefused) {
  const auto reason = [&](const char* keys) {
    EXPECT_EQ(press(keys), Outcome::Refused);
    const KeypadReason why = input.reason().value_or(KeypadReason());
    press("+");
    return why;
  };
  EXPECT_EQ(reason("0/<").words(texts), "Five of PAN are on court: one must leave first");
  EXPECT_EQ(reason("12/<"), (KeypadReason{Problem::OnCourtAlready, "12", "PAN"}));
  EXPECT_EQ(reason("8*-"), (KeypadReason{Problem::NotOnCourt, "8", "OLY"}));
  press("12*<");
  press("00/<");
  press("22/-");
  EXPECT_EQ(lastLine(), "10:00,ARRET,IN-000-04-05-10-15,IN-03-07-22");
  press("0<");
  EXPECT_EQ(live.onCourt()[Side::Visitor], 0U);
  EXPECT_NE(live.onCourt()[Side::Home], 0U);
  EXPECT_EQ(reason("0<").words(texts), "Nobody of PAN is on court");
  EXPECT_EQ(reason("120<").words(texts), texts.text(Text::AllAlone));
}

TEST_F(KeypadInputTest, AKeyOfInOrOutBetweenTwoNumbersExchangesThemInOneStep) {
  live.start();
  const auto lists = [&] { return (lines().rbegin() + 1)->second.substr(12); };
  const std::pair<const char*, const char*> cases[] = {
      {"12*0<", "IN-00-04-05-10-15,IN-03-07"},    {"12/0<", "IN-04-05-10-12-15,IN-03-07"},
      {"12*0/<", "IN-00-04-05-10-15,IN-03-07"},   {"7*22-", "IN-00-04-05-10-15,IN-03-22"},
      {"|12I0E\n", "IN-04-05-10-12-15,IN-03-22"}, {"|22E7\t", "IN-04-05-10-12-15,IN-03-07"},
  };
  for (const auto& [keys, expected] : cases) {
    time.now += 10;
    EXPECT_EQ(press(keys), Outcome::Confirmed) << keys;
    EXPECT_EQ(lists(), expected) << keys;
  }
  time.now += 10;
  press("4*<"); // half of another, which is taken with it
  time.now += 3;
  const std::size_t before = lines().size();
  EXPECT_EQ(press("12*0<"), Outcome::Confirmed);
  EXPECT_EQ(lists(), "IN-00-05-10-15,IN-03-07");
  EXPECT_EQ(lines().size(), before + 2) << "a stop and a start";
  EXPECT_TRUE(live.undo());
  EXPECT_EQ(live.onCourt()[Side::Visitor], 0b111110U);
}

TEST_F(KeypadInputTest, WithoutTheBoundKeysTheLineIsLeft) {
  KeypadSetup setup;
  setup.keys.bind(KeypadAction::PF, '9');
  input.setSetup(setup);
  input.setHasBoundKeys(false);
  for (const char* keys : {"1", "0", "+", "E", "-", ".", "|\n", "|\b", "|\x1b"})
    EXPECT_EQ(press(keys), Outcome::NotMine) << keys;
  EXPECT_EQ(press("|129\n"), Outcome::Refused);
  EXPECT_EQ(input.reason(), KeypadReason{Problem::NoShotKind}) << "a digit of a shot, and no foul";
  EXPECT_EQ(press("|123X\b\n"), Outcome::Confirmed);
}

TEST_F(KeypadInputTest, WhatIsNotUnderstoodIsSaidAndNothingIsRecorded) {
  const std::tuple<KeypadReason, Text, std::vector<const char*>> cases[] = {
      {{Problem::NothingTyped}, Text::NothingTyped, {"<"}},
      {{Problem::NumberMissing}, Text::NumberMissing, {"9<", ".<", ".2<", "..2-"}},
      {{Problem::NoShotKind}, Text::NoShotKind, {".129<", ".128<", ".120<"}},
      {{Problem::NotUnderstood}, Text::InputNotUnderstood, {"...122<", "1/29/<", ".1/2<"}},
      {{Problem::TooManyKeys}, Text::TooManyKeys, {"123456789"}},
      {{Problem::NotOnCourt, "00", "PAN"}, Text::IsNotOnCourt, {"00*12<"}},
      {{Problem::OnCourtAlready, "5", "PAN"}, Text::OnCourtAlready, {"12*5<"}},
      {{Problem::SameTwice, "12"}, Text::SameTwice, {"12*012<"}},
      {{Problem::NoSuchPlayer, "99", "PAN", "OLY"}, Text::NoSuchPlayer, {"12*99<", "999<"}},
      {{Problem::NoSuchPlayer, "22", "PAN", "OLY"}, Text::NoSuchPlayer, {"12*22<"}}, // no team has both
      {{Problem::OnlyInOtherTeam, "7", "PAN", "OLY"}, Text::OnlyInOtherTeam, {"7*22<"}},
      {{Problem::OnlyInOtherTeam, "22", "PAN", "OLY"}, Text::OnlyInOtherTeam, {"229<"}},
      {{Problem::OnlyInOtherTeam, "12", "OLY", "PAN"}, Text::OnlyInOtherTeam, {"129-"}},
  };
  const std::size_t before = lines().size();
  for (const auto& [reason, text, inputs] : cases) {
    for (const char* keys : inputs) {
      SCOPED_TRACE(keys);
      EXPECT_EQ(press(keys), Outcome::Refused);
      EXPECT_EQ(input.reason(), reason);
      EXPECT_EQ(input.reason()->words(texts),
                withPlaceholders(texts.text(text), reason.jersey, reason.team, reason.otherTeam));
      EXPECT_EQ(press("+"), Outcome::Cleared);
      EXPECT_TRUE(input.isEmpty() && !input.reason());
    }
  }
  EXPECT_EQ(press("|12"), Outcome::Typed);
  EXPECT_EQ(press("<"), Outcome::Refused) << "on the keypad a digit of the upper row is never a shot";
  EXPECT_EQ(input.reason()->words(texts), "Action key missing");
  EXPECT_EQ(lines().size(), before);
  press("+");
  // What was refused can be confirmed for the other team, or something new begins.
  press("229<");
  EXPECT_EQ(press("-"), Outcome::Confirmed);
  EXPECT_EQ(lastLine(), "10:00,SPF,1-22");
  press("999<");
  EXPECT_EQ(press("129<"), Outcome::Confirmed);
  EXPECT_EQ(lastLine(), "10:00,SPF,0-12");
}

TEST_F(KeypadInputTest, TheMainTeamIsThatOfTheGame) {
  begin("OKPRINCIPAL=1\n");
  press("229<");
  EXPECT_EQ(lastLine(), "10:00,SPF,1-22");
  press("129-");
  EXPECT_EQ(lastLine(), "10:00,SPF,0-12");
  press("|12F\n");
  EXPECT_EQ(input.reason(), (KeypadReason{Problem::OnlyInOtherTeam, "12", "OLY", "PAN"}));
}

TEST_F(KeypadInputTest, ALineOfTheMainKeyboardEndsWithEnter) {
  const std::pair<const char*, const char*> cases[] = {
      {"|12F\n", "10:00,SPF,0-12"},          {"|22D\t", "10:00,SDR,1-22"}, {"|123\n", "10:00,GF3,0-12"},
      {"|122X\n", "10:00,GFGA,0-12"},        {"|31\t", "10:00,GFT,1-3"},   {"|A122\n", "10:00,GFG,0-12"},
      {"|AA122\n", "10:00,GFGA,0-12"},       {"|12A\n", "10:00,SA,0-12"},  {"|1F\b2F\n", "10:00,SPF,0-12"},
      {"|12F\b\bF\b0V\n", "10:00,STO,0-10"},
  };
  for (const auto& [keys, line] : cases) {
    EXPECT_EQ(press(keys), Outcome::Confirmed) << keys;
    EXPECT_EQ(lastLine(), line) << keys;
  }
  EXPECT_EQ(press("|\n"), Outcome::Clock) << "without a line Enter is the clock's key";
  EXPECT_EQ(press("|12"), Outcome::Typed);
  EXPECT_EQ(press("E"), Outcome::Clock) << "the keypad's Enter always is";
  EXPECT_EQ(input.typed(), "12");
  EXPECT_EQ(press("|\x1b"), Outcome::Cleared);
  for (const char* keys : {"|\x1b", "|\t", "|H"})
    EXPECT_EQ(press(keys), Outcome::NotMine) << keys;
  for (const char* keys : {"|128\n", "|1\n", "|F\n", "|12FX\n", "|X\n", "|F12\n"}) {
    EXPECT_EQ(press(keys), Outcome::Refused) << keys;
    press("+");
  }
}

TEST_F(KeypadInputTest, NumLockMakesNoDifferenceAndArrowsStayArrows) {
  for (const int code : {35, 40, 33, 8}) // 1 2 9 with Num Lock off, confirmed
    input.press({code}, live);
  EXPECT_EQ(input.order(), (KeypadOrder{Kind::Action, Side::Visitor, 4, EventCode::SPF, false}));
  EXPECT_EQ(input.press({46}, live), Outcome::Typed);
  EXPECT_EQ(input.typed(), "A ");
  for (const KeyPress key : {KeyPress{40, false}, {46, false}, {0}})
    EXPECT_EQ(input.press(key, live), Outcome::NotMine) << key.code;
  KeypadSetup setup;
  setup.keys.bind(KeypadAction::PF, 33);
  input.setSetup(setup);
  press("12");
  input.press({33, false}, live);
  EXPECT_EQ(press("<"), Outcome::Confirmed) << "Page Up of the main keyboard, bound by its own code";
}

TEST_F(KeypadInputTest, OtherKeysDoTheSame) {
  KeypadSetup setup;
  setup.keys.bind(KeypadAction::OK0, 13);
  setup.keys.bind(KeypadAction::CLOCK, 8);
  setup.keys.bind(KeypadAction::A, 97);
  setup.keys.bind(KeypadAction::OR, 110);
  setup.letters.bind(LetterAssignment::kMiss, 'Q');
  input.setSetup(setup);
  EXPECT_EQ(press("129E"), Outcome::Confirmed);
  EXPECT_EQ(press("12.E"), Outcome::Confirmed);
  EXPECT_EQ(lastLine(), "10:00,SOR,0-12");
  EXPECT_EQ(press("<"), Outcome::Clock);
  EXPECT_EQ(press("121E"), Outcome::Confirmed) << "a digit begins no shot, whatever it is bound to";
  EXPECT_EQ(lastLine(), "10:00,SA,0-12");
  EXPECT_EQ(press("|122Q\n"), Outcome::Confirmed);
  EXPECT_EQ(lastLine(), "10:00,GFGA,0-12");
}

TEST_F(KeypadInputTest, ShowsWhatIsTypedAndWhatItWillDo) {
  EXPECT_EQ(input.preview(live.game(), texts), "");
  const std::pair<const char*, std::string> cases[] = {
      {"22", "No 2 in PAN, OLY"},
      {"9", "personal foul\nOLY 22 Lea Lang"},
      {"+..42", "✕ 2 points\nPAN 4 Ann Able"},
      {"+0", "All players of PAN leave the court\nAll players of OLY leave the court"},
      {"+|4", std::string(texts.text(Text::NumberMissing))},
      {"|2", "● 2 points\nPAN 4 Ann Able"},
      {"+12*8", "No 8 in PAN\nNo 12 in OLY"},
      {"+4*00", "PAN 4 Ann Able leaves, 00 Gia Grant comes in"},
  };
  for (const auto& [keys, preview] : cases) {
    press(keys);
    EXPECT_EQ(input.preview(live.game(), texts), preview) << keys;
  }
  press("+..42");
  EXPECT_EQ(input.typed(), "A A 42");
  EXPECT_EQ(KeypadInput::words({Kind::Shot, Side::Visitor, 1, EventCode::GFG, true}, live.game(), texts),
            "PAN 4 Ann Able: ● 2 points");
}

TEST_F(KeypadInputTest, AClosedGameTakesNothing) {
  live.finish("");
  const std::size_t before = lines().size();
  EXPECT_EQ(press("129<"), Outcome::Refused);
  EXPECT_EQ(input.reason()->words(texts), texts.text(Text::GameIsClosed));
  EXPECT_EQ(lines().size(), before);
}

// Every key of both keyboards in every sort of state: an order comes from a confirm key alone and names a
// player of the game, and the clear key always leaves nothing.
TEST_F(KeypadInputTest, EveryKeyIsSafeInEveryState) {
  std::vector<KeyPress> all;
  for (int code = 0; code < 512; ++code)
    all.push_back({code / 2, code % 2 == 1, false});
  // One of each sort is enough on the way.
  std::vector<KeyPress> some;
  for (const char key : std::string_view("0129/*.+"))
    some.push_back({keypadCode(key)});
  for (const char key : std::string_view("12FXA\b\x1b"))
    some.push_back(mainKey(key));
  const auto isConfirm = [](const KeyPress& key) {
    return key.code == 8 || key.code == 109 || (key.code == 13 && !key.isKeypad);
  };
  const std::size_t before = lines().size();
  std::set<Outcome> seen;
  const auto walk = [&](auto&& self, const KeypadInput& state, int depth) -> void {
    for (const KeyPress& key : all) {
      KeypadInput next = state;
      const bool owned = next.owns(key);
      const Outcome outcome = next.press(key, live);
      seen.insert(outcome);
      ASSERT_EQ(outcome != Outcome::NotMine, owned);
      ASSERT_TRUE(outcome != Outcome::Confirmed || isConfirm(key)) << key.code;
      ASSERT_EQ(outcome == Outcome::Refused,
                next.reason().has_value() && outcome != Outcome::NotMine && outcome != Outcome::Clock);
      const KeypadOrder& order = next.order();
      ASSERT_TRUE(outcome != Outcome::Confirmed || order.kind == Kind::AllOut ||
                  live.game().roster[order.team].player(order.player) != nullptr);
      (void)next.typed();
      (void)next.preview(live.game(), texts);
      ASSERT_EQ(next.press({107}, live), Outcome::Cleared);
      ASSERT_TRUE(next.isEmpty() && !next.reason());
    }
    for (std::size_t place = 0; depth > 0 && place < some.size(); ++place) {
      KeypadInput next = state;
      (void)next.press(some[place], live);
      self(self, next, depth - 1);
    }
  };
  walk(walk, input, 2);
  for (const char* begun :
       {".", "..1", "..12", ".122", "1/", "12*0", "123", "|12", "|123", "|A12", "|12X", "12345678", "229<"}) {
    SCOPED_TRACE(begun);
    press("+");
    press(begun);
    walk(walk, input, 1);
  }
  EXPECT_EQ(seen.size(), 6U);
  EXPECT_EQ(lines().size(), before) << "reading keys records nothing by itself";
}

} // namespace
} // namespace hooptab
