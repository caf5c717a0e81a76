// The dialogs that wait for the user, and the opening of documents, behind one small interface, so that a
// test can answer in the user's place. Knows no texts: callers bring them in the language in use.
#pragma once

#include <QString>
#include <QStringList>

class QUrl;
class QWidget;

namespace hooptab {

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The chosen file, empty when cancelled. `filter` as Qt's file dialog takes it.
  virtual QString chooseFile(QWidget* parent, const QString& title, const QString& folder,
                             const QString& filter) = 0;
  virtual void inform(QWidget* parent, const QString& title, const QString& text) = 0;
  virtual void warn(QWidget* parent, const QString& title, const QString& text) = 0; // exclamation mark
  virtual bool ask(QWidget* parent, const QString& title, const QString& text) = 0;  // true for "Yes"
  // With the system's program for such a document; false when there is none.
  virtual bool openDocument(const QUrl& document) = 0;
};

class QtDialogs : public Dialogs {
 public:
  QString chooseFile(QWidget* parent, const QString& title, const QString& folder,
                     const QString& filter) override;
  void inform(QWidget* parent, const QString& title, const QString& text) override;
  void warn(QWidget* parent, const QString& title, const QString& text) override;
  bool ask(QWidget* parent, const QString& title, const QString& text) override;
  bool openDocument(const QUrl& document) override;
};

// A filter text of the string table, "NAME (*.GAM)|*.GAM", pair after pair, in the form of Qt's dialog. File
// names are offered in capitals and in small letters: "NAME (*.GAM *.gam)".
[[nodiscard]] QString fileFilter(const QString& tableText);

} // namespace hooptab
