#include "verb_facts.h"

#include <map>
#include <stdexcept>
#include <string>
#include <unordered_map>

#include "runtime/text.h"

namespace makcheck {
namespace {

using enum ArgumentKind;

struct Fact {
  ArgumentKind kind;
  bool needed = false;
};

// A verb cannot do without it: it fails, waits for ever or does nothing.
constexpr Fact Needed(ArgumentKind kind) { return {kind, true}; }

using Facts = std::vector<Fact>;

// By the first word of several for one verb; a verb with an "IF" form has the arguments of the plain one unless the
// form has a row of its own.
const std::map<std::string_view, Facts>& Rows() {
  static const Facts kControlInFrame = {Needed(Id), Needed(Window), {Exact}, {Class}, {FrameId}, {FrameClass}};
  static const Facts kList = {Needed(Id), Needed(Window), {Exact}, {Control}};
  static const Facts kPlainCombo = {Needed(Entry), Needed(CommandId), Needed(Window), {Exact}};
  static const Facts kPlainComboIndex = {Needed(EntryIndex), Needed(CommandId), Needed(Window), {Exact}};
  static const Facts kBox = {{Title}, {Control}};
  static const std::map<std::string_view, Facts> kRows = {
      {"MOUSEMOVE", {Needed(Number), Needed(Number)}},
      {"MOUSECLICK", {Needed(Word)}},
      {"MOUSECLICKBYWINDOWOFFSET", {Needed(Window), Needed(Word), Needed(Decimal), Needed(Decimal)}},
      {"MOUSEMOVETOCTL", {Needed(Class), {Control}}},
      {"SENDKEY", {Needed(Keys)}},
      {"SENDKEY2", {Needed(Keys), Needed(Id), Needed(Window), Needed(Class), {Control}}},
      {"SENDKEY2WINDOW", {Needed(Keys), Needed(Window)}},
      {"SETFOCUSCTL", {Needed(Class), {Control}, Needed(Id)}},
      {"SETFOCUS", {{Window}}},
      {"MSG", {{Text}}},
      {"WAIT", {Needed(Number)}},
      {"EXEC", {Needed(Text)}},
      {"IF ACTIVEWINDOW", {Needed(Title), {Word}}},
      {"WAITFORWINDOW", {Needed(Window), {Exact}, {Control}, {Class}, {Id}}},
      {"SAVECLIPBOARD", {Needed(File)}},
      {"SAVECLIPBOARDZVK", {Needed(File), {Text}}},
      {"BLOCKINPUT", {Needed(Word)}},
      {"SETTEXT", {{Text}, Needed(Id), Needed(Window), {Exact}, {Class}}},
      {"SETMERLATEXT", {{Text}, Needed(Id), Needed(Window), {Exact}, {Class}, {FrameId}, {FrameClass}}},
      {"SETCHECK", {Needed(Word), Needed(Id), Needed(Window), {Exact}, Needed(Frame), {Unread}}},
      {"GETCHECK", kControlInFrame},
      {"SETOPTION", kControlInFrame},
      {"READTEXT", kControlInFrame},
      {"SELECTCOMBO", {Needed(Entry), Needed(CommandId), Needed(Window), {Exact}, {Control}, {Class}}},
      {"IF SELECTCOMBO", kPlainCombo},
      {"SELECTCOMBOINDEX", kPlainComboIndex},
      {"IF SELECTCOMBOINDEX", {Needed(EntryIndex), Needed(CommandId), Needed(Window), {Exact}, {Control}, {Class}}},
      {"READCOMBO", {Needed(Id), Needed(Class), Needed(Window), {Exact}, {Control}, {FrameId}}},
      {"READCOMBOTEXT", {Needed(Id), Needed(Window), {Exact}, Needed(Class), {Control}}},
      {"BUTTONCLICK", {Needed(CommandId), Needed(Window), {Exact}, {Control}, {Class}}},
      {"MENUCLICK", {Needed(MenuId), Needed(Window), {Exact}, {Class}, {Id}}},
      {"DELETEFILE", {Needed(Pattern)}},
      {"DELETEFOLDER", {Needed(Folder)}},
      {"COPYFILE", {Needed(Pattern), Needed(Destination)}},
      {"COPYFOLDER", {Needed(Folder), Needed(Folder)}},
      {"RENAMEPATH", {Needed(Folder), Needed(Folder)}},
      {"DISPLAYSTATUS", {Needed(Text), {Text}}},
      {"CLOSEWINDOW", {Needed(Window), {Exact}}},
      {"SELECTALL", {Needed(Id), Needed(Window), {Exact}, {FrameId}}},
      {"IF GDPDU", {Needed(Text)}},
      {"CONFIRMDIALOG", kBox},
      {"WAITFORDIALOG", kBox},
      {"SELECTLIST", kList},
      {"VERIFYLIST", kList},
      {"GETPATHFROMCTL", {Needed(Id), Needed(Window), {Exact}, Needed(Class)}},
      {"GETTEXT", {{Text}, Needed(Id), Needed(Window), {Exact}}},
      {"READLISTITEM", {{Text}, Needed(Id), Needed(Window), {Exact}}},
      {"GETANLLIST", {Needed(Number), Needed(Id), Needed(Window), {Class}}},
      {"CREATEPROTOCOL", {Needed(File)}},
      {"ADDPROTOCOL", {{Text}}},
      {"SHOWINPUTDLG", {{Text}}},
      {"SHOWINPUTANL", {{Text}}},
      {"SHOWINPUTMERANL", {{Text}, Needed(Text)}},
      {"SHOWINPUTMERFIB", {{Text}, Needed(File)}},
      {"WAITFORFILE", {Needed(Pattern)}},
      {"IF BASISNUMMER", {Needed(Text)}},
      {"CREATEMATRIX", {Needed(Id), Needed(CommandId), Needed(Window), {Exact}, {Control}}},
      {"CREATEMERLAMATRIX", {Needed(CommandId), Needed(Window), {Exact}, Needed(Class), {Control}}},
      {"VALUE", {{Text}}},
      {"READINI", {Needed(Text), Needed(Text)}},
      {"PARSE", {Needed(Text), {Word}}},
      {"SETFOLDERPATH", {Needed(Window), {Exact}, Needed(Folder)}},
      {"RAISEERROR", {Needed(Text)}},
      {"IF STRCOMP", {{Text}, {Text}}},
      {"OPENCSV", {Needed(File), Needed(Number16), Needed(Text)}},
      {"CSVVALUE", {Needed(Number16)}},
      {"CREATEDIR", {Needed(Folder), {Text}, {Text}, {Text}, {Text}}},
      {"SETMERLADATE", {{Text}, {Text}, Needed(Window), Needed(Id), Needed(Index), Needed(Index)}},
      {"FORMATSTRING", {{Text}, {Text}, {Word}}},
      {"GOTO", {Needed(Mark)}},
      {"MARK", {Needed(Mark)}},
  };
  return kRows;
}

constexpr std::pair<std::string_view, std::string_view> kSameVerb[] = {
    {"MESSAGEOUT", "MSG"}, {"SLEEP", "WAIT"},        {"EXE", "EXEC"},
    {"EXECUTE", "EXEC"},   {"DEL", "DELETEFILE"},    {"DELETE", "DELETEFILE"},
    {"IF EXE", "EXEC"},    {"IF EXECUTE", "EXEC"},   {"DISPLAY", "DISPLAYSTATUS"},
};

struct Words {
  std::string_view verb;
  std::string_view words;
  bool fails;  // the line, with any other word
};
constexpr Words kWords[] = {
    {"MOUSECLICK", "LEFT,RIGHT", true},       {"MOUSECLICKBYWINDOWOFFSET", "LEFT,RIGHT", false},
    {"BLOCKINPUT", "TRUE,FALSE", false},      {"IF ACTIVEWINDOW", "TRUE,FALSE", false},
    {"PARSE", "ANL,ANLPATH,TEXT", false},     {"FORMATSTRING", "DATE,LONG,TEXT,STRING", false},
    {"SETCHECK", "1,0", false},
};

const Words* RowOf(std::string_view verb) {
  for (const Words& words : kWords)
    if (words.verb == verb) return &words;
  return nullptr;
}

const Facts& FactsOf(std::string_view word) {
  static const Facts kNone;
  for (const auto& [other, same] : kSameVerb)
    if (word == other) word = same;
  if (const auto row = Rows().find(word); row != Rows().end()) return row->second;
  if (word.starts_with("IF "))
    if (const auto row = Rows().find(word.substr(3)); row != Rows().end()) return row->second;
  return kNone;
}

std::vector<std::string_view> Names(std::string_view names) {
  std::vector<std::string_view> pieces;
  while (!names.empty()) {
    const auto end = names.find(", ");
    pieces.push_back(names.substr(0, end));
    names = end == std::string_view::npos ? "" : names.substr(end + 2);
  }
  return pieces;
}

struct Entry {
  const basMain::Verb* verb;
  std::vector<ArgumentFact> arguments;
};

const std::unordered_map<std::string_view, struct Entry>& Table() {
  static const auto kTable = [] {
    std::unordered_map<std::string_view, struct Entry> table;
    for (const basMain::Verb& verb : basMain::Verbs()) {
      const Facts& facts = FactsOf(verb.word);
      const auto names = Names(verb.arguments);
      if (facts.size() != names.size()) throw std::logic_error("arguments of " + std::string(verb.word));
      struct Entry entry = {&verb, {}};
      for (std::size_t i = 0; i < names.size(); ++i)
        entry.arguments.push_back({names[i], facts[i].kind, facts[i].needed});
      table.emplace(verb.word, std::move(entry));
    }
    return table;
  }();
  return kTable;
}

}  // namespace

const std::vector<ArgumentFact>& ArgumentsOf(const basMain::Verb& verb) { return Table().at(verb.word).arguments; }

std::vector<std::string> WordsOf(std::string_view verbWord) {
  const Words* words = RowOf(verbWord);
  return words == nullptr ? std::vector<std::string>() : runtime::Split(words->words, ',');
}

bool FailsOnOtherWords(std::string_view verbWord) {
  const Words* words = RowOf(verbWord);
  return words != nullptr && words->fails;
}

bool Yields(const basMain::Verb& verb) {
  return verb.kind == basMain::VerbKind::Value || verb.kind == basMain::VerbKind::ForcedValue;
}

const basMain::Verb* FindVerb(std::string_view word) {
  const auto found = Table().find(word);
  return found == Table().end() ? nullptr : found->second.verb;
}

}  // namespace makcheck
