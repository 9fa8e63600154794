#include "automation/control_address.h"

#include "automation/window_search.h"
#include "platform/messages.h"
#include "platform/window_lookup.h"
#include "runtime/conversions.h"
#include "runtime/text.h"

namespace basMain {

std::int32_t NumberOrZero(const std::string& text) { return runtime::IsNumeric(text) ? runtime::ToLong(text) : 0; }

std::int32_t FindAddressedWindow(const ControlAddress& a) {
  std::int32_t hWindow = 0;
  std::int32_t ignored = 0;
  SearchWindow(a.window, hWindow, a.exact == "1", a.text, a.cls, a.id, a.frameId, ignored);
  return hWindow;
}

std::int32_t FindDescendant(std::int32_t hParent, const ControlAddress& a) {
  return hParent == 0 ? 0 : SearchControl(hParent, a.text, a.cls, runtime::ToLong(a.id));
}

std::int32_t FindControl(std::int32_t hParent, std::int32_t childId, const ControlAddress& a) {
  const std::int32_t child = platform::GetDlgItem(hParent, childId);
  return child != 0 ? child : FindDescendant(hParent, a);
}

std::int32_t FindFrame(std::int32_t hWindow, std::int32_t frameId) {
  const std::int32_t child = platform::GetDlgItem(hWindow, frameId);
  return child != 0 ? child : platform::GetWindow(hWindow, platform::GW_CHILD);
}

std::int32_t FindControlInFrame(const std::string& id, const std::string& window, const std::string& exact,
                                const std::string& cls, const std::string& frameId, const std::string& frameClass) {
  const std::int32_t number = NumberOrZero(id);
  std::int32_t hWindow = 0;
  std::int32_t hFrame = 0;
  SearchWindow(window, hWindow, exact == "1", "", frameClass.empty() ? cls : frameClass, std::to_string(number),
               frameId, hFrame);
  return FindControl(frameId.empty() ? hWindow : hFrame, number, {window, exact, "", cls, id});
}

std::string ReadControlText(std::int32_t hControl) {
  constexpr std::int32_t kBuffer = 255;
  platform::TextBuffer buffer(kBuffer);
  const std::int16_t count =
      runtime::ToInteger(static_cast<double>(platform::SendMessageA(hControl, platform::WM_GETTEXT, kBuffer, buffer)));
  return runtime::Left(buffer.bytes, count);
}

}  // namespace basMain
