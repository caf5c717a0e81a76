// The free throws behind a foul, made or missed one after the other: a strip beside the shooter's panel that
// stays while others are substituted, and goes with the last throw or when the ball is in play. Shows, and
// says what was pressed; records nothing.
#pragma once

#include "events/Bubble.h"
#include "events/DetailChips.h"
#include "recording/FoulThrows.h"

#include <array>
#include <functional>

class QLabel;
class QPushButton;

namespace hooptab {

class Texts;
class ThrowMark;

class FreeThrowBar : public Bubble {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  FreeThrowBar(const Texts& texts, QWidget* parent);
  ~FreeThrowBar() override;

  // Both rectangles in global coordinates; one of the shooter's panel that is empty: he is not on court.
  void open(const LiveGame& game, const FoulThrows& throws, const QRect& panel, const QRect& room);
  void showThrows(const FoulThrows& throws);         // what has changed; closes with the last
  void stand(const QRect& panel, const QRect& room); // where the shooter stands now
  bool isOpen() const { return isVisible(); }
  // Whether somebody types a line now, to whom letters belong.
  void setTyping(std::function<bool()> isTyping) { m_isTyping = std::move(isTyping); }

 signals:
  void thrown(bool isMade);
  void awardedAsked(int awarded);
  void kindAsked(const std::string& kind);
  void closeAsked();
  void clicked(); // behind each of them that the mouse has asked for

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Throw {
    QLabel* number = nullptr;
    ThrowMark* made = nullptr;
    ThrowMark* missed = nullptr;
  };
  ThrowMark* makeMark(int place, bool isMade);
  void applyMeasure(int panel);
  void takeKey(int key);

  const Texts& m_texts;
  std::function<bool()> m_isTyping;
  QLabel* m_title = nullptr;
  QLabel* m_shooter = nullptr;
  std::array<Throw, FoulThrows::kMost> m_throws;
  std::array<QPushButton*, FoulThrows::kMost> m_awarded = {};
  DetailChips* m_kinds = nullptr;
  QPushButton* m_close = nullptr;
};

// The kinds of a personal foul as one letter each, which the file has and which is its key.
[[nodiscard]] std::vector<DetailChip> foulChips(const Texts& texts);

} // namespace hooptab
