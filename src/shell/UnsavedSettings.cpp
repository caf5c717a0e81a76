#include "shell/UnsavedSettings.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "settings/Texts.h"

#include <chrono>

namespace hooptab {

namespace {

using namespace std::chrono_literals;

constexpr auto kRetryInterval = 2s;

} // namespace

UnsavedSettings::UnsavedSettings(const Workshop& workshop, QWidget* parent)
    : PlainLabel(parent), m_workshop(workshop) {
  setObjectName(QStringLiteral("lblUNSAVED"));
  hide();
  m_retry.setInterval(kRetryInterval);
  connect(&m_retry, &QTimer::timeout, this, [this] {
    m_workshop.settings.retry();
    refresh();
  });
}

QString UnsavedSettings::words() const {
  return toQt(m_workshop.texts.withPlaceholder(Text::NotSaved, m_workshop.settings.path()));
}

void UnsavedSettings::refresh() {
  if (const auto found = m_workshop.settings.takeRestored()) {
    std::string words(m_workshop.texts.text(Text::SettingsRestored));
    if (!found->keptAs.empty())
      words += ' ' + m_workshop.texts.withPlaceholder(Text::SettingsKeptAs, found->keptAs);
    emit restored(toQt(words));
  }
  const bool isUnsaved = !m_workshop.settings.isOnDisk();
  if (isUnsaved && isHidden())
    emit waits(words());
  setText(words());
  setVisible(isUnsaved);
  if (!isUnsaved)
    m_retry.stop();
  else if (!m_retry.isActive())
    m_retry.start();
  emit refreshed();
}

void UnsavedSettings::report(Settings::Preparation preparation) {
  const Texts& texts = m_workshop.texts;
  const auto warn = [&](Text text, const std::string& path) {
    m_workshop.dialogs.warn(window(), toQt(texts.text(Text::WarningTitle)),
                            toQt(texts.withPlaceholder(text, path)));
  };
  if (preparation == Settings::Preparation::FirstRunKeptOld)
    warn(Text::OldSettingsKept, m_workshop.settings.keptAs());
  if (preparation == Settings::Preparation::CannotBeRead)
    warn(Text::SettingsUnreadable, m_workshop.settings.path());
  refresh();
}

bool UnsavedSettings::mayLeave() {
  if (m_workshop.settings.saveLastFolders())
    return true;
  const Texts& texts = m_workshop.texts;
  do {
    switch (m_workshop.dialogs.askToSave(
        window(), toQt(texts.text(Text::ErrorTitle)),
        toQt(texts.withPlaceholder(Text::SettingsNotSaved, m_workshop.settings.path())))) {
    case SaveChoice::Save: break;
    case SaveChoice::Discard: return true;
    case SaveChoice::Stay: refresh(); return false;
    }
  } while (!m_workshop.settings.retry());
  return true;
}

} // namespace hooptab
