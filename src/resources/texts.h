// The numbered message texts. "%1" and "%2" in a text are filled by plain replacement.
#pragma once

#include <string>

namespace resources {

enum class TextId : int {
  Notice = 1000,
  Client = 1001,
  BusinessYear = 1002,
  ConfirmClient = 1003,
  ClientUnknown = 1004,
  MacroMissing = 1005,
  HotKeyTaken = 1006,
  RunStarted = 1007,
  RunDate = 1008,
  RunFailed = 1009,
  RunCompleted = 1010,
  RunStopped = 1011,
  PathCreated = 1012,
  FunctionFault = 1013,
  RunInProgress = 1014,
  UnknownCommand = 1015,
  MenuChosen = 1016,
  MenuNotFound = 1017,
  ListSelected = 1018,
  ListNotSelected = 1019,
  ListEmpty = 1020,
  ComboSelected = 1021,
  ComboNotSelected = 1022,
  TextBoxFilled = 1023,
  TextBoxNotFilled = 1024,
  ButtonPressed = 1025,
  ButtonNotPressed = 1026,
  OptionSet = 1027,
  OptionNotSet = 1028,
  OptionNotFound = 1029,
  MousePositioned = 1030,
  ClipboardCleared = 1031,
  ControlFocused = 1032,
  WindowFocused = 1033,
  ClipboardFileMissing = 1034,
  ClipboardSaved = 1035,
  ClipboardFilled = 1036,
  WindowFound = 1038,
  ProgramStarted = 1039,
  ProgramNotStarted = 1040,
  KeySent = 1041,
  MouseMoved = 1042,
  MouseClicked = 1043,
  WindowMaximized = 1044,
  FilesDeleted = 1045,
  FileDeleted = 1046,
  WindowClosed = 1047,
  WindowNotClosed = 1048,
  Cancelled = 1049,
  TextBoxRead = 1051,
  ValueNotInList = 1052,
  ValueInList = 1053,
  ClientNotNumeric = 1054,
  FileRead = 1055,
  FileGone = 1056,
  FolderDeleted = 1057,
  YearMissing = 1058,
  ComboTextRead = 1059,
  ComboTextNotRead = 1060,
};

std::string Text(TextId id);

// The text with its "%1" replaced.
std::string Text(TextId id, const std::string& value);

// Title of the program's dialogs and message boxes.
extern const char* const kProgramTitle;

}  // namespace resources
