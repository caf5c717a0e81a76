// The choice of a printer, behind one small interface, so that a test can bring one that works or refuses.
#pragma once

#include "storage/TaskWatch.h"

#include <QPageLayout>

#include <memory>

class QPrinter;
class QWidget;

namespace hooptab {

struct PageFormat;
struct Report;

class Printers {
 public:
  virtual ~Printers() = default;
  [[nodiscard]] virtual bool hasAny() = 0; // a printer is installed
  // The printer, with the pages and copies that the user wants; null when cancelled.
  virtual std::unique_ptr<QPrinter> choose(QWidget* parent, const QPageLayout& layout, int pages) = 0;
};

class QtPrinters : public Printers {
 public:
  bool hasAny() override;
  std::unique_ptr<QPrinter> choose(QWidget* parent, const QPageLayout& layout, int pages) override;
};

// Prints the chosen pages. False when the printer refuses, then nothing more is sent to it; and when
// cancelled, which is possible until the first page is sent.
[[nodiscard]] bool printReport(QPrinter& printer, const Report& report, const PageFormat& format,
                               const TaskWatch& watch = {});

} // namespace hooptab
