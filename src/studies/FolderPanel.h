// The head of the season's window: the folder of games, and how far the work on it is.
#pragma once

#include "settings/Texts.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QToolButton;

namespace hooptab {

class FolderPanel : public QWidget {
  Q_OBJECT

 public:
  explicit FolderPanel(const Texts& texts, QWidget* parent = nullptr);

  QString folder() const;
  bool withSubfolders() const;
  void showFolder(const QString& folder, bool withSubfolders);
  void showCounts(const QString& listed, const QString& notRead); // the second one empty: all were read
  // `most` 0: how long it takes is not known.
  void showProgress(const QString& text, int done, int most);
  void endProgress();

 signals:
  void browseAsked();
  void readAsked(); // the folder that is shown
  void cancelAsked();
  void notReadAsked();

 private:
  QLineEdit* m_folder;
  QCheckBox* m_withSubfolders;
  QPushButton* m_browse;
  QToolButton* m_read;
  QLabel* m_listed;
  QToolButton* m_notRead;
  QLabel* m_progressText;
  QProgressBar* m_progress;
  QPushButton* m_cancel;
};

} // namespace hooptab
