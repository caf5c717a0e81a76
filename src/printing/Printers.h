// The choice of a printer, behind one small interface, so that a test can bring one that works or refuses.
#pragma once

#include <QPageLayout>

#include <memory>

class QPrinter;
class QWidget;

namespace hooptab {

class ReportLayout;

class Printers {
 public:
  virtual ~Printers() = default;
  // The printer, with the pages and copies that the user wants; null when cancelled.
  virtual std::unique_ptr<QPrinter> choose(QWidget* parent, const QPageLayout& layout, int pages) = 0;
};

class QtPrinters : public Printers {
 public:
  std::unique_ptr<QPrinter> choose(QWidget* parent, const QPageLayout& layout, int pages) override;
};

// Prints the chosen pages of a report that is laid out. False when the printer refuses; then nothing more is
// sent to it.
[[nodiscard]] bool printReport(QPrinter& printer, const ReportLayout& layout);

} // namespace hooptab
