// The window in which chosen games are written to one file: as what, where and under which name. Shows how
// far the work is, can be cancelled, and asks before a file gives way. Which games they are is the caller's
// choice.
#pragma once

#include "appearance/Task.h"
#include "printing/GamesFiles.h"
#include "settings/Texts.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QVBoxLayout;

namespace hooptab {

class Dialogs;

class frmWEEKEND : public QDialog {
  Q_OBJECT

 public:
  // Files, texts and dialogs must outlive it. `name` is proposed for the files, without ending.
  frmWEEKEND(std::vector<std::string> games, const QString& folder, const QString& name, FileSystem& files,
             const Texts& texts, Dialogs& dialogs, QWidget* parent = nullptr);

  void reject() override; // ends the work first, if any is under way

  // Once it was accepted.
  [[nodiscard]] QString folder() const;
  [[nodiscard]] const QString& message() const { return m_message; } // what was written

 private:
  void addFields(QVBoxLayout& layout, const QString& folder, const QString& name);
  void addProgress(QVBoxLayout& layout);
  void addAnswers(QVBoxLayout& layout);
  void browse();
  void write();
  [[nodiscard]] GamesOrder order() const;
  [[nodiscard]] bool mayWrite(const GamesOrder& order);
  void showProgress();
  void showState();
  void tell(const GamesOutcome& outcome);
  void complain(const QString& text);

  const std::vector<std::string> m_games;
  FileSystem& m_files;
  const Texts& m_texts;
  Dialogs& m_dialogs;
  QComboBox* m_what = nullptr;
  QLineEdit* m_folder = nullptr;
  QLineEdit* m_name = nullptr;
  QPushButton* m_browse = nullptr;
  QLabel* m_progressText = nullptr;
  QProgressBar* m_progress = nullptr;
  QPushButton* m_write = nullptr;
  QString m_message;
  bool m_isLeaving = false; // as soon as the work has ended
  Task m_task;              // goes first, before what its work refers to
};

} // namespace hooptab
