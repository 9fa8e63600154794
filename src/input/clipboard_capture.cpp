#include "input/clipboard_capture.h"

#include <cstdint>

#include "automation/control_address.h"
#include "automation/window_search.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "environment/file_system.h"
#include "environment/window_order.h"
#include "forms/form.h"
#include "frame/log.h"
#include "frame/state.h"
#include "input/clipboard_tables.h"
#include "input/frmInputBoxKonto.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "resources/texts.h"
#include "runtime/text.h"

namespace basMain {

using platform::FileMode;
using resources::Text;
using resources::TextId;

namespace {

// No object closes the files below: one that is open when a fault comes stays open, as the users of the files know it.

void WriteAtStart(const std::string& path, const std::string& text) {
  const std::int32_t file = platform::OpenFile(path, FileMode::Overwrite);
  platform::WriteFile(file, text);
  platform::CloseFile(file);
}

std::string ReadToEnd(std::int32_t file, const std::string& path) {
  std::string text(static_cast<std::size_t>(platform::FileSize(path)), '\0');
  std::size_t length = 0;
  while (length < text.size()) {
    const std::size_t count = platform::ReadFile(file, text.data() + length, text.size() - length);
    if (count == 0) break;
    length += count;
  }
  text.resize(length);
  return text;
}

// Puts the clipboard's text into the file, has what the file then holds converted, and deletes the file.
template <class Convert>
std::string Capture(const std::string& path, std::string (*textToWrite)(), Convert convert) {
  std::int32_t file = platform::OpenFile(path, FileMode::Overwrite);
  platform::WriteFile(file, textToWrite());
  platform::CloseFile(file);
  file = platform::OpenFile(path, FileMode::Read);
  std::string result = convert(ReadToEnd(file, path));
  platform::CloseFile(file);
  platform::DeleteFileW(path);
  return result;
}

// A text with bare line feeds alone is given the line ends that the line reader knows.
std::string TextWithLineEnds() {
  std::string text = platform::GetClipboardText();
  if (!runtime::Contains(text, "\r\n")) text = runtime::Replace(text, "\n", "\r\n");
  return text;
}

struct Account {
  std::string konto;
  std::string blz;
};

// The words from a mark in the caption on; none when there are fewer than three.
std::vector<std::string> WordsFrom(std::size_t mark, const std::string& caption) {
  auto words = runtime::Split(std::string_view(caption).substr(mark), ' ');
  if (words.size() < 3) words.clear();
  return words;
}

void LogAccount(const Account& account) {
  LogWrite(account.konto);
  LogWrite(account.blz);
}

// "... [<name> <bank code> <account> ..."
Account FromBrackets(const std::string& caption, std::size_t bracket) {
  const auto words = WordsFrom(bracket, caption);
  if (words.empty()) return {};
  const Account account = {words[2], words[1]};
  LogAccount(account);
  return account;
}

// "Umsätze BLZ: <bank code> Kto: <account> ..."; with the account missing the access to it is a fault.
Account FromStatements() {
  const std::int32_t hWindow = FindAddressedWindow({.window = "Umsätze BLZ:"});
  if (hWindow == 0) return {};
  const std::string caption = GetWindowTitle(hWindow);
  const std::size_t colon = caption.find(':');
  if (colon == std::string::npos) return {};
  const auto words = WordsFrom(colon, caption);
  if (words.empty()) return {};
  const Account account = {runtime::Replace(runtime::Element(words, 3), "Kto:", ""), words[1]};
  LogAccount(account);
  return account;
}

// What the user types; after a cancel what was typed the last time.
Account FromUser() {
  basAPI::SetTopMost(frmInputBoxKonto.hWnd());
  forms::Pump();
  frmInputBoxKonto.ShowModal();
  return {frmInputBoxKonto.Konto(), frmInputBoxKonto.BLZ()};
}

Account FindAccount() {
  const std::string caption = GetWindowTitle(frame.MainWindow);
  LogWrite("Window Caption" + caption);
  const std::size_t bracket = caption.find('[');
  if (bracket != std::string::npos) return FromBrackets(caption, bracket);
  const Account account = FromStatements();
  return account.konto.empty() || account.blz.empty() ? FromUser() : account;
}

bool MissesName(const std::string& file) {
  if (file.empty()) run.LastError = Text(TextId::ClipboardFileMissing);
  return file.empty();
}

bool Saved() {
  LogWrite(Text(TextId::ClipboardSaved));
  return true;
}

}  // namespace

bool SaveClipboard(const std::string& file) {
  return Standard("SaveClipboard", [&] {
    if (MissesName(file)) return false;
    if (platform::IsClipboardFormatAvailable(platform::CF_TEXT))
      WriteAtStart(file, Capture(file, platform::GetClipboardText, clipboard_tables::QuoteCells));
    return Saved();
  });
}

bool SaveClipboardZVK(const std::string& file, const std::string& appendMode) {
  return Standard("SaveClipboardZVK", [&] {
    if (MissesName(file)) return false;
    const Account account = FindAccount();
    if (!platform::IsClipboardFormatAvailable(platform::CF_TEXT)) return Saved();
    const std::string records = Capture(file + ".tmp", TextWithLineEnds, [&](const std::string& table) {
      return clipboard_tables::StatementRecords(table, account.konto, account.blz);
    });
    LogWrite("AppendMode: " + appendMode);
    if (appendMode == "0") WriteAtStart(file, records);
    else FileSystem().OpenToAppend(file)->Write(records);
    return Saved();
  });
}

}  // namespace basMain
