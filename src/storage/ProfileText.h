// The bytes of one profile file, parsed into sections and lines, and the edits that keep every other byte as
// it is. Works on bytes of the code page and knows no file: cinifile reads and writes it. The behaviour is
// described in docs/formats/profile.md.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

class ProfileText {
 public:
  // One line of a section, or a run of blank ones. Views point into the parsed bytes.
  struct Line {
    enum class Kind : std::uint8_t {
      Blank,
      Comment,
      KeyValue,
      NameOnly, // no "=": has no value, is not listed, hides a later line of that name
    };
    std::string_view name;   // blanks around it dropped; empty for Blank and Comment
    std::string_view value;  // not cut; blanks around it dropped
    std::uint32_t begin = 0; // first byte of the line
    std::uint32_t end = 0;   // one past its line end
    Kind kind = Kind::Blank;
  };

  ProfileText();
  explicit ProfileText(std::string bytes);
  // Movable and cheaply copyable: the bytes are shared and never change.

  const std::string& bytes() const { return *m_bytes; }
  std::shared_ptr<const std::string> sharedBytes() const { return m_bytes; }

  // The lines of the first section of that name, headers excluded; empty when there is none.
  struct SectionView {
    const Line* first = nullptr;
    const Line* last = nullptr;
    const Line* begin() const { return first; }
    const Line* end() const { return last; }
  };
  [[nodiscard]] bool hasSection(std::string_view section) const;
  [[nodiscard]] SectionView section(std::string_view section) const;
  [[nodiscard]] std::vector<std::string_view> sectionNames() const; // in file order, each name once

  // Whole value of the first key of that name, or nothing.
  [[nodiscard]] std::optional<std::string_view> value(std::string_view section, std::string_view key) const;
  // The names of a section's keys in file order, each followed by one NUL, whole.
  [[nodiscard]] std::string keyList(std::string_view section) const;

  // Each edit returns the text with that one change; equal bytes when nothing had to change.
  [[nodiscard]] ProfileText withValue(std::string_view section, std::string_view key,
                                      std::string_view value) const;
  [[nodiscard]] ProfileText withoutSection(std::string_view section) const;
  // Replaces the key lines of a section by these, in this order; lines that are no keys stay, before them or,
  // where they stood behind the last key, behind them. A section that is absent is added at the end. Serves
  // inserted and moved events, and sections that are written as a whole.
  using KeyValues = std::vector<std::pair<std::string, std::string>>;
  [[nodiscard]] ProfileText withSectionLines(std::string_view section, const KeyValues& lines) const;

 private:
  struct Section {
    std::string_view name;
    std::uint32_t headerBegin = 0;
    std::uint32_t headerEnd = 0;
    std::uint32_t firstLine = 0; // index into m_lines
    std::uint32_t lastLine = 0;  // one past
  };
  void parse();
  const Section* find(std::string_view section) const;
  SectionView lines(const Section& section) const;
  const Line* findKey(const Section& section, std::string_view key) const;

  std::shared_ptr<const std::string> m_bytes;
  std::vector<Line> m_lines;
  std::vector<Section> m_sections;
};

} // namespace hooptab
