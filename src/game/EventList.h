// The events of a game in the order of the file, which is the order of the game: period by period, each with
// its number, its line and what the line says. Copies share all periods until one of them changes, so a game
// that is being recorded is handed out as a value after every event. Knows no file and counts nothing.
#pragma once

#include "game/EventChange.h"
#include "game/GameEvent.h"

#include <compare>
#include <cstddef>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

// An event by what never changes of it.
struct EventPlace {
  int period = 0;
  std::string key = {};
  friend bool operator==(const EventPlace&, const EventPlace&) = default;
};
[[nodiscard]] inline EventPlace placeOf(const GameEvent& event) {
  return {event.period, std::string(event.key)};
}

class EventList {
  struct Period {
    int number = 0;
    std::vector<GameEvent> events;
    std::vector<std::shared_ptr<const std::string>> texts; // into which the events' views point
  };

 public:
  // --- Reading

  std::size_t size() const { return m_periods.empty() ? 0 : m_periods.back().end; }
  bool isEmpty() const { return size() == 0; }
  const GameEvent& operator[](std::size_t index) const;
  // The events of a period; none where it has none.
  [[nodiscard]] std::span<const GameEvent> ofPeriod(int period) const;
  // Those before the end of a period, and of all periods before it.
  [[nodiscard]] std::size_t endOfPeriod(int period) const;
  [[nodiscard]] std::optional<std::size_t> indexOf(int period, std::string_view key) const;
  [[nodiscard]] std::optional<std::size_t> indexOf(const EventPlace& event) const {
    return indexOf(event.period, event.key);
  }
  // Null when the period has no event of that key.
  [[nodiscard]] const GameEvent* find(int period, std::string_view key) const;
  [[nodiscard]] const GameEvent* find(const EventPlace& event) const { return find(event.period, event.key); }

  class Iterator {
   public:
    using value_type = GameEvent;
    using difference_type = std::ptrdiff_t;
    using pointer = const GameEvent*;
    using reference = const GameEvent&;
    using iterator_category = std::random_access_iterator_tag;
    Iterator() = default;
    Iterator(const EventList& list, std::size_t index) : m_list(&list) { seek(index); }
    reference operator*() const { return *m_here; }
    pointer operator->() const { return m_here; }
    reference operator[](difference_type steps) const { return *(*this + steps); }
    Iterator& operator++() {
      if (++m_here == m_last)
        seek(index());
      return *this;
    }
    Iterator& operator--() {
      if (m_here == m_first)
        seek(index() - 1);
      else
        --m_here;
      return *this;
    }
    Iterator& operator+=(difference_type steps) {
      seek(static_cast<std::size_t>(static_cast<difference_type>(index()) + steps));
      return *this;
    }
    Iterator& operator-=(difference_type steps) { return *this += -steps; }
    Iterator operator++(int) { return std::exchange(*this, *this + 1); }
    Iterator operator--(int) { return std::exchange(*this, *this - 1); }
    friend Iterator operator+(Iterator place, difference_type steps) { return place += steps; }
    friend Iterator operator+(difference_type steps, Iterator place) { return place += steps; }
    friend Iterator operator-(Iterator place, difference_type steps) { return place -= steps; }
    friend difference_type operator-(const Iterator& left, const Iterator& right) {
      return static_cast<difference_type>(left.index()) - static_cast<difference_type>(right.index());
    }
    friend bool operator==(const Iterator& left, const Iterator& right) {
      return left.m_here == right.m_here;
    }
    friend auto operator<=>(const Iterator& left, const Iterator& right) {
      return left.index() <=> right.index();
    }

   private:
    std::size_t index() const { return m_begin + static_cast<std::size_t>(m_here - m_first); }
    void seek(std::size_t index);

    const EventList* m_list = nullptr;
    // The period of the index, and the first of its events; behind the last one it is null.
    std::size_t m_begin = 0;
    const GameEvent* m_first = nullptr;
    const GameEvent* m_last = nullptr;
    const GameEvent* m_here = nullptr;
  };
  Iterator begin() const { return {*this, 0}; }
  Iterator end() const { return {*this, size()}; }
  auto rbegin() const { return std::make_reverse_iterator(end()); }
  auto rend() const { return std::make_reverse_iterator(begin()); }

  // How many events both have in common at their beginning, and at their end behind those. What they share is
  // not walked through.
  struct Common {
    std::size_t head = 0;
    std::size_t tail = 0;
  };
  [[nodiscard]] Common inCommonWith(const EventList& other) const;

  // --- Changing

  // Puts the events of a period behind those that it has, from a text of which it keeps hold. The list is as
  // it should be when the filling goes; until then nobody else asks it.
  class Filling {
   public:
    Filling(EventList& list, int period, std::shared_ptr<const std::string> text, std::size_t most);
    ~Filling();
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    // The views point into the text. `line` is cut to what readers get, `unread` bytes stand behind it.
    void append(std::string_view key, int keyNumber, std::string_view line, std::size_t unread) {
      GameEvent& event = m_period.events.emplace_back();
      event.parseLine(m_period.number, key, keyNumber, line);
      event.unread = static_cast<std::uint32_t>(unread);
    }
    void appendOwned(std::string_view key, std::string_view line); // copies both

   private:
    EventList& m_list;
    Period& m_period;
  };
  // At the end of a period; copies the text.
  void appendOwned(int period, std::string_view key, std::string_view line);
  // The events of a period become these.
  void setPeriod(int period, const PeriodLines& lines);
  // False, and nothing changed, when an event that the step names is not there, or a new one is.
  [[nodiscard]] bool apply(const EventChange& change);

 private:
  struct Part {
    std::shared_ptr<Period> period; // never changed while it is shared
    std::size_t end = 0;            // of all events, those before its end
  };
  [[nodiscard]] std::size_t partOf(std::size_t index) const;
  [[nodiscard]] std::vector<Part>::const_iterator partOfPeriod(int period) const;
  Period& changed(int period); // made where there is none
  void setEnds();

  std::vector<Part> m_periods; // ascending
};

// What readers get of a line in UTF-8: as many letters as the file may have bytes.
[[nodiscard]] std::string_view readablePart(std::string_view line);

} // namespace hooptab
