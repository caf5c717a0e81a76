#include "shell/HelpPages.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "storage/Settings.h"

#include <QFileInfo>
#include <QUrl>

namespace hooptab {

namespace {

constexpr int kGuideNotFound = 1538;
constexpr int kGuideNotFoundTitle = 1539;
constexpr int kCannotBeRead = 1519;

} // namespace

HelpPages::HelpPages(Dialogs& dialogs, const SharedFiles& files, const Settings& settings, const Texts& texts)
    : m_dialogs(dialogs), m_files(files), m_settings(settings), m_texts(texts) {}

void HelpPages::openGuide(QWidget* parent) {
  const QString guide = toQt(m_settings.folder()) + QStringLiteral("/guide.pdf");
  if (!QFileInfo(guide).isFile() || !m_dialogs.openDocument(QUrl::fromLocalFile(guide)))
    m_dialogs.warn(parent, toQt(m_texts.text(kGuideNotFoundTitle)), toQt(m_texts.text(kGuideNotFound)));
}

void HelpPages::openWebPage(QWidget* parent) {
  const QUrl page = webPage();
  if (!m_dialogs.openDocument(page))
    m_dialogs.warn(parent, toQt(m_texts.text(1060)),
                   toQt(m_texts.withPlaceholder(kCannotBeRead, fromQt(page.toDisplayString()))));
}

QUrl HelpPages::webPage() const {
  const bool isFrench = m_texts.language() == Language::French;
  if (const std::optional<std::string>& address = m_settings.webPage[isFrench ? 1 : 0])
    return QUrl::fromUserInput(toQt(*address));
  const char* name = isFrench ? "help/fr.html" : "help/en.html";
  return QUrl::fromLocalFile(toQt(m_files.find(name).value_or(m_files.candidates(name).back())));
}

} // namespace hooptab
