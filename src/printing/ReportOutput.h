// The way of a report out of the program: asks where to, makes the file or prints on a thread of its own, and
// shows meanwhile how far that is, with a button that cancels it; what was saved can be opened from it. One
// piece of work at a time: asked for another one, it says what it is at. What is written stands whole or not
// at all.
#pragma once

#include "appearance/Task.h"
#include "printing/PageFormat.h"
#include "printing/ReportFiles.h"
#include "settings/Texts.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QPrinter;
class QProgressBar;
class QPushButton;

namespace hooptab {

class Dialogs;

class ReportOutput : public QWidget {
  Q_OBJECT

 public:
  // All must outlive it. The first file is proposed among the user's documents.
  ReportOutput(const Texts& texts, Dialogs& dialogs, FileSystem& files, QWidget* parent = nullptr);
  ~ReportOutput() override;

  // `asker` is the window over which questions and complaints stand.
  void save(Report report, ReportForm form, const PageFormat& format, QWidget* asker);
  void savePicture(const QString& fileName, std::string png, QWidget* asker);
  void print(Report report, const PageFormat& format, std::shared_ptr<QPrinter> printer, QWidget* asker);
  // For the next file, where it is there: the folder of another time.
  void proposeFolder(const QString& folder) { m_folder = folder; }
  bool isBusy() const { return m_task.isRunning(); }
  void cancel() { m_task.cancel(); } // until the file is written, or the first page is sent

  // Of the menu entry that saves in that form.
  static Text textOf(ReportForm form);

 signals:
  void reported(const QString& message);
  void folderChosen(const QString& folder);
  void busyChanged();

 private:
  // What a thread made and wrote.
  struct Outcome {
    bool isMade = false;
    std::string failed; // the path that could not be written
    WriteProblem problem = WriteProblem::Unknown;
  };
  using Make = std::function<std::optional<std::vector<ReportFile>>(const TaskWatch& watch)>;
  [[nodiscard]] QString choosePath(const QString& fileName, ReportForm form, QWidget* asker);
  [[nodiscard]] bool mayReplace(const QString& path, const std::vector<std::string>& suffixes,
                                QWidget* asker);
  void write(const QString& path, Make make, QWidget* asker);
  void tell(const Outcome& outcome, const QString& path, QWidget* asker);
  void start(const QString& what, Task::Work work);
  void showProgress();
  void showParts(bool isSaved);
  void openSaved(const QString& path);
  void end();
  void complain(Text text, const QString& path, QWidget* asker);

  const Texts& m_texts;
  Dialogs& m_dialogs;
  FileSystem& m_files;
  QString m_folder; // chosen last
  QTimer m_delay;   // work that is done at once shows nothing

  QLabel* m_what = nullptr;
  QProgressBar* m_progress = nullptr;
  QPushButton* m_cancel = nullptr;
  QPushButton* m_open = nullptr;
  QPushButton* m_showFolder = nullptr;
  QString m_saved; // the file that can be opened
  QTimer m_offerEnds;
  Task m_task; // goes first, before what its work refers to
};

} // namespace hooptab
