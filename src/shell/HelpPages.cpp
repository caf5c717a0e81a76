#include "shell/HelpPages.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "settings/Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace hooptab {

HelpPages::HelpPages(Dialogs& dialogs, const SharedFiles& files, const Settings& settings, const Texts& texts)
    : m_dialogs(dialogs), m_files(files), m_settings(settings), m_texts(texts) {}

void HelpPages::openGuide(QWidget* parent) {
  QString guide = toQt(m_settings.folder()) + QStringLiteral("/guide.pdf");
  if (!QFileInfo(guide).isFile()) // the one that was installed
    guide = toQt(m_files.find("guide.pdf").value_or(std::string()));
  if (!QFileInfo(guide).isFile())
    return m_dialogs.warn(parent, toQt(m_texts.text(Text::GuideNotFoundTitle)),
                          toQt(m_texts.text(Text::GuideNotFound)));
  open(QUrl::fromLocalFile(guide), parent);
}

void HelpPages::openWebPage(QWidget* parent) {
  open(webPage(), parent);
}

void HelpPages::open(const QUrl& document, QWidget* parent) {
  const QString shown =
      document.isLocalFile() ? QDir::toNativeSeparators(document.toLocalFile()) : document.toDisplayString();
  if (!m_dialogs.openDocument(document))
    m_dialogs.warn(parent, toQt(m_texts.text(Text::ErrorTitle)),
                   toQt(m_texts.withPlaceholder(Text::NoProgram, fromQt(shown))));
}

QUrl HelpPages::webPage() const {
  const Language language = m_texts.language();
  if (const std::optional<std::string>& address = m_settings.webPage[indexOf(language)])
    return QUrl::fromUserInput(toQt(*address));
  const std::string name = "help/" + std::string(factsOf(language).code) + ".html";
  return QUrl::fromLocalFile(toQt(m_files.find(name).value_or(m_files.candidates(name).back())));
}

} // namespace hooptab
