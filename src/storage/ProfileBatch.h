// Writes that belong together: applied to one profile file as one atomic replacement, so that a crash leaves
// all of them or none. Text is UTF-8, as everywhere in memory.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace hooptab {

class ProfileBatch {
 public:
  struct SetValue {
    std::string section, key, value;
  };
  struct DeleteSection {
    std::string section;
  };
  // The section's key lines become exactly these, in this order.
  struct SetSectionLines {
    std::string section;
    std::vector<std::pair<std::string, std::string>> lines;
    bool alreadyStored = false; // the lines are bytes of the code page, taken from the file itself
  };
  using Operation = std::variant<SetValue, DeleteSection, SetSectionLines>;

  void set(std::string section, std::string key, std::string value);
  void deleteValue(std::string section, std::string key); // "0", as cinifile::DeleteValue
  void deleteSection(std::string section);
  void setSectionLines(std::string section, std::vector<std::pair<std::string, std::string>> lines);
  void setStoredSectionLines(std::string section, std::vector<std::pair<std::string, std::string>> lines);

  const std::vector<Operation>& operations() const { return m_operations; }
  bool isEmpty() const { return m_operations.empty(); }

 private:
  std::vector<Operation> m_operations;
};

} // namespace hooptab
