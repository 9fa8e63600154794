#include "engine/verbs.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

#include "automation/SharedMemory.h"
#include "automation/button_verbs.h"
#include "automation/check_verbs.h"
#include "automation/clipboard_verbs.h"
#include "automation/combo_boxes.h"
#include "automation/focus_verbs.h"
#include "automation/list_views.h"
#include "automation/message_boxes.h"
#include "automation/program_start.h"
#include "automation/state.h"
#include "automation/status_dialog_verbs.h"
#include "automation/text_verbs.h"
#include "automation/window_verbs.h"
#include "automation/windows_version.h"
#include "clients/asset_matrix.h"
#include "clients/client_list.h"
#include "clients/frmInputANL.h"
#include "clients/frmInputEST.h"
#include "clients/frmInputMerANL.h"
#include "clients/frmInputMerFib.h"
#include "clients/merla_matrix.h"
#include "engine/jumps.h"
#include "engine/line_watch.h"
#include "engine/loops.h"
#include "engine/standard_handler.h"
#include "engine/state.h"
#include "environment/csv_reader.h"
#include "environment/file_commands.h"
#include "environment/format_string.h"
#include "environment/result_parsing.h"
#include "environment/settings.h"
#include "frame/log.h"
#include "frame/protocol.h"
#include "input/clipboard_capture.h"
#include "input/key_verbs.h"
#include "input/merla_controls.h"
#include "input/mouse.h"
#include "platform/input.h"
#include "platform/system.h"
#include "resources/texts.h"
#include "runtime/conversions.h"
#include "runtime/text.h"

namespace basMain {
namespace {

using enum VerbKind;

// Hands a handler as many of the line's arguments as it takes, in their order.
template <class Result, class... Texts>
Result Call(Result (*function)(Texts...), const Arguments& a) {
  return [&]<std::size_t... Index>(std::index_sequence<Index...>) { return function(a[Index + 1]...); }
  (std::index_sequence_for<Texts...>());
}

// A row's handler for a routine of text arguments that tells whether it did its work.
template <auto Function>
bool Pass(const Arguments& a, std::string&) {
  return Call(Function, a);
}

// The same for a routine that yields the line's value. Such a verb counts as done; the routine itself tells a failure.
template <auto Function>
bool Yield(const Arguments& a, std::string& value) {
  value = Call(Function, a);
  return true;
}

// The same for a routine that fills LastReadText: that is the line's value, also after a failure.
template <auto Function>
bool ReadInto(const Arguments& a, std::string& value) {
  const bool read = Call(Function, a);
  value = automation.LastReadText;
  return read;
}

// "SELECTCOMBO" and "IF SELECTCOMBOINDEX" take text and class from the line.
template <bool indexMode>
bool SelectAnyCombo(const Arguments& a, std::string&) {
  return SelectCombo(indexMode, a[1], a[2], a[3], a[4], a[5], a[6]);
}

// "IF SELECTCOMBO" and "SELECTCOMBOINDEX" don't look at them.
template <bool indexMode>
bool SelectPlainCombo(const Arguments& a, std::string&) {
  return SelectCombo(indexMode, a[1], a[2], a[3], a[4], "", "ComboBox");
}

bool Message(const Arguments& a, std::string&) {
  LogWrite("MSG: " + a[1]);
  return true;
}

// The sleep pumps nothing, so it cannot be interrupted.
bool Wait(const Arguments& a, std::string&) {
  if (!runtime::IsNumeric(a[1])) return false;
  platform::Sleep(runtime::ToLong(a[1]));
  return true;
}

bool BlockUserInput(const Arguments& a, std::string&) { return platform::BlockInput(runtime::ToUpper(a[1]) == "TRUE"); }

bool Stop(const Arguments&, std::string&) {
  run.StopRun = true;
  return true;
}

bool RaiseError(const Arguments& a, std::string&) { return Fail(a[1]); }

bool StoreValue(const Arguments& a, std::string& value) {
  LogWrite("Variable wurde befüllt: " + a[1]);
  value = a[1];
  return true;
}

bool CompareTexts(const Arguments& a, std::string&) {
  const bool equal = a[1] == a[2];
  LogWrite("STRCOMP: " + a[1] + ", " + a[2] + " = " + runtime::TruthText(equal));
  return equal;
}

bool MoveMouse(const Arguments& a, std::string&) { return MouseMove(runtime::ToLong(a[1]), runtime::ToLong(a[2])); }

bool Else(const Arguments&, std::string&) {
  run.ExecEnabled = !run.ExecEnabled;
  return true;
}

bool EndIf(const Arguments&, std::string&) {
  run.ExecEnabled = true;
  return true;
}

bool Mark(const Arguments&, std::string&) { return true; }

bool AskForClientYears(const Arguments& a, std::string& value) {
  value = ShowInputMerFib(a[1], a[2]);
  LogWrite("ShowInputMerFib: Variable wurde befüllt: " + value);
  return true;
}

// The text that comes back has to be a truth value; the empty text of a failure is none.
bool ChooseFolder(const Arguments& a, std::string&) { return runtime::ToTruth(SetFolderPath(a[1], a[2], a[3])); }

constexpr Verb kVerbs[] = {
    {"MOUSEMOVE", Action, "x, y", MoveMouse},
    {"MOUSECLICK", Action, "button", Pass<ClickMouseButton>},
    {"MOUSECLICKBYWINDOWOFFSET", Action, "caption, button, x offset, y offset", Pass<MouseClickbyWindowOffset>},
    {"MOUSEMOVETOCTL", Action, "class, caption", Pass<MouseMoveToCtl>},
    {"SENDKEY", Action, "keys", Pass<SendKey>},
    {"SENDKEY2", Action, "keys, id, window, class, text", Pass<SendKeyToControl>},
    {"SENDKEY2WINDOW", Action, "keys, window", Pass<SendKeyToWindow>},
    {"SETFOCUSCTL", Action, "class, text, id", Pass<SetFocusCtl>},
    {"SETFOCUS", Action, "window", Pass<SetFocusWindow>},
    {"MSG", Action, "text", Message},
    {"MESSAGEOUT", Action, "text", Message},
    {"WAIT", Action, "milliseconds", Wait},
    {"SLEEP", Action, "milliseconds", Wait},
    {"EXEC", Action, "command", Pass<ExecuteProgram>},
    {"EXE", Action, "command", Pass<ExecuteProgram>},
    {"EXECUTE", Action, "command", Pass<ExecuteProgram>},
    {"IF EXEC", Condition, "command", Pass<ExecuteProgram>},
    {"IF EXE", Condition, "command", Pass<ExecuteProgram>},
    {"IF EXECUTE", Condition, "command", Pass<ExecuteProgram>},
    {"IF ACTIVEWINDOW", Condition, "title fragment, foreground", Pass<IsActiveWindow>},
    {"ELSE", Branch, "", Else},
    {"ENDIF", Branch, "", EndIf},
    {"END IF", Branch, "", EndIf},
    {"WAITFORWINDOW", Action, "window, exact, text, class, id", Pass<WaitForWindow>},
    {"CLEARCLIPBOARD", Action, "", Pass<ClearClipboard>},
    {"WAITFORCLIPBOARD", Action, "", Pass<WaitForClipboard>},
    {"SAVECLIPBOARD", Action, "file", Pass<SaveClipboard>},
    {"SAVECLIPBOARDZVK", Action, "file, append mode", Pass<SaveClipboardZVK>},
    {"MAXWINDOW", Action, "", Pass<MaximizeWindow>},
    {"BLOCKINPUT", Action, "block", BlockUserInput},
    {"STOP", Action, "", Stop},
    {"HOLD", Action, "", Stop},
    {"SETTEXT", Action, "new text, id, window, exact, class", Pass<SetText>},
    {"SETMERLATEXT", Action, "text, id, window, exact, class, frame id, search class", Pass<SetMERLAText>},
    {"SETCHECK", Action, "value, id, window, exact, frame id or control text, unused", Pass<SetCheck>},
    {"GETCHECK", Action, "id, window, exact, class, frame id, frame class", Pass<GetCheck>},
    {"SETOPTION", Action, "id, window, exact, class, frame id, frame class", Pass<SetOption>},
    {"SELECTCOMBO", Action, "value, id, window, exact, text, class", SelectAnyCombo<false>},
    {"IF SELECTCOMBO", Condition, "value, id, window, exact", SelectPlainCombo<false>},
    {"SELECTCOMBOINDEX", Action, "index, id, window, exact", SelectPlainCombo<true>},
    {"IF SELECTCOMBOINDEX", Condition, "index, id, window, exact, text, class", SelectAnyCombo<true>},
    {"READCOMBO", Action, "id, class, window, exact, text, frame id", Pass<ReadCombo>},
    {"READCOMBOTEXT", Value, "id, window, exact, class, text", ReadInto<ReadComboText>},
    {"BUTTONCLICK", Action, "id, window, exact, text, class", Pass<ButtonClick>},
    {"IF BUTTONCLICK", Condition, "id, window, exact, text, class", Pass<ButtonClick>},
    {"MENUCLICK", Action, "menu id, window, exact, class, control id", Pass<MenuClick>},
    {"IF MENUCLICK", Condition, "menu id, window, exact, class, control id", Pass<MenuClick>},
    {"DELETEFILE", Action, "file or pattern", Pass<DeleteFile>},
    {"DEL", Action, "file or pattern", Pass<DeleteFile>},
    {"DELETE", Action, "file or pattern", Pass<DeleteFile>},
    {"DELETEFOLDER", Action, "folder", Pass<DeleteFolder>},
    {"COPYFILE", Action, "source, destination", Pass<CopyFile>},
    {"COPYFOLDER", Action, "source, destination", Pass<CopyFolder>},
    {"RENAMEPATH", Action, "source, destination", Pass<RenamePath>},
    {"DISPLAYSTATUS", Action, "text, value", Pass<DisplayStatus>},
    {"DISPLAY", Action, "text, value", Pass<DisplayStatus>},
    {"CLOSEWINDOW", Action, "window, exact", Pass<CloseWindow>},
    {"SELECTALL", Action, "list id, window, exact, parent id", Pass<SelectAll>},
    {"IF SELECTALL", Condition, "list id, window, exact, parent id", Pass<SelectAll>},
    {"IF GDPDU", Condition, "value", Pass<IsGdpduMode>},
    {"CONFIRMDIALOG", ForcedAction, "title fragment, text fragment", Pass<ConfirmDialog>},
    {"IF CONFIRMDIALOG", Condition, "title fragment, text fragment", Pass<ConfirmDialog>},
    {"WAITFORDIALOG", Action, "title fragment, text fragment", Pass<WaitForDialog>},
    {"SELECTLIST", Action, "id, window, exact, text", Pass<SelectList>},
    {"DO", Action, "", Pass<StartLoop>},
    {"LOOP UNTIL COUNT", Action, "", Pass<LoopUntilCount>},
    {"LOOP UNTIL MATRIX.EOF", Action, "", Pass<LoopUntilMatrixEof>},
    {"LOOP UNTIL MERMATRIX.EOF", Action, "", Pass<LoopUntilMerMatrixEof>},
    {"LOOP UNTIL CSVFILE.EOF", Action, "", Pass<isCSVFileEOF>},
    {"GETPATHFROMCTL", Action, "id, window, exact, class", Pass<GetPathFromCtl>},
    {"GETTEXT", Action, "expected text, id, window, exact", Pass<GetText>},
    {"IF GETTEXT", Condition, "expected text, id, window, exact", Pass<GetText>},
    {"READTEXT", Value, "id, window, exact, class, frame id, frame class", ReadInto<ReadText>},
    {"HIDEDIALOG", Action, "", Pass<HideDialog>},
    {"SHOWDIALOG", Action, "", Pass<ShowDialog>},
    {"READLISTITEM", Action, "value, id, window, exact", Pass<ReadListItem>},
    {"IF READLISTITEM", Condition, "value, id, window, exact", Pass<ReadListItem>},
    {"GETANLLIST", Action, "column, id, window, class", Pass<GetAnlList>},
    {"NEXT VJ", Action, "", Pass<NextYear>},
    {"IF VJ", Condition, "", Pass<CheckVJ>},
    {"CREATEPROTOCOL", Action, "file", Pass<CreateProtocol>},
    {"ADDPROTOCOL", Action, "text", Pass<AddProtocol>},
    {"CLOSEPROTOCOL", Action, "", Pass<CloseProtocol>},
    {"SHOWINPUTDLG", Action, "text", Pass<ShowInputDlg>},
    {"SHOWINPUTANL", Action, "text", Pass<ShowInputANL>},
    {"SHOWINPUTMERANL", Action, "text, client number", Pass<ShowInputMerANL>},
    {"SHOWINPUTMERFIB", ForcedValue, "text, client file", AskForClientYears},
    {"VERIFYLIST", Action, "id, window, exact, text", Pass<VerifyList>},
    {"IF VERTIFYMANDANTNR", Condition, "", Pass<VertifyMandantNr>},  // the word is spelled so
    {"WAITFORFILE", Action, "file or pattern", Pass<WaitForFile>},
    {"IF ISOSNT", Condition, "", Pass<SharedMemory::IsWindowsNT>},
    {"WINVERSION", Value, "", Yield<SharedMemory::GetWindowsVersion>},
    {"IF BASISNUMMER", Condition, "value", Pass<IfBasisnummer>},
    {"CREATEMATRIX", Action, "year combo id, area combo id, window, exact, text", Pass<CreateMatrix>},
    {"CREATEMERLAMATRIX", Action, "year combo id, window, exact, class, text", Pass<CreateMerlaMatrix>},
    {"IF MATRIX.CHECKED", Condition, "", Pass<IsMatrixChecked>},
    {"IF MERMATRIX.CHECKED", Condition, "", Pass<IsMerMatrixChecked>},
    {"VALUE", Value, "text", StoreValue},
    {"READINI", ForcedValue, "section, key", Yield<basAPI::ReadINI>},
    {"PARSE", Value, "text, mode", ReadInto<Parse>},
    {"SETFOLDERPATH", Action, "window, exact, path", ChooseFolder},
    {"RAISEERROR", Action, "message", RaiseError},
    {"IF STRCOMP", Condition, "text, text", CompareTexts},
    {"OPENCSV", Action, "file, lines to skip, separator", Pass<OpenCSV>},
    {"CSVVALUE", ForcedValue, "field number", Yield<GetCSVValue>},
    {"CREATEDIR", ForcedValue, "piece 1, piece 2, piece 3, piece 4, piece 5", Yield<CreateDir>},
    {"SETMERLADATE", Action, "from, to, window, frame number, from index, to index", Pass<SetMerlaDate>},
    {"FORMATSTRING", ForcedValue, "value, format, type", Yield<FormatString>},
    {"GOTO", Action, "mark", Pass<GoToLine>},
    {"MARK", Action, "mark", Mark},
};
static_assert(std::size(kVerbs) == 110);

// On the skipped side of a condition.
bool IsPassedOver(const Verb& verb) { return verb.kind != Branch && !run.ExecEnabled; }

// True when the verb did its work; false fails a live line.
bool CarryOut(const Verb& verb, const Arguments& a, std::string& value) {
  if (IsPassedOver(verb)) return false;
  const bool result = verb.handler(a, value);
  if (verb.kind == Condition) run.ExecEnabled = result;
  return result || verb.kind == Condition || verb.kind == ForcedAction || verb.kind == ForcedValue;
}

}  // namespace

std::span<const Verb> Verbs() { return kVerbs; }

const Verb* FindVerb(std::string_view word) {
  const auto verb = std::ranges::find(kVerbs, word, &Verb::word);
  return verb == std::end(kVerbs) ? nullptr : verb;
}

std::string MakroExecute(const std::string& line) {
  if (line.empty()) return "";
  std::string value;
  try {
    std::string word;
    Arguments a;
    ParseMakroLine(line, word, a);
    const Verb* const verb = FindVerb(word);
    if (lineWatch.Parsed) lineWatch.Parsed(word, a, verb == nullptr ? !run.ExecEnabled : IsPassedOver(*verb));
    bool ok = false;
    if (verb != nullptr) ok = CarryOut(*verb, a, value);
    else if (run.ExecEnabled) run.LastError = resources::Text(resources::TextId::UnknownCommand) + word;
    if (!ok && run.ExecEnabled) run.RunFailed = true;
  } catch (...) {
    run.RunFailed = true;
    run.LastError = StandardErrorText("MakroExecute", runtime::CaughtFault());
  }
  return value;
}

}  // namespace basMain
