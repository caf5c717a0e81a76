// The notes on a game, and its end: closes the game, lets it go on, or opens a finished one again. Only asks
// and says what was chosen; writes nothing.
#pragma once

#include <QDialog>

#include <cstdint>
#include <string>

class QLabel;
class QPlainTextEdit;

namespace hooptab {

class Dialogs;
struct GameDetails;
class Texts;

class frmGAMEOVER : public QDialog {
  Q_OBJECT
 public:
  enum class Choice : std::uint8_t {
    None,     // nothing is to be written
    Close,    // the notes are to be kept and the game is over
    Continue, // the notes are to be kept and the game goes on
    Reopen,   // a finished game goes on; its notes stay as they were
  };

  // Texts and dialogs must outlive it.
  frmGAMEOVER(const GameDetails& details, const Texts& texts, Dialogs& dialogs, QWidget* parent = nullptr);

  Choice choice() const { return m_choice; }
  std::string notes() const; // as a line of the file: breaks are blanks

  void reject() override; // asks about notes that were changed

 private:
  void choose(Choice choice);
  void limitNotes();
  void showLength();

  const Texts& m_texts;
  Dialogs& m_dialogs;
  const bool m_isFinished;
  const std::string m_notesBefore;
  QString m_lastNotes; // what is in the field while it takes no more
  QPlainTextEdit* m_notes;
  QLabel* m_length;
  Choice m_choice = Choice::None;
};

} // namespace hooptab
