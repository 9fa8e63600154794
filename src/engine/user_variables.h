// The variables that a macro declares. The table always holds one spare record at its end, whose name is empty: a
// declaration names it and puts a new spare one behind it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace basMain {

struct UserVariable {
  std::string Name;
  std::string Value;
};

class UserVariableTable {
 public:
  // Names the spare record. It keeps the value that an assignment to the empty name may have left in it.
  void Declare(const std::string& name);

  // At least one variable has been declared.
  bool AnyDeclared() const { return records_.size() > 1; }

  // First declared record of that name; the spare record does not take part.
  std::optional<std::size_t> FindDeclared(const std::string& name) const;

  // First record of that name, the spare one included: the empty name finds it.
  std::optional<std::size_t> Find(const std::string& name) const;

  // Faults: OutOfRange, when a nested run has replaced the table by a smaller one.
  const std::string& Value(std::size_t index) const;
  void SetValue(std::size_t index, const std::string& value);

 private:
  std::vector<UserVariable> records_ = std::vector<UserVariable>(1);
  std::unordered_map<std::string, std::size_t> first_;  // first declared record of each name
};

}  // namespace basMain
