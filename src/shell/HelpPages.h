// The two "Help" commands that open a document: the user guide of the program folder, and the web page in the
// language in use.
#pragma once

#include "shell/SharedFiles.h"

#include <QString>

class QUrl;
class QWidget;

namespace hooptab {

class Dialogs;
class Settings;
class Texts;

class HelpPages {
 public:
  HelpPages(Dialogs& dialogs, const SharedFiles& files, const Settings& settings, const Texts& texts);

  void openGuide(QWidget* parent);
  // The address in the settings where there is one, else the page that is shipped with the program.
  void openWebPage(QWidget* parent);

 private:
  [[nodiscard]] QUrl webPage() const;
  void open(const QUrl& document, QWidget* parent);

  Dialogs& m_dialogs;
  const SharedFiles& m_files;
  const Settings& m_settings;
  const Texts& m_texts;
};

} // namespace hooptab
