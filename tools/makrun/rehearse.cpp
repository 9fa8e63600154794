#include "rehearse.h"

#include <algorithm>
#include <filesystem>

#include "common/code_pages.h"
#include "common/tool.h"
#include "desktop_file.h"
#include "dialog_answers.h"
#include "engine/macro_file.h"
#include "engine/run_loop.h"
#include "engine/state.h"
#include "environment/window_order.h"
#include "files.h"
#include "forms/simulated/user.h"
#include "frame/frmStatus.h"
#include "frame/log.h"
#include "frame/state.h"
#include "line_watcher.h"
#include "platform/class_names.h"
#include "platform/messages.h"
#include "platform/shell.h"
#include "platform/simulated/desktop.h"
#include "platform/simulated/host_paths.h"
#include "platform/system.h"
#include "rehearsal.h"
#include "texts.h"

namespace makrun {
namespace {

namespace fs = std::filesystem;
namespace simulated = platform::simulated;
using basMain::run;
using rehearsal::kProgram;
using tools::FileError;
using tools::ProgramText;
using tools::ReadFile;
using tools::Say;

// How long a wait may take to notice that the user has cancelled, in simulated seconds.
constexpr std::int32_t kGrace = 60;

const std::string kSettings = kProgram + "\\QUMAEXP.INI";

std::string MacroName(const Options& options) {
  return ProgramText(tools::NameOf(tools::PathOf(options.macro).filename()));
}

void PrepareSystem(const Options& options) {
  if (!options.drive.empty()) {
    std::error_code error;
    if (!fs::is_directory(tools::PathOf(options.drive), error)) throw FileError{Say(say::kNoFolder, {options.drive})};
    simulated::SetDrive('C', options.drive);
    simulated::SetApplicationPath(kProgram);
  }
  simulated::SetNow(options.now);
  if (!options.nt) simulated::SetVersion(platform::VER_PLATFORM_WIN32_WINDOWS, 4, 10);
  simulated::SetRealTime(options.realTime);
}

// What to do about an encoding that the program does not read; empty for the one that it does.
std::string EncodingWarning(const std::string& path, const std::string& bytes) {
  switch (tools::EncodingOf(bytes)) {
    case tools::Encoding::CodePage:
      return "";
    case tools::Encoding::Utf8: {
      const auto beyond = std::ranges::find_if(bytes, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
      return Say(say::kIsUtf8, {path, std::to_string(1 + std::count(bytes.begin(), beyond, '\n'))});
    }
    case tools::Encoding::Utf8WithMark:
      return Say(say::kHasMark, {path});
    case tools::Encoding::Utf16WithMark:
    case tools::Encoding::Utf16:
      return Say(say::kIsUtf16, {path});
  }
  return "";
}

// The files beside the macro stand in the program's folder, as copies: a rehearsal leaves the macro's folder as it is.
void FillProgramFolder(const Options& options) {
  const fs::path macro = tools::PathOf(options.macro);
  const fs::path beside = macro.has_parent_path() ? macro.parent_path() : fs::path(".");
  const fs::path program = tools::PathOf(simulated::HostPath(kProgram));
  const std::string text = ReadFile(options.macro);
  if (const std::string warning = EncodingWarning(options.macro, text); !warning.empty())
    tools::Write(stderr, warning + "\n");
  std::error_code error;
  if (!fs::equivalent(beside, program, error)) {
    fs::remove(tools::PathOf(simulated::HostPath(kSettings)), error);  // those of an earlier rehearsal on a kept drive
    for (const auto& entry : fs::directory_iterator(beside, error)) {
      if (!entry.is_regular_file() || entry.path().filename() == "QUMAEXP.LOG") continue;
      fs::copy_file(entry.path(), program / entry.path().filename(), fs::copy_options::overwrite_existing, error);
      if (error) throw FileError{Say(say::kNotCopied, {tools::NameOf(entry.path()), error.message()})};
    }
    // Also one that the folder does not list as a file. A name that the program cannot open is told here.
    PutSimulatedFile(kProgram + "\\" + MacroName(options), text);
  }
  if (!options.ini.empty()) simulated::PutFile(kSettings, ReadFile(options.ini));
}

void PrepareDesktop(const Options& options) {
  if (!options.desktop.empty()) LoadDesktopFile(options.desktop);
  else
    simulated::Activate(
        simulated::AddWindow({.className = platform::kFormClass, .text = ProgramText(options.caption)}));
  if (!options.clipboard.empty()) simulated::Clipboard() = ProgramText(ReadFile(options.clipboard));
}

// The user loses patience; a wait that does not look at the cancel is then cut off.
void LimitTime(std::int32_t seconds) {
  simulated::Schedule(seconds * 1000, [] {
    const std::int32_t button = basMain::frmStatus.cmdCancel.now.handle;
    if (button != 0) platform::PostMessageA(button, platform::BM_CLICK, 0, 0);
  });
  simulated::SetTimeLimit((std::int64_t{seconds} + kGrace) * 1000);
}

// What the hot key does behind the choice of the macro.
bool RunDirectly(const std::string& macro) {
  basMain::frame.MainWindow = simulated::Foreground();
  basMain::frame.MakroFile = macro;
  basAPI::SetTopMost(basMain::frmStatus.hWnd());
  basMain::frmStatus.Show();
  basMain::LoadFile(kProgram + "\\" + macro);
  return basMain::ProcessMakro(0);
}

bool RunByHotKey() {
  simulated::PressHotKey(platform::MOD_ALT, platform::VK_F12);
  forms::Pump();
  return !run.RunFailed;
}

Outcome Perform(const Options& options, const std::string& macro) {
  bool good = options.press ? RunByHotKey() : RunDirectly(macro);
  for (int i = 0; i < options.resumes && !good && !run.StopRun; ++i) {
    forms::simulated::Press(basMain::frmStatus.cmdResume);
    good = !run.RunFailed;
  }
  if (run.StopRun) return Outcome::Stopped;
  return good ? Outcome::Completed : Outcome::Failed;
}

}  // namespace

Rehearsal Rehearse(const Options& options) {
  const rehearsal::FreshSystem system;
  PrepareSystem(options);
  FillProgramFolder(options);
  PrepareDesktop(options);
  rehearsal::StartProgram();
  if (!basMain::log.LogStream) throw FileError{Say(say::kNotWritten, {simulated::ToUtf8(basMain::LogFile())})};
  const std::size_t older = rehearsal::LinesOf(basMain::LogFile()).size();
  DialogAnswers answers(options.answers);
  LimitTime(options.timeLimit);
  LineWatcher watcher(options);

  Rehearsal result;
  const auto giveUp = [&](const std::string& why) {
    result.outcome = Outcome::Stopped;
    watcher.GiveUp(why);
  };
  try {
    result.outcome = Perform(options, MacroName(options));
    // A fault of the run loop itself leaves a text that belongs to no line.
    if (result.outcome == Outcome::Failed && !run.RunFailed) result.notes.push_back(simulated::ToUtf8(run.LastError));
    if (!watcher.VisitedAny()) {
      result.outcome = simulated::MessageBoxes().empty() ? Outcome::Stopped : Outcome::Failed;
      result.notes.push_back(Say(say::kNoRun));
    }
  } catch (const simulated::TimeLimitPassed&) {
    giveUp(Say(say::kGoesOnWaiting, {std::to_string(options.timeLimit)}));
  } catch (const LineLimitPassed&) {
    giveUp(Say(say::kLineLimit, {std::to_string(options.lineLimit)}));
  } catch (const DialogStays& dialog) {
    giveUp(Say(say::kDialogStays, {dialog.form}));
  }
  auto lines = rehearsal::LinesOf(basMain::LogFile());
  result.log.assign(lines.begin() + static_cast<std::ptrdiff_t>(std::min(older, lines.size())), lines.end());
  for (const auto& box : simulated::MessageBoxes())
    result.notes.push_back(Say(say::kMessageBox, {simulated::ToUtf8(box.text)}));
  if (const std::string& folder = simulated::FolderThatEndsInABlank(); !folder.empty())
    result.notes.push_back(Say(say::kBlankEnd, {simulated::ToUtf8(folder)}));
  for (const Answer& answer : answers.Left())
    result.notes.push_back(Say(say::kNotAskedFor, {answer.form, answer.control}));
  return result;
}

}  // namespace makrun
