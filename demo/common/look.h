// What the windows of the stand-ins share: the font, the scale, and the classes of windows and controls, which bear the
// names that macros look for.
#pragma once

#include <windows.h>

#include <string>

namespace standin {

constexpr char kTextBoxClass[] = "ThunderRT6Textbox";
constexpr char kButtonClass[] = "ThunderRT6CommandButton";
constexpr char kCheckBoxClass[] = "ThunderRT6CheckBox";
constexpr char kOptionButtonClass[] = "ThunderRT6OptionButton";
constexpr char kComboBoxClass[] = "ThunderRT6ComboBox";
// Containers: what their controls notify goes on to their own parent. A frame draws its text and a line around them.
constexpr char kFrameClass[] = "ThunderRT6Frame";
constexpr char kUserControlClass[] = "ThunderRT6UserControlDC";

// Registers the class of all forms, the containers, and the system's own controls under other names.
void RegisterClasses(HINSTANCE instance);

// A form whose messages go to the procedure, with room for a content of a size given in pixels at 96 dpi.
HWND CreateForm(const char* title, DWORD style, int x, int y, int width, int height, HMENU menu, WNDPROC procedure,
                HWND owner = nullptr);

// Handles one message of a loop; the keys of dialogs work in the active form.
void HandleMessage(MSG& message);

// Handles messages until the program ends. Yields the program's exit code.
int MessageLoop();

// Pixels of the screen for a length given in pixels at 96 dpi.
int Scaled(int length);

HFONT DialogFont();

// A control at a place given in pixels at 96 dpi.
HWND AddControl(HWND parent, const char* windowClass, const char* text, DWORD style, int id, int x, int y, int width,
                int height);

// Gives a text box a procedure of its own, which hands on what it leaves to TextBoxProcedure. By the 8-bit function: a
// box that common controls subclass gets wide characters on some versions of the system.
void SubclassTextBox(HWND box, WNDPROC procedure);
LRESULT TextBoxProcedure(HWND box, UINT message, WPARAM wParam, LPARAM lParam);

std::string TextOf(HWND window);

// The control's id behind those of the containers that it stands in, joined by slashes: how the journal names it.
std::string IdPath(HWND control);

}  // namespace standin
