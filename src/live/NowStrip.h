// The strip below the panels: how to type, what this five of each team has done together, the run, the best
// five, and whether all is on disk. A message lies over its middle for a while.
#pragma once

#include "game/Side.h"
#include "recording/Fives.h"
#include "recording/LiveWords.h"
#include "storage/PendingWrites.h"

#include <QWidget>

#include <cstddef>
#include <optional>
#include <vector>

class QLabel;
class QToolButton;

namespace hooptab {

class NowStrip : public QWidget {
  Q_OBJECT
 public:
  // `texts` must outlive it.
  explicit NowStrip(const Texts& texts, QWidget* parent = nullptr);

  void showGame(const LiveGame& game);
  void showTime(const LiveGame& game); // how long the fives have played
  void showDisk(const PendingWrites& pending);
  void showPending(const QString& words); // of a substitution; empty: none
  void relabelStrip();                    // behind relabel()
  void applyColours();
  // Where a message may lie: between the typed line and the word about the disk.
  [[nodiscard]] QRect middle() const;

 signals:
  void keysAsked(); // the sheet of keys
  void resized();

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override; // the middle moves with its neighbours
  void resizeEvent(QResizeEvent* event) override;

 private:
  // A stretch of words in one colour and weight, or a chip of a team's colour.
  struct Run {
    QString text = {};
    QColor colour = {};
    bool isBold = false;
    bool isChip = false;
    bool beginsGroup = false; // a hairline before it
    friend bool operator==(const Run&, const Run&) = default;
  };
  void gather();
  void addFive(Side team);
  void sayDisk();
  void addChip(Side team, bool beginsGroup = false);
  void addWords(const QString& words, const QColor& colour, bool isBold = false);

  const Texts& m_texts;
  const LiveGame* m_game = nullptr;
  Fives m_fives;
  std::optional<ScoringRun> m_run;
  std::vector<Run> m_runs;
  std::size_t m_waiting = 0; // changes, for the disk
  StorageError m_why;
  QToolButton* m_keys = nullptr;
  QLabel* m_disk = nullptr;
  QLabel* m_pending = nullptr;
};

} // namespace hooptab
