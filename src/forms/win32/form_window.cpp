#include "forms/win32/form_window.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

#include "forms/realization.h"
#include "forms/win32/control_windows.h"
#include "forms/win32/dialog_font.h"
#include "forms/win32/list_window.h"
#include "forms/win32/message_loop.h"
#include "platform/system.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"

namespace forms::win32 {

namespace {

constexpr wchar_t kFormClass[] = L"QumaForm";

// Handlers may unload their own form, also while another handler of it runs, so nothing holds a reference to this over
// a call that can raise an event: it is looked up again by its window.
struct FormWindow {
  Form* form;
  HWND window;
  std::vector<Control*> controls;  // those of the layout, in its order
  std::vector<Timer*> timers;      // the running ones
  HWND focus = nullptr;            // where the keys go when the form is active
  bool hadFocus = false;           // it had them when the form was active last
  SIZE smallest = {};              // of the frame
  bool shownBefore = false;
};

std::vector<std::unique_ptr<FormWindow>> formWindows;

FormWindow* Find(HWND window) {
  for (const auto& entry : formWindows) {
    if (entry->window == window) return entry.get();
  }
  return nullptr;
}

FormWindow* Find(const Form& form) { return Find(platform::HandleOf<HWND>(form.Window())); }

// A form without controls is never seen; it is there for its window's messages.
bool IsNeverShown(const FormWindow& entry) { return entry.controls.empty(); }

// A timer's place in its form: the 9x family keeps 16 bits of the number, too few for an address.
UINT_PTR IdOf(const Form& form, const Timer& timer) {
  return reinterpret_cast<UINT_PTR>(&timer) - reinterpret_cast<UINT_PTR>(&form);
}

// Measures.

constexpr int kGapUnits = 6;
constexpr int kMarginUnits = 8;

// What a single growing control fills, it fills to the edge.
int MarginOf(const FormWindow& entry) {
  const bool filled = entry.controls.size() == 1 && entry.controls[0]->size.grows;
  return filled ? 0 : DialogUnits(kMarginUnits);
}

SIZE FrameAround(const FormWindow& entry, Extent content) {
  const int margins = 2 * MarginOf(entry);
  RECT frame = {0, 0, content.width + margins, content.height + margins};
  ::AdjustWindowRectEx(&frame, static_cast<DWORD>(::GetWindowLongA(entry.window, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(::GetWindowLongA(entry.window, GWL_EXSTYLE)));
  return {frame.right - frame.left, frame.bottom - frame.top};
}

Measures MeasuresOf(Extent (*extent)(const Control&)) { return {extent, DialogUnits(kGapUnits)}; }

void ArrangeControls(const FormWindow& entry) {
  const int margin = MarginOf(entry);
  RECT client = {};
  ::GetClientRect(entry.window, &client);
  const Extent room{static_cast<int>(client.right) - 2 * margin, static_cast<int>(client.bottom) - 2 * margin};
  for (const Placement& place : Arrange(entry.form->Layout(), room, MeasuresOf(ExtentOf))) Place(place, margin);
  ::InvalidateRect(entry.window, nullptr, TRUE);
}

void FitAndCentre(FormWindow& entry) {
  const Box layout = entry.form->Layout();
  entry.smallest = FrameAround(entry, SmallestExtent(layout, MeasuresOf(SmallestUsableExtentOf)));
  SIZE frame = FrameAround(entry, SmallestExtent(layout, MeasuresOf(ExtentOf)));
  RECT area = {};
  ::SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  // Room for the title beside the icon and the button that closes.
  const int title = ExtentOfText(entry.form->title, DT_SINGLELINE | DT_NOPREFIX).width;
  frame.cx = std::max(frame.cx, static_cast<LONG>(title + 4 * ::GetSystemMetrics(SM_CXSIZE)));
  frame.cx = std::min(frame.cx, area.right - area.left);
  frame.cy = std::min(frame.cy, area.bottom - area.top);
  const HWND window = entry.window;
  ::SetWindowPos(window, nullptr, (area.left + area.right - frame.cx) / 2, (area.top + area.bottom - frame.cy) / 2,
                 frame.cx, frame.cy, SWP_NOZORDER | SWP_NOACTIVATE);
  if (const FormWindow* sized = Find(window)) ArrangeControls(*sized);
}

void ShowLists(const Form& form) {
  for (const Control* control : form.Controls()) {
    if (control->kind == ControlKind::ListView) ShowItems(static_cast<const ListView&>(*control));
  }
}

// The keyboard.

bool TakesKeys(const Control& control) {
  return control.kind != ControlKind::Label && control.kind != ControlKind::Picture &&
         control.kind != ControlKind::ProgressBar;
}

// The control that had the focus last, or the first that can have it.
HWND FocusOf(const FormWindow& entry) {
  const Control* last = FindControl(entry.controls, platform::NumberOf(entry.focus));
  if (last != nullptr && last->now.enabled) return entry.focus;
  for (const Control* control : entry.controls) {
    if (TakesKeys(*control) && control->now.enabled) return platform::HandleOf<HWND>(control->now.handle);
  }
  return nullptr;
}

// By this message the system also moves the mark of the default button and selects the text of a field.
void GiveFocus(const FormWindow& entry, HWND control) {
  if (control != nullptr) ::SendMessageA(entry.window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
  else ::SetFocus(entry.window);
}

// Messages.

void OnActivate(HWND window, bool active, bool minimized) {
  FormWindow* entry = Find(window);
  if (!active) {
    const HWND focus = ::GetFocus();
    if (::IsChild(window, focus)) {
      entry->focus = focus;
      entry->hadFocus = true;
    }
    return;
  }
  Form* form = entry->form;
  const HWND focus = FocusOf(*entry);
  // Selected anew, the text that is being typed in a field would be lost with the next key.
  if (!minimized && entry->hadFocus && focus == entry->focus) ::SetFocus(focus);
  else if (!minimized) GiveFocus(*entry, focus);
  Raise([form] { form->Form_Activate(); });
}

void OnCommand(HWND window, int notification, HWND source) {
  FormWindow* entry = Find(window);
  Control* control = FindControl(entry->controls, platform::NumberOf(source));
  if (control == nullptr) return;
  if (control->kind == ControlKind::Button && notification == BN_CLICKED && control->now.enabled) {
    Raise(static_cast<Button*>(control)->Click);
  } else {
    TakeOver(*control, notification);
  }
}

void OnNotify(HWND window, NMHDR* record) {
  Control* control = FindControl(Find(window)->controls, platform::NumberOf(record->hwndFrom));
  if (control != nullptr && control->kind == ControlKind::ListView)
    OnListNotification(static_cast<ListView&>(*control), record);
}

void OnTimer(HWND window, WPARAM id) {
  const FormWindow& entry = *Find(window);
  for (Timer* timer : entry.timers) {
    if (IdOf(*entry.form, *timer) != id) continue;
    Raise(timer->Tick);
    return;
  }
}

void OnSize(HWND window) {
  FormWindow* entry = Find(window);
  ArrangeControls(*entry);
  Form* form = entry->form;
  Raise([form] { form->Form_Resize(); });
}

void OnMouseMove(HWND window, LPARAM position) {
  const double x = static_cast<short>(LOWORD(position)) * platform::TwipsPerPixelX();
  Form* form = Find(window)->form;
  Raise([form, x] { form->Form_MouseMove(x); });
}

LRESULT CALLBACK FormProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const FormWindow* entry = Find(window);
  // While it is being made or destroyed the window raises no events.
  if (entry == nullptr) return ::DefDlgProcA(window, message, wParam, lParam);
  switch (message) {
    case WM_ACTIVATE:
      OnActivate(window, LOWORD(wParam) != WA_INACTIVE, HIWORD(wParam) != 0);
      return 0;
    case WM_CLOSE: {
      Form* form = entry->form;
      Raise([form] { form->Unload(); });
      return 0;
    }
    case WM_COMMAND:
      OnCommand(window, HIWORD(wParam), reinterpret_cast<HWND>(lParam));
      return 0;
    case WM_NOTIFY:
      OnNotify(window, reinterpret_cast<NMHDR*>(lParam));
      return 0;
    case WM_TIMER:
      OnTimer(window, wParam);
      return 0;
    case WM_MOUSEMOVE:
      OnMouseMove(window, lParam);
      return 0;
    case WM_SIZE:
      if (entry->form->style.resizable && wParam != SIZE_MINIMIZED) OnSize(window);
      return 0;
    case WM_GETMINMAXINFO:
      reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {entry->smallest.cx, entry->smallest.cy};
      return 0;
    default:
      return ::DefDlgProcA(window, message, wParam, lParam);
  }
}

void RegisterFormClass() {
  static const ATOM atom = [] {
    WNDCLASSEXA form = {};
    form.cbSize = sizeof form;
    form.lpfnWndProc = FormProcedure;
    // A dialog class of our own: the system gives it the keyboard of dialogs.
    form.cbWndExtra = DLGWINDOWEXTRA;
    form.hInstance = ::GetModuleHandleA(nullptr);
    form.hIcon = static_cast<HICON>(::LoadImageA(form.hInstance, "ICOQUM", IMAGE_ICON, ::GetSystemMetrics(SM_CXICON),
                                                 ::GetSystemMetrics(SM_CYICON), 0));
    form.hIconSm = static_cast<HICON>(::LoadImageA(
        form.hInstance, "ICOQUM", IMAGE_ICON, ::GetSystemMetrics(SM_CXSMICON), ::GetSystemMetrics(SM_CYSMICON), 0));
    form.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    form.hbrBackground = ::GetSysColorBrush(COLOR_BTNFACE);
    form.lpszClassName = "QumaForm";
    return ::RegisterClassExA(&form);
  }();
  (void)atom;
}

// The system's form of a dialog without controls, up to the class. It must lie on a double-word boundary.
struct alignas(DWORD) EmptyDialog {
  DLGTEMPLATE head;
  WORD menu;
  wchar_t className[std::size(kFormClass)];
  WORD title;
};

HWND MakeWindow(const Form& form, bool neverShown) {
  RegisterFormClass();
  EmptyDialog dialog = {};
  std::copy(std::begin(kFormClass), std::end(kFormClass), dialog.className);
  dialog.head.style = WS_POPUP;
  if (neverShown) {
    // Top-most for the sake of the boxes that it owns: a form that is top-most must not cover them.
    dialog.head.dwExtendedStyle = WS_EX_TOOLWINDOW | WS_EX_TOPMOST;
  } else {
    dialog.head.style |= WS_CAPTION | WS_SYSMENU;
    dialog.head.style |= form.style.resizable ? WS_THICKFRAME | WS_MAXIMIZEBOX : static_cast<DWORD>(DS_MODALFRAME);
    if (form.style.topMost) dialog.head.dwExtendedStyle |= WS_EX_TOPMOST;
  }
  const HWND window = ::CreateDialogIndirectParamA(::GetModuleHandleA(nullptr), &dialog.head, nullptr, nullptr, 0);
  if (!neverShown) ::SetWindowTextA(window, form.title.c_str());
  return window;
}

}  // namespace

bool IsForm(std::int32_t hWnd) { return hWnd != 0 && Find(platform::HandleOf<HWND>(hWnd)) != nullptr; }

bool AnyForm() { return !formWindows.empty(); }

void ShowForm(Form& form) {
  FormWindow* entry = Find(form);
  if (entry == nullptr) return;
  if (IsNeverShown(*entry)) {
    Raise([&form] { form.Form_Activate(); });
    return;
  }
  const HWND window = entry->window;
  if (!std::exchange(entry->shownBefore, true)) {
    FitAndCentre(*entry);
    ShowLists(form);
  }
  if (Find(window) != nullptr) ::ShowWindow(window, SW_SHOW);
}

}  // namespace forms::win32

namespace forms::realization {

using namespace win32;

std::int32_t Create(Form& form) {
  WatchForOwnKeys();
  const std::vector<Control*> controls = ControlsOf(form.Layout());
  const HWND window = MakeWindow(form, controls.empty());
  CreateControls(platform::NumberOf(window), controls);
  const bool hasDefault = ::GetDlgItem(window, IDOK) != nullptr;
  if (hasDefault) ::SendMessageA(window, DM_SETDEFID, IDOK, 0);
  formWindows.push_back(std::make_unique<FormWindow>(FormWindow{&form, window, controls, {}}));
  return platform::NumberOf(window);
}

void Destroy(Form& form) {
  const auto found = std::find_if(formWindows.begin(), formWindows.end(),
                                  [&](const auto& candidate) { return candidate->form == &form; });
  if (found == formWindows.end()) return;
  const std::unique_ptr<FormWindow> entry = std::move(*found);
  formWindows.erase(found);
  EndModal(platform::NumberOf(entry->window));
  for (Timer* timer : entry->timers) ::KillTimer(entry->window, IdOf(form, *timer));
  ReleaseControls(entry->controls);
  ::DestroyWindow(entry->window);
  // The message loop, which ends with the last form, may be waiting for a message.
  if (!AnyForm()) ::PostThreadMessageA(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

void Show(Form& form) {
  ShowForm(form);
  RethrowRaised();
}

void Hide(Form& form) {
  EndModal(form.Window());
  ::ShowWindow(platform::HandleOf<HWND>(form.Window()), SW_HIDE);
}

void TextChanged(Control& control) { ShowText(control); }

void ProgressChanged(Control& control) { ShowProgress(control); }

void OptionChanged(OptionButton& option) { ShowOption(option); }

void ItemAdded(ComboBox& combo) {
  ::SendMessageA(platform::HandleOf<HWND>(combo.now.handle), CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(combo.Items().back().c_str()));
}

void ListIndexChanged(ComboBox& combo) { ShowListIndex(combo); }

void ItemAdded(ListView& list) { ShowItemCount(list); }

void ItemChanged(ListView& list, std::size_t item) { ShowItem(list, item); }

void SelectionChanged(ListView& list, std::size_t item) { ShowSelection(list, item); }

void ScrollTo(ListView& list, std::size_t item) { ScrollToItem(list, item); }

void EnabledChanged(Control& control) {
  const HWND window = platform::HandleOf<HWND>(control.now.handle);
  const HWND form = ::GetParent(window);
  // A disabled control would keep the keys and answer none.
  const bool passesFocusOn = !control.now.enabled && ::GetFocus() == window;
  ::EnableWindow(window, control.now.enabled);
  FormWindow* entry = Find(form);
  if (passesFocusOn && entry != nullptr) GiveFocus(*entry, FocusOf(*entry));
}

void FocusTo(Control& control) {
  const HWND window = platform::HandleOf<HWND>(control.now.handle);
  FormWindow* entry = Find(::GetParent(window));
  if (entry == nullptr) return;
  entry->focus = window;
  entry->hadFocus = false;
  // While another window is active, the focus comes with the next activation.
  if (::GetActiveWindow() == entry->window && ::IsWindowVisible(entry->window)) GiveFocus(*entry, window);
}

void IntervalChanged(Form& form, Timer& timer) {
  FormWindow* entry = Find(form);
  if (entry == nullptr) return;
  const UINT_PTR id = IdOf(form, timer);
  std::erase(entry->timers, &timer);
  ::KillTimer(entry->window, id);
  if (timer.Interval() <= 0) return;
  ::SetTimer(entry->window, id, static_cast<UINT>(timer.Interval()), nullptr);
  entry->timers.push_back(&timer);
}

}  // namespace forms::realization
