// The line below the charts of a game's flow: what the colours of the stays and the signs mean, and how a
// stretch is chosen. What has no room is left out, the hint first.
#pragma once

#include "settings/Texts.h"

#include <QWidget>

namespace hooptab {

class FlowLegend : public QWidget {
  Q_OBJECT

 public:
  explicit FlowLegend(const Texts& texts, QWidget* parent = nullptr); // the texts must outlive it

  void showChances(bool areShown); // says what they are in place of the hint

  [[nodiscard]] QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Texts& m_texts;
  bool m_showsChances = false;
};

} // namespace hooptab
