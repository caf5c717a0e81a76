// Small buttons for what more can be said of an event, its kind for the most part: one press chooses, a
// second one takes it back. Offers, and says what was chosen; records nothing.
#pragma once

#include <QWidget>

#include <string>
#include <string_view>
#include <vector>

class QPushButton;

namespace hooptab {

struct DetailChip {
  std::string_view key; // of the detail
  std::string value;
  QString caption;
  QString words; // all of it, for the tool tip
  friend bool operator==(const DetailChip&, const DetailChip&) = default;
};

class DetailChips : public QWidget {
  Q_OBJECT
 public:
  explicit DetailChips(QWidget* parent);

  // Side by side, so many in a row. None: nothing is shown.
  void offer(const std::vector<DetailChip>& chips, int columns, int width);
  const std::vector<DetailChip>& chips() const { return m_chips; }
  // Of that detail, in place of what was; empty: none of them.
  void choose(std::string_view key, std::string_view value);
  void press(std::size_t chip); // as the button would be

 signals:
  void chosen(std::string_view key, const std::string& value); // an empty one takes it away

 private:
  std::vector<DetailChip> m_chips;
  std::vector<QPushButton*> m_buttons;
};

} // namespace hooptab
