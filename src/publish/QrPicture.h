// An address as a picture that the camera of a phone reads (QR code), dark on light in every look, with the
// quiet border that it needs.
#pragma once

#include <QWidget>

#include <string>

namespace hooptab {

class QrPicture : public QWidget {
 public:
  explicit QrPicture(QWidget* parent = nullptr);
  void showText(const std::string& text); // empty: nothing

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::string m_text;
};

} // namespace hooptab
