// The print preview: a report's pages as they will be printed, with its title, paper and zoom to choose, and
// every way out of it: printer, PDF, workbook, text, web page, pictures. Lays out and forwards; how a report
// is made is its offer's to know, how it leaves the program that of ReportOutput.
#pragma once

#include "appearance/ChildWindow.h"
#include "appearance/WidgetsFirst.h"
#include "printing/PageFormat.h"
#include "report/Report.h"
#include "settings/Texts.h"

#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace hooptab {

class Dialogs;
class PageView;
class Printers;
class ReportLayout;
class ReportOutput;
enum class ReportForm;

// A report that the preview can show. Both are asked again when the language changes.
struct ReportOffer {
  std::function<std::string()> name;
  std::function<Report()> make;
};

class frmprint : public ChildWindow {
  Q_OBJECT

 public:
  // All must outlive it.
  frmprint(const Texts& texts, Dialogs& dialogs, Printers& printers, ReportOutput& output,
           QWidget* parent = nullptr);
  ~frmprint() override;

  // Shows the first of them; the others can be chosen.
  void offer(std::vector<ReportOffer> offers);

  void relabelWindow() override;
  void applyColours() override {}          // paper has its own
  QByteArray arrangement() const override; // paper, zoom and pages side by side
  void restoreArrangement(const QByteArray& state) override;

 private:
  QWidget* makeReportRow();
  QWidget* makePageRow();
  QComboBox* addChoice(const char* name, Text label, QWidget* parent);
  QToolButton* addButton(const char* name, Text text, const char* iconName, QWidget* parent);
  void connectEverything();
  void fillChoices();

  void makeReport(); // of the chosen offer
  void limitRows();
  void layOut();
  void layOutMore();
  void finishLayout();
  void showPage();
  void showZoom();
  void chooseZoom(int choice);
  [[nodiscard]] PageFormat format() const;

  void print();
  void save(ReportForm form);
  void showOutputs();

  const Texts& m_texts;
  Dialogs& m_dialogs;
  Printers& m_printers;
  ReportOutput& m_output;
  std::vector<ReportOffer> m_offers;
  Report m_report;
  bool m_isTitleTyped = false;
  bool m_areRowsChosen = false; // by the user
  std::unique_ptr<ReportLayout> m_layout;
  QTimer m_steps;

  QComboBox* m_choice = nullptr;
  QLineEdit* m_title = nullptr;
  QComboBox* m_paper = nullptr;
  QComboBox* m_turn = nullptr;
  QComboBox* m_rows = nullptr;
  QComboBox* m_zoom = nullptr;
  QToolButton* m_facing = nullptr;
  QSpinBox* m_page = nullptr;
  QLabel* m_pageCount = nullptr;
  PageView* m_view = nullptr;
  WidgetsFirst m_widgetsFirst{*this}; // stays the last member
};

} // namespace hooptab
