#include <algorithm>
#include <string>
#include <string_view>

#include "argument_names.h"
#include "engine/parser.h"
#include "input/key_notation.h"
#include "nearest.h"
#include "rules.h"
#include "runtime/conversions.h"
#include "runtime/fault.h"
#include "runtime/text.h"
#include "verb_facts.h"

namespace makcheck {
namespace {

using runtime::Contains;
using runtime::ToUpper;
using runtime::Trim;

constexpr std::size_t kArguments = std::tuple_size_v<basMain::Arguments> - 1;  // that reach a verb
constexpr std::string_view kBlankKey = "{SPACE}";  // as the whole text only
constexpr std::string_view kMainWindow = "%MAINWINDOW%";
constexpr std::int32_t kLastDateField = 20;

// What is behind a comma of their text is rather its rest than an argument.
constexpr std::string_view kTextVerbs[] = {"MSG",           "MESSAGEOUT",   "RAISEERROR",    "DISPLAYSTATUS",
                                           "DISPLAY",       "ADDPROTOCOL",  "WAITFORDIALOG", "CONFIRMDIALOG",
                                           "SHOWINPUTDLG",  "SHOWINPUTANL", "VALUE",         "IF CONFIRMDIALOG"};

// Values that take the name of a client or an area along, and a name may hold a comma.
constexpr std::string_view kNameValues[] = {"$MANDANTNAME", "$MATRIXBEREICH", "$PATH",        "$GDPDUPATH",
                                            "$FIBUPATH",    "$ANLPATH",       "$MANDANTPATH", "$FIBUMANDANTPATH"};

constexpr std::string_view kFolderValues[] = {"$PATH",        "$GDPDUPATH",       "$FIBUPATH", "$ANLPATH",
                                              "$MANDANTPATH", "$FIBUMANDANTPATH", "$TEMP",     "$TERUPATH"};

template <class Range>
bool Holds(const Range& range, std::string_view word) {
  return std::find(std::begin(range), std::end(range), word) != std::end(range);
}

template <class Convert>
bool Converts(std::string_view text, Convert convert) {
  try {
    convert(text);
    return true;
  } catch (const runtime::Fault&) {
    return false;
  }
}

bool IsLong(std::string_view text) {
  return Converts(text, [](std::string_view t) { return runtime::ToLong(t); });
}
bool IsInteger(std::string_view text) {
  return Converts(text, [](std::string_view t) { return runtime::ToInteger(t); });
}

class ArgumentRules {
 public:
  ArgumentRules(const Macro& macro, Findings& findings) : macro_(macro), findings_(findings) {}

  void Check() {
    for (index_ = 0; index_ < macro_.Lines().size(); ++index_) {
      line_ = &macro_.Lines()[index_];
      if (line_->verb == nullptr || line_->openQuote) continue;  // an open quote leaves nothing to look at
      const auto& facts = ArgumentsOf(*line_->verb);
      CheckSurplus(facts);
      CheckMissing(facts);
      for (std::size_t i = 0; i < std::min(facts.size(), line_->arguments.size()); ++i)
        CheckArgument(facts[i], line_->arguments[i]);
      for (const Argument& argument : line_->arguments) CheckAnyArgument(argument);
    }
  }

 private:
  void Add(FindingId id, Span span, std::vector<std::string> values = {}, std::vector<Fix> fixes = {}) {
    findings_.push_back({id, index_, span, std::move(values), std::move(fixes)});
  }
  void Add(FindingId id, const Argument& argument, std::vector<std::string> values = {}) {
    Add(id, line_->PlaceOf(argument), std::move(values));
  }
  void Replace(FindingId id, const Argument& argument, std::vector<std::string> values, std::string text) {
    const Span span = line_->PlaceOf(argument);
    Add(id, span, std::move(values), {{index_, span, std::move(text)}});
  }

  bool Computed(const Argument& argument) const { return IsComputed(macro_, index_, argument); }

  // The arguments from the first to the last in quotes.
  Fix QuotingAll() const {
    const Span span = line_->Place(line_->arguments.front().start, line_->arguments.back().end);
    const std::string text = runtime::Remove(line_->raw.substr(span.start, span.end - span.start), '\'');
    return {index_, span, "'" + text + "'"};
  }

  void CheckSurplus(const std::vector<ArgumentFact>& facts) {
    const auto& given = line_->arguments;
    if (given.size() > kArguments) Add(FindingId::EighthArgument, given[kArguments]);
    const bool isText = Holds(kTextVerbs, line_->word);
    // A status text without a place for its value shows nothing of it.
    if ((line_->Is("DISPLAYSTATUS") || line_->Is("DISPLAY")) && given.size() > 1 && !given[1].text.empty() &&
        !Contains(given[0].text, "%1") && !Computed(given[0])) {
      Add(FindingId::DroppedText, line_->PlaceOf(given[1]), {given[1].text}, {QuotingAll()});
      return;
    }
    for (std::size_t i = 0; i < std::min(given.size(), kArguments); ++i) {
      const bool read = i < facts.size() && facts[i].kind != ArgumentKind::Unread;
      if (read || given[i].text.empty()) continue;
      if (isText) Add(FindingId::DroppedText, line_->PlaceOf(given[i]), {given[i].text}, {QuotingAll()});
      else Add(FindingId::UnreadArgument, given[i], {line_->word, std::to_string(i + 1), given[i].text});
      return;
    }
  }

  void CheckMissing(const std::vector<ArgumentFact>& facts) {
    for (std::size_t i = 0; i < facts.size(); ++i) {
      if (!line_->Text(i + 1).empty() || !IsNeeded(facts, i)) continue;
      Add(FindingId::MissingArgument, line_->Whole(), {line_->word, std::to_string(i + 1), ArgumentName(facts[i].name)});
      return;
    }
  }

  bool Given(const std::vector<ArgumentFact>& facts, ArgumentKind kind) const {
    for (std::size_t i = 0; i < facts.size(); ++i)
      if (facts[i].kind == kind && !line_->Text(i + 1).empty()) return true;
    return false;
  }

  bool IsNeeded(const std::vector<ArgumentFact>& facts, std::size_t i) const {
    if (facts[i].needed) return true;
    // A control is waited for by its id, too, and the empty one is no number.
    if (line_->Is("WAITFORWINDOW") && facts[i].kind == ArgumentKind::Id)
      return Given(facts, ArgumentKind::Class) || Given(facts, ArgumentKind::Control);
    // A frame is found by its id and a class.
    const bool framed = std::any_of(facts.begin(), facts.end(),
                                    [](const ArgumentFact& fact) { return fact.kind == ArgumentKind::FrameClass; });
    return framed && facts[i].kind == ArgumentKind::Class && Given(facts, ArgumentKind::FrameId) &&
           !Given(facts, ArgumentKind::FrameClass);
  }

  void CheckArgument(const ArgumentFact& fact, const Argument& argument) {
    if (argument.text.empty() || Computed(argument)) {
      if (fact.kind == ArgumentKind::Destination) CheckDestination(argument);
      else if (line_->Is("WAITFORFILE") && IsFolder(argument)) Add(FindingId::WaitFolder, argument, {argument.text});
      return;
    }
    const std::string name = ArgumentName(fact.name);
    switch (fact.kind) {
      case ArgumentKind::Number:
        if (!IsLong(argument.text)) Add(FindingId::NotANumber, argument, {argument.text, name});
        break;
      case ArgumentKind::Number16:
        if (!IsInteger(argument.text)) Add(FindingId::NotANumber, argument, {argument.text, name});
        break;
      case ArgumentKind::Decimal:
        if (!runtime::IsNumeric(argument.text)) Add(FindingId::NotANumber, argument, {argument.text, name});
        break;
      case ArgumentKind::Index:
        CheckIndex(argument, name);
        break;
      case ArgumentKind::EntryIndex:
        if (!runtime::IsNumeric(argument.text)) Add(FindingId::DoubtfulWord, argument, {argument.text, "0, 1, 2, ..."});
        break;
      case ArgumentKind::Id:
      case ArgumentKind::MenuId:
      case ArgumentKind::FrameId:
        if (!IsLong(argument.text)) Add(FindingId::NotAnId, argument, {argument.text, name});
        break;
      case ArgumentKind::CommandId:
        if (!IsLong(argument.text)) Add(FindingId::NotAnId, argument, {argument.text, name});
        else if (!IsInteger(argument.text)) Add(FindingId::IdTooLarge, argument, {argument.text});
        break;
      case ArgumentKind::Exact:
        if (const auto exact = Trim(argument.text); exact != "0" && exact != "1")
          Add(FindingId::DoubtfulWord, argument, {argument.text, "1, 0"});
        break;
      case ArgumentKind::Word:
        CheckWord(argument);
        break;
      case ArgumentKind::Window:
        if (ToUpper(argument.text) == kMainWindow && !(argument.text == kMainWindow && line_->word.ends_with("MENUCLICK")))
          Add(FindingId::MainWindowWord, argument, {argument.text});
        break;
      case ArgumentKind::Destination:
        CheckDestination(argument);
        break;
      case ArgumentKind::Pattern:
        CheckPattern(argument);
        break;
      case ArgumentKind::Keys:
        if (!runtime::EqualIgnoringCase(argument.text, kBlankKey) &&
            !Converts(argument.text, [](std::string_view keys) { return key_notation::Parse(keys); }))
          Add(FindingId::UnknownKeys, argument, {argument.text});
        break;
      default:
        break;
    }
  }

  void CheckIndex(const Argument& argument, const std::string& name) {
    if (!IsInteger(argument.text)) return Add(FindingId::NotANumber, argument, {argument.text, name});
    const auto index = runtime::ToInteger(argument.text);
    if (index < 0 || index > kLastDateField) Add(FindingId::IndexOutOfRange, argument, {argument.text});
  }

  void CheckWord(const Argument& argument) {
    const auto words = WordsOf(line_->word);
    if (Holds(words, ToUpper(argument.text))) return;
    std::string wanted;
    for (const std::string& word : words) wanted += (wanted.empty() ? "" : ", ") + word;
    Add(FailsOnOtherWords(line_->word) ? FindingId::WrongWord : FindingId::DoubtfulWord, argument,
        {argument.text, wanted});
  }

  // The value of a variable of the macro may end in a backslash; those of the program's own paths do not.
  void CheckDestination(const Argument& argument) {
    if (argument.text.empty() || argument.text.ends_with('\\')) return;
    if (macro_.DeclaredBefore(argument.text, index_) != nullptr) return;
    const std::string quote = argument.quoted ? "'" : "";
    Replace(FindingId::DestinationNotAFolder, argument, {argument.text}, quote + argument.text + "\\" + quote);
  }

  // A path whose last part has no extension, or is a path of the program's own, or what CREATEDIR has made.
  bool IsFolder(const Argument& argument) const {
    if (const Variable* variable = macro_.DeclaredBefore(argument.text, index_); variable != nullptr) {
      const auto& assigned = variable->assignments;
      return !assigned.empty() && std::all_of(assigned.begin(), assigned.end(), [this](std::size_t line) {
        return macro_.Lines()[line].Is("CREATEDIR");
      });
    }
    const auto backslash = argument.text.rfind('\\');
    const std::string last = backslash == std::string::npos ? argument.text : argument.text.substr(backslash + 1);
    if (last.find('$') != std::string::npos) return Holds(kFolderValues, last);
    return backslash != std::string::npos && last.find('.') == std::string::npos;
  }

  void CheckPattern(const Argument& argument) {
    const bool pattern = argument.text.find_first_of("*?") != std::string::npos;
    const bool all = Contains(argument.text, "*.*");
    if (line_->Is("WAITFORFILE")) {
      if (argument.text.ends_with(".*") || Contains(argument.text, "?"))
        Add(FindingId::WaitPattern, argument, {argument.text});
      else if (IsFolder(argument)) Add(FindingId::WaitFolder, argument, {argument.text});
    } else if (!line_->Is("COPYFILE") && pattern && !all) {
      Add(FindingId::DeletePattern, argument, {argument.text});
    }
  }

  // What holds for an argument of any verb.
  void CheckAnyArgument(const Argument& argument) {
    const bool first = &argument == &line_->arguments.front();
    const std::string trimmed = Trim(argument.text);
    if (!first && trimmed != argument.text && !trimmed.empty() && !argument.quoted &&
        !Holds(kTextVerbs, line_->word))
      Replace(FindingId::BlankInArgument, argument, {argument.text}, trimmed);
    if (argument.quoted) return;
    for (std::size_t at = argument.text.find('$'); at != std::string::npos; at = argument.text.find('$', at + 1)) {
      const std::string_view value = BuiltInAt(argument.text, at);
      if (!Holds(kNameValues, value)) continue;
      Replace(FindingId::UnquotedValue, argument, {std::string(value)}, "'" + argument.text + "'");
      return;
    }
  }

  const Macro& macro_;
  Findings& findings_;
  std::size_t index_ = 0;
  const Line* line_ = nullptr;
};

}  // namespace

void CheckArguments(const Macro& macro, Findings& findings) { ArgumentRules(macro, findings).Check(); }

}  // namespace makcheck
