#include "publish/QrPicture.h"

#include "appearance/Theme.h"

#include <QPainter>

#include <qrcodegen/QrCode.hpp>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kQuietModules = 4; // on each side: ISO/IEC 18004

} // namespace

QrPicture::QrPicture(QWidget* parent) : QWidget(parent) {
  const int side = Theme::measure()(232, 280);
  setFixedSize(side, side);
}

void QrPicture::showText(const std::string& text) {
  m_text = text;
  update();
}

void QrPicture::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), m_text.empty() ? palette().color(QPalette::AlternateBase) : QColor(Qt::white));
  if (m_text.empty())
    return;
  using qrcodegen::QrCode;
  const QrCode code = QrCode::encodeText(m_text.c_str(), QrCode::Ecc::MEDIUM);
  const int modules = code.getSize() + 2 * kQuietModules;
  const int size = std::max(width() / modules, 1); // whole pixels: a camera reads sharp edges
  const int left = (width() - size * code.getSize()) / 2;
  for (int y = 0; y < code.getSize(); ++y) {
    for (int x = 0; x < code.getSize(); ++x) {
      if (code.getModule(x, y))
        painter.fillRect(left + x * size, left + y * size, size, size, Qt::black);
    }
  }
}

} // namespace hooptab
