// The bytes of one profile file, parsed into sections and lines, and the edits that keep every other byte as
// it is. An edit parses the section that it changes and shares all others with the text that it comes from,
// so that it costs the same in a long file. Works on bytes of the code page and knows no file: ProfileStore
// reads and writes it. The behaviour is described in docs/formats/profile.md.
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
    std::uint32_t begin = 0; // first byte of the line, in what was parsed with it
    std::uint32_t end = 0;   // one past its line end
    Kind kind = Kind::Blank;
  };

  ProfileText();
  explicit ProfileText(std::string bytes);
  // A copy shares everything with its original; neither ever changes.

  [[nodiscard]] std::string bytes() const; // of the whole file
  [[nodiscard]] bool hasBytes(std::string_view bytes) const;
  // Whether both are the same bytes; at once for a text and its copies.
  [[nodiscard]] bool isSameAs(const ProfileText& other) const;

  // The lines of the first section of that name, headers excluded; empty when there is none.
  struct SectionView {
    const Line* first = nullptr;
    const Line* last = nullptr;
    std::string_view bytes = {}; // header included
    const Line* begin() const { return first; }
    const Line* end() const { return last; }
  };
  [[nodiscard]] bool hasSection(std::string_view section) const;
  [[nodiscard]] SectionView section(std::string_view section) const;
  // What keeps that section's bytes in place without this text; null when there is none.
  [[nodiscard]] std::shared_ptr<const std::string> sharedBytes(std::string_view section) const;
  [[nodiscard]] std::vector<std::string_view> sectionNames() const; // in file order, each name once
  [[nodiscard]] std::vector<std::string_view> headers() const; // the same, and each as often as it stands
  // The sections of those names, with what keeps their bytes in place.
  struct NamedSection {
    std::string_view name;
    SectionView lines;
    std::shared_ptr<const std::string> bytes;
  };
  [[nodiscard]] std::vector<NamedSection> sections() const;

  // Whole value of the first key of that name, or nothing.
  [[nodiscard]] std::optional<std::string_view> value(std::string_view section, std::string_view key) const;
  // The names of a section's keys in file order, each followed by one NUL, whole.
  [[nodiscard]] std::string keyList(std::string_view section) const;

  // Each edit returns the text with that one change; equal bytes when nothing had to change.
  [[nodiscard]] ProfileText withValue(std::string_view section, std::string_view key,
                                      std::string_view value) const;
  [[nodiscard]] ProfileText withoutSection(std::string_view section) const;
  // Replaces the key lines of a section by these, in this order; lines that are no keys stay, before them or,
  // where they stood behind the last key, behind them; of those without "=" the ones that hide none of these.
  // A section that is absent is added at the end. Serves inserted and moved events, and sections that are
  // written as a whole.
  using KeyValues = std::vector<std::pair<std::string, std::string>>;
  [[nodiscard]] ProfileText withSectionLines(std::string_view section, const KeyValues& lines) const;

 private:
  struct Section;
  struct Parsed;
  struct Piece {
    std::shared_ptr<const Parsed> parsed;
    std::uint32_t section = 0; // place in it
    const Section& operator*() const;
    SectionView view() const;
    std::string_view bytesOf(const Line& line) const;
  };
  std::size_t find(std::string_view section) const; // place of its piece; 0 when there is none
  static const Line* findKey(const SectionView& section, std::string_view key);
  ProfileText withPieces(std::size_t first, std::size_t count, std::string bytes) const;
  ProfileText withNewSection(std::string_view section, const KeyValues& lines) const;

  const std::vector<Piece>& pieces() const { return *m_shared; }

  std::shared_ptr<const std::vector<Piece>> m_shared; // the file from its first byte to its last
};

} // namespace hooptab
