#include "engine/user_variables.h"

#include <utility>

#include "runtime/fault.h"

namespace basMain {

void UserVariableTable::Declare(const std::string& name) {
  std::string copy = name;
  // What can fail comes first, so that the table keeps its spare record when memory runs out.
  records_.emplace_back();
  const std::size_t declared = records_.size() - 2;
  records_[declared].Name = std::move(copy);
  first_.try_emplace(name, declared);
}

std::optional<std::size_t> UserVariableTable::FindDeclared(const std::string& name) const {
  const auto found = first_.find(name);
  if (found == first_.end()) return std::nullopt;
  return found->second;
}

std::optional<std::size_t> UserVariableTable::Find(const std::string& name) const {
  if (const auto declared = FindDeclared(name)) return declared;
  if (name.empty()) return records_.size() - 1;
  return std::nullopt;
}

const std::string& UserVariableTable::Value(std::size_t index) const {
  if (index >= records_.size()) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
  return records_[index].Value;
}

void UserVariableTable::SetValue(std::size_t index, const std::string& value) {
  if (index >= records_.size()) throw runtime::Fault(runtime::FaultNumber::OutOfRange);
  records_[index].Value = value;
}

}  // namespace basMain
