// Windows of the simulated desktop for forms and their controls.
#include <algorithm>
#include <stdexcept>

#include "forms/realization.h"
#include "forms/simulated/state.h"
#include "platform/messages.h"
#include "platform/simulated/desktop.h"
#include "platform/system.h"
#include "runtime/text.h"

namespace forms {
namespace simulated {
namespace {

using platform::simulated::At;
using platform::simulated::Message;

constexpr std::int32_t kClicked = 0;  // notification of a button

const char* ClassOf(ControlKind kind) {
  switch (kind) {
    // Not "STATIC": a verb that looks for a message box must not take the program's own dialogs for one.
    case ControlKind::Label:
      return "QumaLabel";
    case ControlKind::TextBox:
      return "Edit";
    case ControlKind::RichTextBox:
      return "RichEdit20A";
    case ControlKind::Button:
    case ControlKind::OptionButton:
      return "Button";
    case ControlKind::ComboBox:
      return "ComboBox";
    case ControlKind::ListView:
      return "SysListView32";
    case ControlKind::ProgressBar:
      return "msctls_progress32";
    case ControlKind::Picture:
      break;
  }
  return "QumaPicture";
}

// A form that says nothing of its layout has its controls in the order of their declaration.
std::vector<Control*> ControlsInOrder(Form& form) {
  std::vector<Control*> controls = ControlsOf(form.Layout());
  if (controls.empty()) return form.Controls();
  for (const Control* control : form.Controls()) {
    if (std::ranges::count(controls, control) != 1)
      throw std::logic_error(form.name + ": the layout must hold " + control->name + " once");
  }
  return controls;
}

// The button with this window, or null.
Button* EnabledButton(const Form& form, std::int32_t handle) {
  for (Control* control : form.Controls()) {
    if (control->kind == ControlKind::Button && control->now.enabled && control->now.handle == handle)
      return static_cast<Button*>(control);
  }
  return nullptr;
}

// The button whose letter of access this is; null for none. While no field has the focus the letter alone is enough.
Button* ButtonOfLetter(const Form& form, char letter) {
  const std::string access = {'&', letter};
  for (Control* control : form.Controls()) {
    if (control->kind == ControlKind::Button && control->now.enabled &&
        runtime::ToLower(control->now.text).find(runtime::ToLower(access)) != std::string::npos)
      return static_cast<Button*>(control);
  }
  return nullptr;
}

std::optional<std::int32_t> OnFormMessage(Form& form, const Message& message) {
  switch (message.number) {
    case platform::WM_MOUSEMOVE:
      form.Form_MouseMove(static_cast<std::int16_t>(message.lParam & 0xFFFF) * platform::TwipsPerPixelX());
      return 0;
    case platform::WM_COMMAND:
      if (message.wParam >> 16 == kClicked) {
        if (Button* button = EnabledButton(form, message.lParam)) button->Click();
      }
      return 0;
    case platform::WM_CLOSE:
      form.Unload();
      return 0;
    case platform::WM_CHAR:
    case platform::WM_SYSCHAR: {
      Button* button = ButtonOfLetter(form, static_cast<char>(message.wParam));
      if (button != nullptr && !message.fromProgram) button->Click();
      return 0;
    }
    default:
      return std::nullopt;
  }
}

void AddControl(Control& control, std::int32_t parent, std::int32_t id) {
  platform::simulated::Window window{.className = ClassOf(control.kind),
                                     .text = control.now.text,
                                     .parent = parent,
                                     .id = id,
                                     .enabled = control.now.enabled};
  if (control.kind == ControlKind::TextBox) {
    window.procedure = [&control](const Message& message) -> std::optional<std::int32_t> {
      if (message.number == platform::WM_SETTEXT) control.now.text = message.text;
      return std::nullopt;
    };
  }
  control.now.handle = platform::simulated::AddWindow(std::move(window));
}

}  // namespace

State state;

}  // namespace simulated

namespace realization {

using simulated::At;
using simulated::state;

std::int32_t Create(Form& form) {
  const std::int32_t window = platform::simulated::AddWindow(
      {.className = "QumaForm",
       .text = form.title,
       .process = platform::simulated::kOwnProcess,
       .visible = false,
       .procedure = [&form](const auto& message) { return simulated::OnFormMessage(form, message); }});
  std::int32_t id = 0;
  for (Control* control : simulated::ControlsInOrder(form)) simulated::AddControl(*control, window, ++id);
  state.loaded.push_back(&form);
  return window;
}

void Destroy(Form& form) {
  std::erase_if(state.timers, [&](const simulated::RunningTimer& running) { return running.form == &form; });
  if (std::ranges::count(form.Controls(), state.focused) != 0) state.focused = nullptr;
  std::erase(state.loaded, &form);
  platform::simulated::DestroyWindow(form.Window());
}

void Show(Form& form) {
  auto& window = At(form.Window());
  if (form.style.topMost) window.topMost = true;
  const bool wasVisible = window.visible;
  window.visible = true;
  platform::simulated::Activate(form.Window());
  if (!wasVisible && form.style.resizable) form.Form_Resize();
  if (!wasVisible && form.Visible()) form.Form_Activate();
}

void Hide(Form& form) { platform::simulated::ShowWindow(form.Window(), false); }

void TextChanged(Control& control) { At(control.now.handle).text = control.now.text; }
void EnabledChanged(Control& control) { At(control.now.handle).enabled = control.now.enabled; }
void ProgressChanged(Control&) {}  // nobody can see it
void FocusTo(Control& control) { state.focused = &control; }
// What these show stands in the controls themselves.
void OptionChanged(OptionButton&) {}
void ItemAdded(ComboBox&) {}
void ListIndexChanged(ComboBox&) {}
void ItemAdded(ListView&) {}
void ItemChanged(ListView&, std::size_t) {}
void SelectionChanged(ListView&, std::size_t) {}
void ScrollTo(ListView&, std::size_t item) { state.broughtIntoView = item; }

}  // namespace realization
}  // namespace forms
