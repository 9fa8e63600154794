#include "forms/win32/control_windows.h"

#include <algorithm>

#include "forms/win32/dialog_font.h"
#include "forms/win32/key_filter.h"
#include "forms/win32/list_window.h"
#include "forms/win32/rich_text.h"

// The system's headers come last.
#include "platform/win32/windows_api.h"
// Behind them, on which it stands.
#include <commctrl.h>

namespace forms::win32 {

namespace {

// Our texts and pictures do what the system's do under names of their own: what looks for message boxes of other
// programs by the class of their text must never find one of our forms.
constexpr char kLabelClass[] = "QumaLabel";
constexpr char kPictureClass[] = "QumaPicture";

// A label shows '&' as it stands and breaks what is longer than a line, such as a path, within the word.
constexpr DWORD kLabelStyle = SS_LEFT | SS_NOPREFIX | SS_EDITCONTROL;
constexpr UINT kLabelDrawing = DT_LEFT | DT_NOPREFIX | DT_EXPANDTABS;
constexpr UINT kLabelWrapping = kLabelDrawing | DT_WORDBREAK | DT_EDITCONTROL;

WNDPROC staticProcedure = nullptr;

LRESULT CALLBACK StaticProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  // Taken for a text of the system's, a label would have the letter behind its '&' as a key.
  if (message == WM_GETDLGCODE) return 0;
  return ::CallWindowProcA(staticProcedure, window, message, wParam, lParam);
}

void RegisterAs(const char* name) {
  WNDCLASSA original = {};
  ::GetClassInfoA(nullptr, "Static", &original);
  staticProcedure = original.lpfnWndProc;
  original.lpfnWndProc = StaticProcedure;
  original.lpszClassName = name;
  original.hInstance = ::GetModuleHandleA(nullptr);
  ::RegisterClassA(&original);
}

void RegisterClasses() {
  static const bool registered = [] {
    ::InitCommonControls();
    RegisterAs(kLabelClass);
    RegisterAs(kPictureClass);
    return true;
  }();
  (void)registered;
}

struct WindowKind {
  const char* className;
  DWORD style;
  DWORD extendedStyle;
};

WindowKind WindowKindOf(const Control& control) {
  switch (control.kind) {
    case ControlKind::Label:
      return {kLabelClass, kLabelStyle, 0};
    case ControlKind::TextBox:
      return {"Edit", WS_TABSTOP | ES_AUTOHSCROLL, WS_EX_CLIENTEDGE};
    case ControlKind::RichTextBox:
      // Without the focus it scrolls to its caret only where the selection shows then too.
      return {RichTextClass(),
              WS_TABSTOP | WS_VSCROLL | WS_HSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | ES_AUTOHSCROLL |
                  ES_NOHIDESEL,
              WS_EX_CLIENTEDGE};
    case ControlKind::Button: {
      const bool isDefault = static_cast<const Button&>(control).role == ButtonRole::Default;
      return {"Button", WS_TABSTOP | static_cast<DWORD>(isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON), 0};
    }
    case ControlKind::OptionButton:
      return {"Button", BS_AUTORADIOBUTTON, 0};
    case ControlKind::ComboBox:
      return {"ComboBox", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_HASSTRINGS, 0};
    case ControlKind::ListView:
      return {WC_LISTVIEWA,
              WS_TABSTOP | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS | LVS_NOSORTHEADER,
              WS_EX_CLIENTEDGE};
    case ControlKind::ProgressBar:
      return {PROGRESS_CLASSA, 0, 0};
    case ControlKind::Picture:
      return {kPictureClass, SS_ICON | SS_CENTERIMAGE, 0};
  }
  return {};
}

HWND WindowOf(const Control& control) { return platform::HandleOf<HWND>(control.now.handle); }

void ShowIcon(HWND window, const std::string& resource) {
  HICON icon = nullptr;
  // Not shared: a shared icon comes in the size in which it was asked for first.
  if (!resource.empty())
    icon = static_cast<HICON>(::LoadImageA(::GetModuleHandleA(nullptr), resource.c_str(), IMAGE_ICON,
                                           ::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON), 0));
  const auto former = reinterpret_cast<HICON>(::SendMessageA(window, STM_SETICON, reinterpret_cast<WPARAM>(icon), 0));
  if (former != nullptr) ::DestroyIcon(former);
}

// Enter presses the button with the one id, Escape that with the other.
int IdOf(const Control& control, std::size_t position) {
  constexpr int kFirstId = 100;
  if (control.kind == ControlKind::Button) {
    const ButtonRole role = static_cast<const Button&>(control).role;
    if (role == ButtonRole::Default) return IDOK;
    if (role == ButtonRole::Cancel) return IDCANCEL;
  }
  return kFirstId + static_cast<int>(position);
}

Extent ExtentOfLabel(const Control& control) {
  constexpr int kMostLines = 16;
  if (control.size.characters == 0) return ExtentOfText(control.now.text, kLabelDrawing);
  const int width = control.size.characters * TheDialogFont().averageWidth;
  if (control.size.lines == 0) {
    // A text without end must not push the buttons off the screen.
    const int most = kMostLines * TheDialogFont().lineHeight;
    const std::string start =
        control.now.text.substr(0, static_cast<std::size_t>(2 * kMostLines) * control.size.characters);
    return {width, std::min(ExtentOfText(start, kLabelWrapping, width).height, most)};
  }
  return {width, control.size.lines * TheDialogFont().lineHeight};
}

Extent ExtentOfField(const Control& control, int characters, int lines) {
  const DialogFont& font = TheDialogFont();
  // The edges, and the space that the system keeps between them and the text.
  Extent extent{characters * font.averageWidth + 2 * ::GetSystemMetrics(SM_CXEDGE) + DialogUnits(4),
                lines * font.lineHeight + 2 * ::GetSystemMetrics(SM_CYEDGE) + DialogUnits(2)};
  if (control.kind == ControlKind::RichTextBox) {
    extent.width += ::GetSystemMetrics(SM_CXVSCROLL);
    extent.height += ::GetSystemMetrics(SM_CYHSCROLL);
  }
  return extent;
}

Extent ExtentOfButton(const Control& control) {
  const int text = ExtentOfText(control.now.text, DT_SINGLELINE).width;
  return {std::max(12 * TheDialogFont().averageWidth, text + 4 * TheDialogFont().averageWidth), DialogUnits(14)};
}

Extent ExtentOfOption(const Control& control) {
  const Extent text = ExtentOfText(control.now.text, DT_SINGLELINE);
  return {::GetSystemMetrics(SM_CXMENUCHECK) + text.width + 2 * TheDialogFont().averageWidth,
          std::max(text.height, ::GetSystemMetrics(SM_CYMENUCHECK)) + DialogUnits(1)};
}

// The system gives a combo box the height that its font wants.
Extent ExtentOfCombo(const Control& control) {
  RECT closed = {};
  ::GetWindowRect(WindowOf(control), &closed);
  const Extent field = ExtentOfField(control, control.size.characters, 1);
  return {field.width + ::GetSystemMetrics(SM_CXVSCROLL),
          closed.bottom > closed.top ? static_cast<int>(closed.bottom - closed.top) : field.height};
}

bool EntriesFit(const ComboBox& combo, int width) {
  const int room = width - ::GetSystemMetrics(SM_CXVSCROLL) - 2 * ::GetSystemMetrics(SM_CXEDGE) - DialogUnits(4);
  return std::all_of(combo.Items().begin(), combo.Items().end(),
                     [&](const std::string& entry) { return WidthOfText(entry) <= room; });
}

// Buttons beside each other, and the options, are one stop of the Tab key or one group of the arrow keys.
bool InGroupOf(const Control& control, const Control* previous) {
  const bool isButton = control.kind == ControlKind::Button || control.kind == ControlKind::OptionButton;
  return isButton && previous != nullptr && previous->kind == control.kind;
}

bool HasCaption(const Control& control) {
  return control.kind == ControlKind::Label || control.kind == ControlKind::Button ||
         control.kind == ControlKind::OptionButton;
}

// What a new window must be told.
void Prepare(Control& control) {
  switch (control.kind) {
    case ControlKind::RichTextBox:
      PrepareRichText(control.now.handle);
      break;
    case ControlKind::ProgressBar:
      ShowProgress(control);
      break;
    case ControlKind::ListView:
      PrepareList(static_cast<ListView&>(control));
      break;
    case ControlKind::TextBox:
      if (static_cast<TextBox&>(control).KeyPress) FilterKeys(static_cast<TextBox&>(control));
      break;
    default:
      break;
  }
}

}  // namespace

void CreateControls(std::int32_t form, const std::vector<Control*>& controls) {
  RegisterClasses();
  const Control* previous = nullptr;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    Control& control = *controls[i];
    const WindowKind kind = WindowKindOf(control);
    DWORD style = WS_CHILD | WS_VISIBLE | kind.style;
    const bool inGroup = InGroupOf(control, previous);
    if (!inGroup) style |= WS_GROUP;
    if (!inGroup && control.kind == ControlKind::OptionButton) style |= WS_TABSTOP;
    if (!control.now.enabled) style |= WS_DISABLED;
    const bool hasCaption = HasCaption(control);
    // Made in its size, so that a long text can be scrolled to its end before the form is shown.
    const Extent extent = ExtentOf(control);
    const HWND window =
        ::CreateWindowExA(kind.extendedStyle, kind.className, hasCaption ? control.now.text.c_str() : "", style, 0, 0,
                          extent.width, extent.height, platform::HandleOf<HWND>(form),
                          platform::HandleOf<HMENU>(IdOf(control, i)), ::GetModuleHandleA(nullptr), nullptr);
    control.now.handle = platform::NumberOf(window);
    ::SendMessageA(window, WM_SETFONT, static_cast<WPARAM>(TheDialogFont().handle), FALSE);
    Prepare(control);
    if (!hasCaption && !control.now.text.empty()) ShowText(control);
    previous = &control;
  }
}

void ReleaseControls(const std::vector<Control*>& controls) {
  for (const Control* control : controls) {
    if (control->kind == ControlKind::Picture) ShowIcon(WindowOf(*control), "");
  }
}

Control* FindControl(const std::vector<Control*>& controls, std::int32_t hWnd) {
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [&](const Control* control) { return control->now.handle == hWnd; });
  return hWnd == 0 || found == controls.end() ? nullptr : *found;
}

Extent ExtentOf(const Control& control) {
  switch (control.kind) {
    case ControlKind::Label:
      return ExtentOfLabel(control);
    case ControlKind::TextBox:
    case ControlKind::RichTextBox:
      return ExtentOfField(control, control.size.characters, control.size.lines);
    case ControlKind::Button:
      return ExtentOfButton(control);
    case ControlKind::OptionButton:
      return ExtentOfOption(control);
    case ControlKind::ComboBox:
      return ExtentOfCombo(control);
    case ControlKind::ListView:
      return ExtentOfList(static_cast<const ListView&>(control), control.size.characters, control.size.lines);
    case ControlKind::ProgressBar:
      return {control.size.characters * TheDialogFont().averageWidth, TheDialogFont().lineHeight};
    case ControlKind::Picture:
      return {::GetSystemMetrics(SM_CXICON), ::GetSystemMetrics(SM_CYICON)};
  }
  return {};
}

Extent SmallestUsableExtentOf(const Control& control) {
  constexpr int kCharacters = 30;
  constexpr int kLines = 5;
  const int characters = std::min(control.size.characters, kCharacters);
  const int lines = std::min(control.size.lines, kLines);
  if (control.size.grows && control.kind == ControlKind::RichTextBox) return ExtentOfField(control, characters, lines);
  if (control.size.grows && control.kind == ControlKind::ListView)
    return ExtentOfList(static_cast<const ListView&>(control), characters, lines);
  return ExtentOf(control);
}

void Place(const Placement& place, int margin) {
  constexpr int kDroppedLines = 8;
  // The height of a combo box's window is that of the list that drops down.
  const bool drops = place.control->kind == ControlKind::ComboBox;
  const int height = place.height + (drops ? kDroppedLines * TheDialogFont().lineHeight : 0);
  ::SetWindowPos(WindowOf(*place.control), nullptr, margin + place.left, margin + place.top, place.width, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  if (place.control->kind == ControlKind::ListView) FitColumns(static_cast<const ListView&>(*place.control));
}

void ShowText(const Control& control) {
  const HWND window = WindowOf(control);
  if (window == nullptr) return;
  switch (control.kind) {
    case ControlKind::Picture:
      ShowIcon(window, control.now.text);
      break;
    case ControlKind::RichTextBox:
      ShowRichText(control.now.handle, control.now.text);
      break;
    case ControlKind::Label:
      ::SetWindowTextA(window, control.now.text.c_str());
      // A run shows what it does before it does it and may handle no message until that is done.
      ::UpdateWindow(window);
      break;
    default:
      ::SetWindowTextA(window, control.now.text.c_str());
  }
}

void ShowProgress(const Control& control) {
  const HWND window = WindowOf(control);
  if (window == nullptr) return;
  const auto shown = [&](UINT message, WPARAM which) {
    return static_cast<int>(::SendMessageA(window, message, which, 0));
  };
  const bool newRange = shown(PBM_GETRANGE, FALSE) != control.now.maximum;
  if (newRange) ::SendMessageA(window, PBM_SETRANGE32, 0, control.now.maximum);
  // A run sets the value for each line, and the control paints at once: only what widens the bar by a pixel is passed
  // on.
  RECT bar = {};
  ::GetClientRect(window, &bar);
  const auto pixels = [&](int value) {
    return control.now.maximum > 0 ? static_cast<std::int64_t>(value) * bar.right / control.now.maximum : 0;
  };
  if (!newRange && pixels(shown(PBM_GETPOS, 0)) == pixels(control.now.value)) return;
  ::SendMessageA(window, PBM_SETPOS, static_cast<WPARAM>(control.now.value), 0);
}

void ShowOption(const OptionButton& option) {
  ::SendMessageA(WindowOf(option), BM_SETCHECK, option.now.value != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
}

void ShowListIndex(const ComboBox& combo) {
  ::SendMessageA(WindowOf(combo), CB_SETCURSEL, static_cast<WPARAM>(combo.now.value), 0);
}

void TakeOver(Control& control, int notification) {
  const HWND window = WindowOf(control);
  if (control.kind == ControlKind::TextBox && notification == EN_CHANGE) {
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    control.now.text = text;
  } else if (control.kind == ControlKind::OptionButton && notification == BN_CLICKED) {
    // An option that gets the focus tells of a click, too, and is not set by it.
    if (::SendMessageA(window, BM_GETCHECK, 0, 0) == BST_CHECKED) static_cast<OptionButton&>(control).SetValue(true);
  } else if (control.kind == ControlKind::ComboBox && notification == CBN_SELCHANGE) {
    control.now.value = static_cast<int>(::SendMessageA(window, CB_GETCURSEL, 0, 0));
  }
}

bool TextFits(const Control& control) {
  RECT room = {};
  ::GetClientRect(WindowOf(control), &room);
  if (control.kind == ControlKind::Label) {
    const Extent needed = ExtentOfText(control.now.text, kLabelWrapping, room.right);
    return needed.width <= room.right && needed.height <= room.bottom;
  }
  if (control.kind == ControlKind::Button) {
    const Extent needed = ExtentOfText(control.now.text, DT_SINGLELINE);
    return needed.width <= room.right && needed.height <= room.bottom;
  }
  if (control.kind == ControlKind::OptionButton) return ExtentOfOption(control).width <= room.right;
  if (control.kind == ControlKind::ListView) return ColumnsFit(static_cast<const ListView&>(control));
  if (control.kind == ControlKind::ComboBox) return EntriesFit(static_cast<const ComboBox&>(control), room.right);
  return true;
}

}  // namespace forms::win32
