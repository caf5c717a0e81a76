// Gives every table and every picture of a window the same menu: copy, and export to a file in each form. The
// window knows nothing of it.
#pragma once

#include "appearance/ShownPicture.h"
#include "printing/ReportFiles.h"
#include "settings/Texts.h"

#include <QObject>
#include <QPointer>

#include <string>

class QMenu;
class QWidget;

namespace hooptab {

class ChildWindow;
class ReportOutput;

class WindowExports : public QObject {
  Q_OBJECT

 public:
  // Both must outlive it.
  WindowExports(ReportOutput& output, const Texts& texts, QObject* parent = nullptr);

  // Once for each window, when it is complete; its own button that copies a table then offers the exports
  // too. The entries get their texts here and in the window's relabel().
  void serve(ChildWindow& window);
  // Makes the entries of a menu that exports the table which the user was in last, else the first that is
  // shown in `window`, and the pictures that are shown. Null: none.
  void fill(QMenu& menu, ChildWindow* window);

 signals:
  void reported(const QString& message);

 private:
  void addActions(QWidget& table);
  void addPictureActions(QWidget& widget);
  void fillWith(QMenu& menu, QWidget& table);
  void fillWithPictures(QMenu& menu, ChildWindow& window);
  [[nodiscard]] QWidget* shownTable(ChildWindow& window) const;
  void copy(const QWidget& table);
  void exportTable(const QWidget& table, ReportForm form);
  void copyPicture(const QWidget& widget);
  void savePicture(const QWidget& widget);

  ReportOutput& m_output;
  const Texts& m_texts;
  QPointer<QWidget> m_last; // table that had the focus
};

// With its title above it, at twice the size of the screen's pixels.
[[nodiscard]] QImage pictureOf(const ShownPicture& picture, const QString& title);

} // namespace hooptab
