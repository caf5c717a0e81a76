// A sheet of the input form as it is printed, with crosses in the cells that a test asks for, as a picture
// that could come from a scanner.
#pragma once

#include "printing/FormPainter.h"
#include "printing/PageFormat.h"
#include "report/TeamReports.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>
#include <string>

namespace hooptab {

class FilledForm {
 public:
  static constexpr int kDots = 300; // per inch

  // Sheet from 0.
  explicit FilledForm(const Report& forms, std::size_t sheet = 0)
      : m_picture(2480, 3508, QImage::Format_RGB32) {
    m_picture.setDotsPerMeterX(static_cast<int>(kDots / 0.0254));
    m_picture.setDotsPerMeterY(m_picture.dotsPerMeterX());
    m_picture.fill(Qt::white);
    QPainter painter(&m_picture);
    painter.scale(kDots / kUnitsPerInch, kDots / kUnitsPerInch);
    paintForm(painter, std::get<FormSheet>(forms.blocks.at(sheet)),
              QSizeF(m_picture.size()) * (kUnitsPerInch / kDots), PageFonts());
  }

  // The first cells of a row; of shots by the made counter.
  void tick(int player, FormCell::Kind kind, Counter counter, int count, const QColor& pen = Qt::black) {
    for (int number = 0; number < count; ++number)
      cross({{}, kind, player, counter, 0, number}, pen);
  }
  void tickDigit(int player, int place, int digit) {
    cross({{}, FormCell::Kind::JerseyDigit, player, Counter::FGM, place, digit}, Qt::black);
  }
  // Much fainter than the crosses of the black pen: nobody can be sure of it.
  void hint(int player, FormCell::Kind kind, Counter counter, int number) {
    cross({{}, kind, player, counter, 0, number}, QColor(0x98, 0x98, 0x98));
  }

  const QImage& picture() const { return m_picture; }
  std::string save(const std::string& path, const char* format = nullptr) const {
    EXPECT_TRUE(m_picture.save(QString::fromStdString(path), format)) << path;
    return path;
  }

 private:
  QPointF at(double x, double y) const { // millimetres; the form stands in the middle of the page
    constexpr double kPixels = kDots / 25.4;
    return {m_picture.width() / 2.0 + (x - FormLayout::kWidth / 2) * kPixels,
            m_picture.height() / 2.0 + (y - FormLayout::kHeight / 2) * kPixels};
  }
  void cross(const FormCell& wanted, const QColor& colour) {
    QPainter painter(&m_picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 5));
    for (const FormCell& cell : m_layout.cells()) {
      const FormRect& rect = cell.rect;
      if (cell.player != wanted.player || cell.kind != wanted.kind || cell.counter != wanted.counter ||
          cell.number != wanted.number || cell.place != wanted.place)
        continue;
      painter.drawLine(at(rect.x + 0.4, rect.y + 0.4), at(rect.right() - 0.4, rect.bottom() - 0.4));
      painter.drawLine(at(rect.right() - 0.4, rect.y + 0.4), at(rect.x + 0.4, rect.bottom() - 0.4));
    }
  }

  FormLayout m_layout;
  QImage m_picture;
};

} // namespace hooptab
