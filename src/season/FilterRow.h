// Small fields above the columns of a table, in which is typed what rows are to be shown. Hidden, they hold
// nothing back.
#pragma once

#include "settings/Texts.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class QLineEdit;

namespace hooptab {

class SeasonTableView;

class FilterRow : public QWidget {
  Q_OBJECT

 public:
  // It stands above the table and takes its name from it. Both must outlive it.
  FilterRow(SeasonTableView& table, int frozenColumns, const Texts& texts, QWidget* parent);

  void showFields(bool areShown);
  // What is typed, by column; empty where nothing is.
  [[nodiscard]] QStringList typed() const;
  void setTyped(const QStringList& typed);

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void makeFields();
  void layOut();
  void apply();

  SeasonTableView& m_table;
  const int m_frozenColumns;
  const Texts& m_texts;
  std::vector<QLineEdit*> m_fields;
};

// A widget with the table, and the row above it, which is hidden at first.
[[nodiscard]] QWidget* withFilters(SeasonTableView& table, int frozenColumns, const Texts& texts,
                                   QWidget* parent);

} // namespace hooptab
