// Controls of which one of several is chosen: options, drop-down lists, lists with check boxes.
#include "forms/form.h"
#include "forms/realization.h"
#include "runtime/fault.h"

namespace forms {

using runtime::Fault;
using runtime::FaultNumber;

void OptionButton::SetValue(bool set) {
  form.Load();
  for (Control* control : form.Controls()) {
    if (control->kind != ControlKind::OptionButton || (control != this && !set)) continue;
    control->now.value = control == this && set ? 1 : 0;
    realization::OptionChanged(static_cast<OptionButton&>(*control));
  }
}

void ComboBox::AddItem(const std::string& text) {
  form.Load();
  items_.push_back(text);
  realization::ItemAdded(*this);
}

void ComboBox::SetListIndex(int index) {
  form.Load();
  if (index < 0 || index >= static_cast<int>(items_.size())) throw Fault(FaultNumber::InvalidPropertyValue);
  now.value = index;
  realization::ListIndexChanged(*this);
}

void ComboBox::Reset() {
  Control::Reset();
  items_.clear();
}

std::size_t ListView::Count() {
  form.Load();
  return items_.size();
}

std::size_t ListView::Add(const std::string& key, const std::string& text) {
  form.Load();
  if (!keys_.insert(key).second) throw Fault(FaultNumber::KeyNotUnique);
  items_.push_back({key, text, std::vector<std::string>(columns.size() - 1)});
  realization::ItemAdded(*this);
  return items_.size() - 1;
}

std::size_t ListView::Existing(std::size_t item) const {
  if (item >= items_.size()) throw Fault(FaultNumber::OutOfRange);
  return item;
}

const ListItem& ListView::Item(std::size_t item) {
  form.Load();
  return items_[Existing(item)];
}

const std::string& ListView::SubItem(std::size_t item, std::size_t column) {
  if (column < 1 || column >= columns.size()) throw Fault(FaultNumber::OutOfRange);
  return Item(item).subItems[column - 1];
}

void ListView::SetSubItem(std::size_t item, std::size_t column, const std::string& text) {
  form.Load();
  if (column < 1 || column >= columns.size()) throw Fault(FaultNumber::OutOfRange);
  items_[Existing(item)].subItems[column - 1] = text;
  realization::ItemChanged(*this, item);
}

void ListView::SetChecked(std::size_t item, bool checked) {
  form.Load();
  items_[Existing(item)].checked = checked;
  realization::ItemChanged(*this, item);
}

std::optional<std::size_t> ListView::Selected() {
  form.Load();
  return selected_;
}

void ListView::Select(std::size_t item) {
  form.Load();
  selected_ = Existing(item);
  realization::SelectionChanged(*this, item);
}

void ListView::EnsureVisible(std::size_t item) {
  form.Load();
  realization::ScrollTo(*this, Existing(item));
}

void ListView::Reset() {
  Control::Reset();
  items_.clear();
  keys_.clear();
  selected_.reset();
}

void ListView::SelectByUser(std::size_t item) {
  if (item >= items_.size() || selected_ == item) return;
  selected_ = item;
  if (events.ItemClick) events.ItemClick(item);
}

void ListView::ToggleByUser(std::size_t item) {
  if (item >= items_.size()) return;
  items_[item].checked = !items_[item].checked;
  realization::ItemChanged(*this, item);
  if (events.ItemCheck) events.ItemCheck(item);
}

}  // namespace forms
