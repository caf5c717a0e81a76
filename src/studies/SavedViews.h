// A button with the views that the user has kept under a name, as values that only their owner understands:
// one is chosen from its menu, kept by typing a name, or taken away.
#pragma once

#include "settings/Texts.h"

#include <QByteArray>
#include <QMap>
#include <QToolButton>

class QMenu;

namespace hooptab {

class SavedViews : public QToolButton {
  Q_OBJECT

 public:
  using Views = QMap<QString, QByteArray>; // by name

  SavedViews(const Texts& texts, QWidget* parent);

  const Views& views() const { return m_views; }
  void setViews(Views views) { m_views = std::move(views); }
  // A view of that name is replaced.
  void keep(const QString& name, const QByteArray& view) { m_views[name] = view; }

 signals:
  void viewAsked(const QByteArray& view);
  void keepAsked(const QString& name); // what is shown now

 private:
  void fillMenu();

  const Texts& m_texts;
  Views m_views;
  QMenu* m_menu;
};

} // namespace hooptab
