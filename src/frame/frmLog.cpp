#include "frame/frmLog.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include "environment/file_system.h"
#include "frame/log.h"
#include "platform/files.h"
#include "runtime/fault.h"

namespace basMain {

namespace {

// Bytes of the log that the text box shows in a moment's time, and the fewest that are worth showing.
constexpr std::int64_t kMost = 2 << 20;
constexpr std::int64_t kFewest = 1 << 10;

// Bytes that showing a byte of the log takes, most of them in the text box, which keeps the shape of every line.
constexpr std::int64_t kCost = 128;

// Faults: OutOfMemory when there is no room to show so many bytes.
void NeedRoomToShow(std::int64_t bytes) {
  std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(bytes * kCost));
}

// The whole log, or, of one that has more bytes, whole lines of its end behind a line that says so.
std::string EndOfLog(std::int64_t most) {
  const auto stream = FileSystem().OpenTextFile(LogFile(), platform::FileMode::Read);
  const std::int64_t size = platform::FileSize(LogFile());
  if (size <= most) return stream->ReadAll();
  stream->SkipTo(size - most);
  const std::string end = stream->ReadAll();
  const std::size_t cut = end.find('\n') + 1;  // 0 where no line ends
  return "(Der Anfang des Protokolls hat in dieser Anzeige keinen Platz. Das ganze Protokoll steht in " + LogFile() +
         ".)\r\n" + end.substr(cut);
}

}  // namespace

LogForm frmLog;

LogForm::LogForm()
    : Form("frmLog", "TARVEN Datenexport - Protokoll", {.resizable = true}),
      txtProtokoll(*this, "txtProtokoll", {.characters = 100, .lines = 25, .grows = true}) {}

// The text box grows with the form, whose layout is arranged anew at each change of its size.
forms::Box LogForm::Layout() { return txtProtokoll; }

void LogForm::Form_Load() {
  bool shown = false;
  for (std::int64_t most = kMost; !shown && most >= kFewest; most /= 2) {
    runtime::Skip([&] {
      NeedRoomToShow(most);
      txtProtokoll.SetText(EndOfLog(most));
      shown = true;
    });
  }
}

}  // namespace basMain
