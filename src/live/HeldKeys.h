// A key counts once until it is let go. Not every display says of a repeated key that it repeats, and some
// let it go and press it again in the same moment: both are held back here, before any window sees them. Keys
// that one holds on purpose (arrows, paging) and text fields stay as they are.
#pragma once

#include <QHash>
#include <QObject>

#include <optional>

class QKeyEvent;

namespace hooptab {

class HeldKeys : public QObject {
  Q_OBJECT
 public:
  // Milliseconds between letting a key go and pressing it again that no finger needs less of.
  static constexpr quint64 kLeastGap = 25;
  // A key that is held repeats sooner: one not seen for so long was let go where nobody told.
  static constexpr quint64 kLongestRepeat = 1000;

  explicit HeldKeys(QObject* parent);
  ~HeldKeys() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isHeld(const QKeyEvent& key, bool isOverride);
  void letGo(const QKeyEvent& key);
  void forget();

  QHash<quint32, quint64> m_down;       // as the keyboard numbers them; when they were seen last
  std::optional<quint32> m_awaitsPress; // its shortcut was offered first
  std::optional<quint32> m_lastLetGo;
  quint64 m_lastLetGoAt = 0; // by the display's clock
};

} // namespace hooptab
