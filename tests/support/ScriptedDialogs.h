// Answers dialogs in the user's place, as the test laid down before, and remembers what was shown.
#pragma once

#include "appearance/Dialogs.h"

#include <QUrl>
#include <vector>

namespace hooptab {

class ScriptedDialogs : public Dialogs {
 public:
  enum class Kind { Inform, Warn, Ask };
  struct Shown {
    Kind kind;
    QString title;
    QString text;
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  QString nextFile; // empty: the user cancels
  bool nextAnswer = false;
  bool opensDocuments = true;

  std::vector<Shown> shown;
  QString lastFilter;
  QString lastFolder;
  QList<QUrl> opened;

  QString chooseFile(QWidget*, const QString&, const QString& folder, const QString& filter) override {
    lastFolder = folder;
    lastFilter = filter;
    return nextFile;
  }
  void inform(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Inform, title, text});
  }
  void warn(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Warn, title, text});
  }
  bool ask(QWidget*, const QString& title, const QString& text) override {
    shown.push_back({Kind::Ask, title, text});
    return nextAnswer;
  }
  bool openDocument(const QUrl& document) override {
    opened << document;
    return opensDocuments;
  }
};

} // namespace hooptab
