// The keys of the live window: hands every key that is bound, and those of the typed line, to the recorder
// before any button sees it, while the window is in front and no text field has the focus, and carries out
// what the recorder orders. With the keypad switched off the line is left. Shows the cheat sheet. What
// follows an order on screen is the window's.
#pragma once

#include "events/FollowUpBar.h"
#include "keypad/KeypadInput.h"
#include "recording/GameSession.h"

#include <QElapsedTimer>
#include <QObject>

#include <functional>

namespace hooptab {

class KeypadDisplay;
class KeySheet;
class Settings;

class LiveKeys : public QObject {
  Q_OBJECT
 public:
  // All must outlive it. The display lies over `displayPlace`.
  LiveKeys(GameSession& session, const Settings& settings, const Texts& texts, FollowUpBar& followUp,
           QWidget& displayPlace, QWidget& window);
  ~LiveKeys() override;

  void setSetup(const KeypadSetup& setup);
  void forget();      // another game, or the keypad was switched off
  void relabelKeys(); // the language has changed
  void showSheet();   // or hides it
  // Carries an order out in another way than the game would; false where it does not.
  void setTaker(std::function<bool(const KeypadOrder& order)> taker) { m_taker = std::move(taker); }
  [[nodiscard]] bool isTyping() const { return !m_input.isEmpty(); }

 signals:
  void clockPressed();
  void recorded(const hooptab::KeypadOrder& order);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool isInFront() const;
  [[nodiscard]] std::optional<FollowUpKey> followUpKey(const QKeyEvent& event);
  // Whether the recorder has a use for it, as the keypad is switched now.
  [[nodiscard]] bool owns(const KeyPress& press);
  bool takeSheetKey(const QKeyEvent& event, bool isPress);
  bool endsAnswer(const KeyPress& press, bool isPress);
  void take(const KeyPress& press);
  void carryOutOrder();
  void refuse(const std::string& why);

  GameSession& m_session;
  const LiveGame& m_game;
  const Settings& m_settings;
  const Texts& m_texts;
  QWidget& m_window;
  std::function<bool(const KeypadOrder&)> m_taker;
  KeypadInput m_input;
  QElapsedTimer m_sinceAnswer; // typed on the main keyboard; until the next key
  KeypadDisplay* m_display = nullptr;
  KeySheet* m_sheet = nullptr;
};

} // namespace hooptab
