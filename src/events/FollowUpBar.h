// Who assisted, who took the rebound, who drew the foul: asked beside the player's panel right after the
// event, and never in the way. Answered by a click or the jersey's number; whatever is done elsewhere closes
// it as "Nobody" and is then carried out as what it was, but for the clock, which can be stopped. Says who
// was chosen and what else was; records nothing.
#pragma once

#include "events/Bubble.h"
#include "events/DetailChips.h"
#include "game/Side.h"
#include "recording/FollowUpQuestion.h"
#include "recording/Slot.h"

#include <QElapsedTimer>
#include <QPoint>
#include <QTimer>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QKeyEvent;
class QLabel;
class QMouseEvent;
class QPushButton;

namespace hooptab {

class JerseyButton;
class Texts;

// What a key that is bound elsewhere means to the question.
struct FollowUpKey {
  enum class Kind { Digit, Take, TakeBack, Clear, Clock, Action, Chip, GoOn };
  Kind kind = Kind::GoOn;
  int digit = 0;
  std::optional<Side> team = std::nullopt; // of two equal numbers Take takes the one of this team
  EventCode code = EventCode::Unknown;     // of an Action: what it records elsewhere
  std::size_t chip = 0;                    // of a Chip
};

class FollowUpBar : public Bubble {
  Q_OBJECT
 public:
  // Lies over `parent`, the live window. `texts` must outlive it.
  FollowUpBar(const Texts& texts, QWidget* parent);
  ~FollowUpBar() override;

  // Milliseconds in which it takes no click: a hand that presses twice has not seen it.
  static constexpr int kDeafFor = 300;
  // Milliseconds in which a digit that comes behind a whole number belongs to it: 7 of 74 is not 7.
  static constexpr int kMayGoOn = 300;
  // A second press where one has just answered, within so many milliseconds, is none on what lies below.
  static constexpr int kSecondPress = 500;

  // Opens beside the shooter's panel and inside `room`, both in global coordinates: what he is recorded with
  // stays free. For one who is not on court `panel` is empty, and it opens in the middle of the room. One
  // that was open closes as "Nobody". With nobody to choose, nothing opens.
  struct Asked {
    Side team = Side::Visitor;
    int player = 0;                      // entry; 0: the team
    EventCode kind = EventCode::Unknown; // what he did
  };
  void ask(const LiveGame& game, const LiveGame::FollowUps& followUps, const Asked& asked, const QRect& panel,
           const QRect& room);
  // What else can be chosen of the event that the next question is about; with letters of their own where the
  // captions are letters.
  void offerChips(std::vector<DetailChip> chips, int columns);
  // Whom a press outside names, where the question is about an opponent.
  using PlayerFinder = std::function<std::optional<FollowUpQuestion::Answer>(const QWidget& pressed)>;
  void setPlayerFinder(PlayerFinder finder) { m_findPlayer = std::move(finder); }
  // Asked first for every key; nothing for one that means here what it always does.
  using KeyReader = std::function<std::optional<FollowUpKey>(const QKeyEvent& event)>;
  void setKeyReader(KeyReader reader) { m_readKey = std::move(reader); }
  bool isOpen() const { return m_isOpen; }
  void settle();  // takes a number that is whole, without waiting
  void dismiss(); // the same, or as "Nobody"
  // A press there has closed what it was made on; a second one is none on what lies below.
  void ignoreSecondPress(const QPoint& globalPlace);
  void refuse(Text text); // in its own line: why something else was not done

 signals:
  // After closed(), so that a further question can be asked.
  void chosen(const hooptab::FollowUpQuestion::Answer& answer, hooptab::EventCode code);
  // Who drew the foul, or shoots for it: no event of its own.
  void named(const hooptab::FollowUpQuestion::Answer& answer);
  void chipChosen(std::string_view key, const std::string& value);
  void closed();                   // in any case
  void pressIgnored();             // a second one where one has just answered
  void numberTyped(bool onKeypad); // its last digit has chosen a player

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  static constexpr int kGroup = Slot::kOfTeam;
  enum TeamButton : std::size_t { OfShooters, OfOthers, InOneGroup };

  QWidget* makeAssist();
  QWidget* makeRebound();
  QWidget* makeTitle(QWidget* form);
  QLabel* makeBand(QWidget* form, const QString& name);
  QPushButton* makeNobody(QWidget* form, const char* name);
  QWidget* makeReason();
  JerseyButton* makeButton(QWidget* form, int index);
  QPushButton* makeTeam(QWidget* form, TeamButton which);
  QPushButton* makeBlock(QWidget* form);
  void setPanelWidth(int panel);
  void offer(const LiveGame& game, JerseyButton& button, std::size_t choice);
  void nameTeam(const LiveGame& game, QLabel& band, const QString& words, Side team);
  [[nodiscard]] Text titleText() const;
  [[nodiscard]] std::optional<FollowUpQuestion::Answer> teamMeantBy(EventCode code) const;
  [[nodiscard]] bool takesAction(EventCode code) const;
  [[nodiscard]] std::optional<std::size_t> chipOf(const QKeyEvent& event) const;
  [[nodiscard]] FollowUpKey meaningOf(const QKeyEvent& event) const;
  bool ownsKey(const QKeyEvent& event) const;
  void takeKey(const QKeyEvent& event);
  bool takePress(QWidget& widget, const QMouseEvent& event);
  void answer(std::optional<FollowUpQuestion::Answer> answer);
  void showTyped();
  void showMarks();

  const Texts& m_texts;
  KeyReader m_readKey;
  PlayerFinder m_findPlayer;
  QWidget* m_assist = nullptr;
  QWidget* m_rebound = nullptr;
  QWidget* m_reasonRow = nullptr;
  std::array<JerseyButton*, kGroup> m_mates = {};
  std::array<JerseyButton*, 2 * kGroup> m_rebounders = {}; // offensive first
  QLabel* m_shooters = nullptr;
  std::array<QLabel*, 2> m_groups = {};
  std::array<QLabel*, 2> m_titles = {};
  std::array<QLabel*, 2> m_numbers = {};
  QLabel* m_reason = nullptr;
  std::array<QPushButton*, 3> m_teams = {}; // by TeamButton
  QPushButton* m_block = nullptr;
  DetailChips* m_chips = nullptr;
  std::vector<DetailChip> m_nextChips; // of the next question
  int m_chipColumns = 1;
  int m_innerWidth = 0;                       // between the margins
  std::array<QPushButton*, 2> m_waysOut = {}; // in the order of FollowUpQuestion::WayOut

  FollowUpQuestion m_question;
  bool m_isOpen = false;
  std::vector<JerseyButton*> m_buttons; // of the choices of the question
  bool m_isTypedOnKeypad = false;
  std::optional<FollowUpQuestion::Answer> m_whole; // by the number typed, unless it goes on
  QTimer m_goingOn;
  Text m_ownRefusal = Text::None; // text of refuse()
  QElapsedTimer m_sinceOpened;
  QElapsedTimer m_sinceAnswer; // by a press
  QElapsedTimer m_sinceBlock;  // typed; until the next key
  QPoint m_answeredAt;         // global
};

} // namespace hooptab
