// The dialogs that wait for the user, and the opening of documents, behind one small interface, so that a
// test can answer in the user's place. Knows no texts: callers bring them in the language in use.
#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

class QUrl;
class QWidget;

namespace hooptab {

// What to do with work that is not saved yet.
enum class SaveChoice { Save, Discard, Stay };

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // The chosen file, empty when cancelled. `filter` as Qt's file dialog takes it.
  virtual QString chooseFile(QWidget* parent, const QString& title, const QString& folder,
                             const QString& filter) = 0;
  // One or several files of one folder; none when cancelled.
  virtual QStringList chooseFiles(QWidget* parent, const QString& title, const QString& folder,
                                  const QString& filter) = 0;
  // The chosen folder, empty when cancelled.
  virtual QString chooseFolder(QWidget* parent, const QString& title, const QString& folder) = 0;
  // A file to write, `proposed` (a whole path) preselected; empty when cancelled. Without an ending the path
  // gets `ending` ("GAM"). Does not ask about a file that is there: the caller knows what would be lost.
  virtual QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposed,
                                   const QString& filter, const QString& ending) = 0;
  // Not valid when cancelled. Offers the program's 16 custom colours.
  virtual QColor chooseColour(QWidget* parent, const QString& title, const QColor& current) = 0;
  virtual void inform(QWidget* parent, const QString& title, const QString& text) = 0;
  virtual void warn(QWidget* parent, const QString& title, const QString& text) = 0;     // exclamation mark
  virtual void complain(QWidget* parent, const QString& title, const QString& text) = 0; // sign of an error
  virtual bool ask(QWidget* parent, const QString& title,
                   const QString& text) = 0; // true for "Yes", which Enter alone is not
  virtual SaveChoice askToSave(QWidget* parent, const QString& title, const QString& text) = 0;
  // With the system's program for such a document; false when there is none.
  virtual bool openDocument(const QUrl& document) = 0;
};

class QtDialogs : public Dialogs {
 public:
  QString chooseFile(QWidget* parent, const QString& title, const QString& folder,
                     const QString& filter) override;
  QStringList chooseFiles(QWidget* parent, const QString& title, const QString& folder,
                          const QString& filter) override;
  QString chooseFolder(QWidget* parent, const QString& title, const QString& folder) override;
  QString chooseFileToSave(QWidget* parent, const QString& title, const QString& proposed,
                           const QString& filter, const QString& ending) override;
  QColor chooseColour(QWidget* parent, const QString& title, const QColor& current) override;
  void inform(QWidget* parent, const QString& title, const QString& text) override;
  void warn(QWidget* parent, const QString& title, const QString& text) override;
  void complain(QWidget* parent, const QString& title, const QString& text) override;
  bool ask(QWidget* parent, const QString& title, const QString& text) override;
  SaveChoice askToSave(QWidget* parent, const QString& title, const QString& text) override;
  bool openDocument(const QUrl& document) override;

 private:
  bool m_hasCustomColours = false; // what the user adds to them stays while the program runs
};

// A filter text of the string table, "NAME (*.GAM)|*.GAM", pair after pair, in the form of Qt's dialog. File
// names are offered in capitals and in small letters: "NAME (*.GAM *.gam)".
[[nodiscard]] QString fileFilter(const QString& tableText);

} // namespace hooptab
