#include "shell/UnsavedSettings.h"

#include "appearance/Dialogs.h"
#include "appearance/relabel.h"
#include "settings/Texts.h"
#include "storage/ProfileStore.h"

namespace hooptab {

UnsavedSettings::UnsavedSettings(const Workshop& workshop, QWidget* parent)
    : PlainLabel(parent), m_workshop(workshop),
      m_retry(workshop.settings.pending(), workshop.store.files(), this) {
  setObjectName(QStringLiteral("lblUNSAVED"));
  hide();
  connect(&m_retry, &WriteRetry::due, this, [this] {
    m_workshop.settings.retry();
    refresh();
  });
  connect(&m_retry, &WriteRetry::waits, this, [this](bool isNew) {
    if (isNew)
      emit waits(words());
    setText(words());
    showReason(*this, m_retry.reason(m_workshop.texts));
    show();
  });
  connect(&m_retry, &WriteRetry::allIsOnDisk, this, &QWidget::hide);
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
  m_retry.refresh();
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
