// The events in a window of their own, for a second screen: the same rows, the same selection and the same
// commands as the list beside the panels, which stays. It takes no keys: what is typed goes on to the game.
#pragma once

#include <QWidget>

namespace hooptab {

class LiveEventList;

class EventWindow : public QWidget {
  Q_OBJECT
 public:
  // Beside `list`, whose model, selection and actions it shares.
  EventWindow(LiveEventList& list, QWidget* parent);

  LiveEventList& list() const { return *m_list; }
  void applyColours();
  // Where it was left; else on another screen than the game's, where there is one.
  void open(const QByteArray& geometry);

 signals:
  void closed(); // by its own button

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  LiveEventList* m_list;
};

} // namespace hooptab
