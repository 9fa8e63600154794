// What makcheck can find: one table that the checker, --explain, the documents and the editors read.
#pragma once

#include <span>
#include <string_view>

#include "common/texts.h"

namespace makcheck {

enum class Severity { Error, Warning };

enum class FindingId {
  // The file.
  Utf8File,
  Utf16File,
  ByteOrderMark,
  // The shape of a line.
  UnknownVerb,
  MisspelledVerb,
  MissingEquals,
  ElseIf,
  UnknownLoopEnd,
  LiteralAssignment,
  AssignmentWithoutParentheses,
  ParenthesisedCommand,
  UndeclaredVariable,
  VariableCase,
  BlankAtEquals,
  BlankBeforeVerb,
  OpenQuote,
  DroppedEquals,
  DroppedParenthesis,
  ForeignComment,
  CommentByAccident,
  DeclarationByAccident,
  // Arguments.
  MissingArgument,
  NotANumber,
  NotAnId,
  IdTooLarge,
  IndexOutOfRange,
  WrongWord,
  DoubtfulWord,
  MainWindowWord,
  DestinationNotAFolder,
  EighthArgument,
  UnreadArgument,
  DroppedText,
  BlankInArgument,
  DeletePattern,
  WaitPattern,
  WaitFolder,
  UnknownKeys,
  UnquotedValue,
  UnknownDollarWord,
  MisspelledDollarWord,
  DollarWordCase,
  // Variables and marks.
  OddName,
  DoubledDeclaration,
  ArgumentIsVariable,
  ArgumentCase,
  UnassignedVariable,
  VariableInText,
  LostValue,
  UnreadVariable,
  NoValue,
  MissingMark,
  MisspelledMark,
  DoubledMark,
  MarkOnFirstLine,
  // The way of a run.
  NestedCondition,
  SecondElse,
  ElseWithoutIf,
  EndIfWithoutIf,
  IfWithoutEndIf,
  NestedLoop,
  LoopEndWithoutDo,
  DoWithoutLoopEnd,
  LoopEndInCondition,
  EndlessCount,
  NoFocus,
  SilentWait,
  DeadLine,
  // Against the windows of a desktop file.
  UnknownWindow,
  UnknownBox,
  UnknownControl,
  UnknownFrame,
  UnknownEntry,
  UnknownMenu,
  ShadowedControl,
  // Against the settings.
  NoClientDialog,
  MissingMacro,
  UnreadKey,
  BadControlPath,
  Count,
};

struct FindingKind {
  FindingId id;
  std::string_view name;
  Severity severity;
  tools::Text message;      // with the values of the finding in the places of its marks
  tools::Text explanation;  // for --explain
  std::u8string_view wrong;  // lines that it is found in
  std::u8string_view right;  // and what to write instead
};

// In the order of FindingId.
std::span<const FindingKind> FindingKinds();
const FindingKind& KindOf(FindingId id);
// nullptr for an unknown name.
const FindingKind* FindKind(std::string_view name);

}  // namespace makcheck
