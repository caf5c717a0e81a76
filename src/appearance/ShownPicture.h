// A widget whose drawing can be saved as a picture of its own: painted anew, black on white, at any scale.
#pragma once

#include <QPainter>
#include <QSize>

namespace hooptab {

class ShownPicture {
 public:
  virtual ~ShownPicture() = default;

  [[nodiscard]] virtual bool hasPicture() const = 0; // something is drawn
  // The room it asks for, in the pixels of a common screen.
  [[nodiscard]] virtual QSize pictureSize() const = 0;
  virtual void paintPicture(QPainter& painter, const QRectF& area) const = 0;
};

} // namespace hooptab
