#include "clipboard.h"

#include "journal.h"

namespace standin {

void PutOnClipboard(HWND owner, const std::string& text) {
  // Another program may have it open for a moment.
  for (int attempts = 100; !OpenClipboard(owner); Sleep(10)) {
    if (--attempts == 0) {
      Journal("Die Zwischenablage ist belegt");
      return;
    }
  }
  EmptyClipboard();
  HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
  CopyMemory(GlobalLock(memory), text.c_str(), text.size() + 1);
  GlobalUnlock(memory);
  SetClipboardData(CF_TEXT, memory);
  CloseClipboard();
  Journal("Zwischenablage: " + std::to_string(text.size()) + " Zeichen");
}

}  // namespace standin
