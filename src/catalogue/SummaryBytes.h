// Numbers, texts and lists as bytes and back, small ones in few bytes. What is read may be anything: a reader
// gives nothing beyond its end and no number that its type cannot hold, and says that it is broken. What is
// written is told to both by the same functions (catalogue/SummaryFields.h).
#pragma once

#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace hooptab {

template <class Type>
concept SmallNumber = std::integral<Type> || std::is_enum_v<Type>;

// Of a signed number the sign stands last, so that -1 is as short as 1.
class ByteWriter {
 public:
  static constexpr bool kReads = false;

  template <SmallNumber Number>
  void number(const Number& value) {
    if constexpr (std::is_enum_v<Number>)
      number(static_cast<std::underlying_type_t<Number>>(value));
    else if constexpr (sizeof(Number) == 1)
      m_bytes += static_cast<char>(value);
    else if constexpr (std::is_signed_v<Number>)
      wide((static_cast<std::uint64_t>(value) << 1U) ^ (value < 0 ? ~std::uint64_t{0} : 0));
    else
      wide(value);
  }
  void text(std::string_view text) {
    wide(text.size());
    m_bytes += text;
  }
  template <class Elements, class Visit>
  void list(const Elements& elements, Visit visit) {
    wide(elements.size());
    for (const auto& element : elements)
      visit(element);
  }
  template <class Value, class Visit>
  void optional(const std::optional<Value>& value, Visit visit) {
    number(value.has_value());
    if (value)
      visit(*value);
  }
  const std::string& bytes() const { return m_bytes; }

 private:
  void wide(std::uint64_t value) {
    for (; value >= 0x80U; value >>= 7U)
      m_bytes += static_cast<char>(value | 0x80U);
    m_bytes += static_cast<char>(value);
  }

  std::string m_bytes;
};

class ByteReader {
 public:
  static constexpr bool kReads = true;

  explicit ByteReader(std::string_view bytes) : m_next(bytes.data()), m_end(m_next + bytes.size()) {}

  template <SmallNumber Number>
  void number(Number& value) {
    if constexpr (std::is_enum_v<Number>) {
      std::underlying_type_t<Number> read = {};
      number(read);
      value = static_cast<Number>(read);
    } else if constexpr (std::is_same_v<Number, bool>) {
      value = byte() != 0;
    } else if constexpr (sizeof(Number) == 1) {
      value = static_cast<Number>(byte());
    } else if constexpr (std::is_signed_v<Number>) {
      const std::uint64_t read = wide();
      take(static_cast<std::int64_t>(read >> 1U) ^ -static_cast<std::int64_t>(read & 1U), value);
    } else {
      take(wide(), value);
    }
  }
  void text(std::string& text) { text = view(); }
  // Points into what is read.
  std::string_view view() { return view(count()); }
  std::string_view view(std::size_t size) {
    require(size <= static_cast<std::size_t>(m_end - m_next));
    const std::string_view found(m_next, m_isBroken ? 0 : size);
    m_next += found.size();
    return found;
  }
  template <class Elements, class Visit>
  void list(Elements& elements, Visit visit) {
    elements.resize(count()); // of one byte at least each
    for (auto& element : elements)
      visit(element);
  }
  template <class Value, class Visit>
  void optional(std::optional<Value>& value, Visit visit) {
    bool has = false;
    number(has);
    if (has)
      visit(value.emplace());
  }

  // For whoever sees that what was read cannot be.
  void require(bool holds) {
    if (!holds)
      fail();
  }
  bool isBroken() const { return m_isBroken; }
  [[nodiscard]] bool isAtEnd() const { return m_next == m_end; }

 private:
  void fail() {
    m_isBroken = true;
    m_next = m_end;
  }
  std::uint8_t byte() {
    if (m_next == m_end) {
      fail();
      return 0;
    }
    return static_cast<std::uint8_t>(*m_next++);
  }
  std::uint64_t wide() {
    if (m_next != m_end && static_cast<std::uint8_t>(*m_next) < 0x80) // most
      return static_cast<std::uint8_t>(*m_next++);
    std::uint64_t value = 0;
    for (unsigned shift = 0; shift < 64; shift += 7) {
      const std::uint8_t next = byte();
      value |= static_cast<std::uint64_t>(next & 0x7FU) << shift;
      if (next < 0x80)
        return value;
    }
    fail();
    return 0;
  }
  // Of bytes, or of what takes a byte at least.
  std::size_t count() {
    const std::uint64_t count = wide();
    if (count <= static_cast<std::uint64_t>(m_end - m_next))
      return static_cast<std::size_t>(count);
    fail();
    return 0;
  }
  template <class Wide, class Number>
  void take(Wide read, Number& value) {
    if (std::in_range<Number>(read))
      value = static_cast<Number>(read);
    else
      fail();
  }

  const char* m_next;
  const char* m_end;
  bool m_isBroken = false;
};

} // namespace hooptab
