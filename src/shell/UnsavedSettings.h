// What of the settings is not on disk yet: says so in the status bar, tries again every two seconds, and asks
// before the program ends without them.
#pragma once

#include "appearance/PlainLabel.h"
#include "appearance/WriteRetry.h"
#include "settings/Settings.h"
#include "shell/Workshop.h"

namespace hooptab {

class UnsavedSettings : public PlainLabel {
  Q_OBJECT
 public:
  UnsavedSettings(const Workshop& workshop, QWidget* parent);

  // After anything that saves settings, and when the language changes.
  void refresh();
  // Tells what their preparation has to say to the user, if anything.
  void report(Settings::Preparation preparation);
  // They are on disk, or the user lets them go.
  [[nodiscard]] bool mayLeave();

 signals:
  void restored(const QString& words); // they were lost or damaged on disk, and are there again
  void waits(const QString& words);    // they cannot be written: once, as it begins
  void refreshed();

 private:
  [[nodiscard]] QString words() const;

  Workshop m_workshop;
  WriteRetry m_retry;
};

} // namespace hooptab
