#include "forms/form.h"

#include <algorithm>

#include "forms/realization.h"
#include "runtime/fault.h"

namespace forms {

Control::Control(Form& owner, ControlKind controlKind, std::string controlName, std::string text,
                 ControlSize controlSize)
    : kind(controlKind), name(std::move(controlName)), size(controlSize), form(owner) {
  design.text = std::move(text);
  owner.controls_.push_back(this);
}

bool Control::Enabled() {
  form.Load();
  return now.enabled;
}

void Control::SetEnabled(bool enabled) {
  form.Load();
  now.enabled = enabled;
  realization::EnabledChanged(*this);
}

void Control::SetFocus() {
  form.Load();
  realization::FocusTo(*this);
}

std::int32_t Control::hWnd() {
  form.Load();
  return now.handle;
}

const std::string& Control::Text() {
  form.Load();
  return now.text;
}

void Control::SetText(const std::string& text) {
  form.Load();
  now.text = text;
  realization::TextChanged(*this);
}

int Control::Value() {
  form.Load();
  return now.value;
}

int Control::Maximum() {
  form.Load();
  return now.maximum;
}

void Control::SetValue(int value) {
  form.Load();
  now.value = std::clamp(value, 0, now.maximum);
  realization::ProgressChanged(*this);
}

void Control::SetMaximum(int maximum) {
  form.Load();
  now.maximum = maximum;
  now.value = std::min(now.value, maximum);
  realization::ProgressChanged(*this);
}

Form::Form(std::string formName, std::string formTitle, FormStyle formStyle)
    : name(std::move(formName)), title(std::move(formTitle)), style(formStyle) {}

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  try {
    for (Control* control : controls_) control->Reset();
    handle_ = realization::Create(*this);
  } catch (...) {
    WindowGone();
    throw;
  }
  Form_Load();
}

void Form::Unload() {
  if (!loaded_) return;
  Form_QueryUnload();
  Form_Unload();
  if (!loaded_) return;  // a handler let events run, and the form was unloaded meanwhile
  realization::Destroy(*this);
  WindowGone();
}

void Form::WindowGone() {
  loaded_ = false;
  visible_ = false;
  handle_ = 0;
  for (Control* control : controls_) control->now.handle = 0;
}

void Form::Show() {
  Load();
  if (!loaded_) return;  // unloaded by its own Form_Load
  visible_ = true;
  realization::Show(*this);
}

void Form::ShowModal() {
  if (visible_) throw runtime::Fault(runtime::FaultNumber::FormShown);
  Load();
  if (!loaded_) return;
  visible_ = true;
  realization::RunModal(*this);
}

void Form::Hide() {
  if (!loaded_) return;
  visible_ = false;
  realization::Hide(*this);
}

std::int32_t Form::hWnd() {
  Load();
  return handle_;
}

void Timer::SetInterval(int milliseconds) {
  form_.Load();
  interval_ = milliseconds;
  realization::IntervalChanged(form_, *this);
}

void PopupMenu(Form& owner, const Menu& menu) {
  owner.Load();
  const int chosen = realization::ChooseFromMenu(owner, menu);
  if (chosen >= 0) menu.entries.at(static_cast<std::size_t>(chosen)).Click();
}

void Pump() { realization::PumpOnce(); }

void RunMessageLoop() { realization::RunMessageLoop(); }

}  // namespace forms
