// The ways that a run can take through a macro. Each line is reached in one or more states: with a condition open, with
// a loop open. A jump takes place only where the condition's side is live, so that behind it no side is skipped: it
// counts as leaving the condition. The loop stays open over a jump, but a "DO" behind it may begin another one.
#include <algorithm>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>

#include "engine/line_form.h"
#include "nearest.h"
#include "rules.h"
#include "runtime/text.h"

namespace makcheck {
namespace {

using basMain::LineForm;

enum class Condition { None, If, Else };
enum class Loop { None, Open, LeftByJump };

struct State {
  Condition condition = Condition::None;
  Loop loop = Loop::None;
};

// A set of states as bits.
using States = std::uint16_t;
constexpr int kLoops = 3;
constexpr int kStates = 9;

int NumberOf(State state) { return static_cast<int>(state.condition) * kLoops + static_cast<int>(state.loop); }
States Only(State state) { return static_cast<States>(1 << NumberOf(state)); }
State StateOf(int number) { return {static_cast<Condition>(number / kLoops), static_cast<Loop>(number % kLoops)}; }

template <class Test>
bool Any(States states, Test test) {
  for (int i = 0; i < kStates; ++i)
    if ((states & (1 << i)) != 0 && test(StateOf(i))) return true;
  return false;
}
template <class Test>
bool All(States states, Test test) {
  return !Any(states, [&](State state) { return !test(state); });
}

bool InCondition(State state) { return state.condition != Condition::None; }

constexpr std::size_t kSlips = 2;  // letters that are wrong in a word that is still plain

// A misspelled end or beginning of a block is told by itself; what belongs to it is not told again.
bool IsMisspelled(const Line& line, std::string_view beginning) {
  return line.verb == nullptr && !line.assignment && line.word.starts_with(beginning);
}
bool BeginsCondition(const Line& line) { return IsCondition(line) || IsMisspelled(line, "IF"); }
bool EndsCondition(const Line& line) {
  return line.Is("ENDIF") || line.Is("END IF") || (IsMisspelled(line, "END") && Distance(line.word, "END IF", kSlips) <= kSlips);
}
bool BeginsLoop(const Line& line) { return line.Is("DO") || IsMisspelled(line, "DO "); }
bool EndsLoop(const Line& line) { return IsLoopEnd(line) || IsMisspelled(line, "LOOP"); }
bool IsStop(const Line& line) { return line.Is("STOP") || line.Is("HOLD"); }
bool IsWait(const Line& line) { return line.verb != nullptr && line.word.starts_with("WAITFOR"); }

class Flow {
 public:
  Flow(const Macro& macro, Findings& findings)
      : macro_(macro), findings_(findings), reached_(macro.Lines().size() + 1, 0) {}

  void Check() {
    Follow();
    std::size_t conditionLine = 0;
    std::size_t loopLine = 0;
    bool dead = false;
    for (index_ = 0; index_ < macro_.Lines().size(); ++index_) {
      const Line& line = macro_.Lines()[index_];
      if (line.form != LineForm::Statement) continue;
      const States states = reached_[index_];
      if (states == 0) {
        if (!dead) Add(FindingId::DeadLine, line.Whole());
        dead = true;
        continue;
      }
      dead = false;
      CheckBlocks(line, states, conditionLine, loopLine);
      if (BeginsCondition(line)) conditionLine = index_;
      if (BeginsLoop(line)) loopLine = index_;
    }
    CheckPartners();
    CheckBefore();
  }

 private:
  void Add(FindingId id, Span span, std::vector<std::string> values = {}) {
    findings_.push_back({id, index_, span, std::move(values), {}});
  }

  // Where a jump goes; the number of lines where that is not known or not there.
  std::size_t TargetOf(std::size_t index) const {
    const Line& line = macro_.Lines()[index];
    const std::size_t none = macro_.Lines().size();
    if (line.arguments.empty() || IsComputed(macro_, index, line.arguments[0])) return none;
    const auto* lines = macro_.FindMark(line.Text(1));
    if (lines == nullptr) return none;
    return lines->front() == 0 ? index + 1 : lines->front();  // a mark on the first line is no jump at all
  }

  void Follow() {
    Reach(0, Only({}));
    while (!waiting_.empty()) {
      const std::size_t index = waiting_.front();
      waiting_.pop_front();
      if (index == macro_.Lines().size()) continue;
      for (int i = 0; i < kStates; ++i)
        if ((reached_[index] & (1 << i)) != 0) Step(index, StateOf(i));
    }
  }

  void Reach(std::size_t index, States states) {
    const auto more = static_cast<States>(reached_[index] | states);
    if (more == reached_[index]) return;
    reached_[index] = more;
    waiting_.push_back(index);
  }

  void ReachMarks(States states) {
    if ((marksReached_ & states) == states) return;
    marksReached_ |= states;
    for (const auto& [key, lines] : macro_.Marks()) Reach(lines.front(), states);
  }

  // From a line in one state to the lines that can follow it.
  void Step(std::size_t index, State state) {
    const Line& line = macro_.Lines()[index];
    const bool maySkip = InCondition(state);
    const bool isJump = line.Is("GOTO") && !line.assignment;
    if (isJump) {
      const Loop loop = state.loop == Loop::None ? Loop::None : Loop::LeftByJump;
      const std::size_t target = TargetOf(index);
      if (target < macro_.Lines().size()) Reach(target, Only({Condition::None, loop}));
      // A mark that only a run knows can be any; then no mark is dead.
      else if (!line.arguments.empty() && IsComputed(macro_, index, line.arguments[0]))
        ReachMarks(Only({Condition::None, loop}));
      if (target == macro_.Lines().size()) Reach(index + 1, Only(state));  // it fails, and the run may be resumed
    }
    if (!maySkip && ((isJump && TargetOf(index) < macro_.Lines().size()) || IsStop(line))) return;
    if (BeginsCondition(line)) state.condition = Condition::If;
    else if (line.Is("ELSE")) state.condition = state.condition == Condition::Else ? Condition::If : Condition::Else;
    else if (EndsCondition(line)) state.condition = Condition::None;
    if (BeginsLoop(line) || EndsLoop(line)) {
      if (maySkip) Reach(index + 1, Only(state));
      state.loop = BeginsLoop(line) ? Loop::Open : Loop::None;
    }
    Reach(index + 1, Only(state));
  }

  void CheckBlocks(const Line& line, States states, std::size_t conditionLine, std::size_t loopLine) {
    const auto sinceCondition = std::to_string(conditionLine + 1);
    const auto sinceLoop = std::to_string(loopLine + 1);
    if (IsCondition(line) && Any(states, InCondition))
      Add(FindingId::NestedCondition, line.PlaceOfWord(), {line.word, sinceCondition});
    if (line.Is("ELSE")) {
      if (!Any(states, InCondition)) Add(FindingId::ElseWithoutIf, line.PlaceOfWord());
      else if (All(states, [](State state) { return state.condition == Condition::Else; }))
        Add(FindingId::SecondElse, line.PlaceOfWord(), {sinceCondition});
    }
    if (EndsCondition(line) && !Any(states, InCondition) && !EndsConditionOfAJump())
      Add(FindingId::EndIfWithoutIf, line.PlaceOfWord());
    if (BeginsLoop(line) && Any(states, [](State state) { return state.loop == Loop::Open; }))
      Add(FindingId::NestedLoop, line.PlaceOfWord(), {sinceLoop});
    if (IsLoopEnd(line) && conditionLine > loopLine && All(states, InCondition))
      Add(FindingId::LoopEndInCondition, line.PlaceOfWord(), {line.word, sinceCondition});
    if (IsLoopEnd(line) && All(states, [](State state) { return state.loop == Loop::None; }))
      Add(FindingId::LoopEndWithoutDo, line.PlaceOfWord(), {line.word});
  }

  // An "ENDIF" that only a jump out of its own condition reaches.
  bool EndsConditionOfAJump() const {
    for (std::size_t i = index_; i-- > 0;) {
      const Line& line = macro_.Lines()[i];
      if (EndsCondition(line)) return false;
      if (BeginsCondition(line)) return true;
    }
    return false;
  }

  // Each "IF" must come to an "ENDIF", and each "DO" to a loop end: found from behind, so that each line is looked at
  // once. One that comes to another "IF" or "DO" first is told there.
  void CheckPartners() {
    const std::size_t count = macro_.Lines().size();
    bool endIfAhead = false;
    bool loopEndAhead = false;
    for (index_ = count; index_-- > 0;) {
      const Line& line = macro_.Lines()[index_];
      if (line.form != LineForm::Statement || reached_[index_] == 0) continue;
      if (EndsCondition(line)) endIfAhead = true;
      if (EndsLoop(line)) loopEndAhead = true;
      if (line.Is("GOTO") && !line.assignment) {
        // What is behind the target is ahead, too; of a jump back it was not looked at yet.
        endIfAhead = endIfAhead || JumpsBack(index_);
        loopEndAhead = loopEndAhead || JumpsBack(index_);
      }
      if (BeginsCondition(line)) {
        if (!endIfAhead && line.verb != nullptr) Add(FindingId::IfWithoutEndIf, line.PlaceOfWord(), {line.word});
      }
      if (BeginsLoop(line)) {
        if (!loopEndAhead) Add(FindingId::DoWithoutLoopEnd, line.PlaceOfWord());
      }
    }
  }

  bool JumpsBack(std::size_t index) const { return TargetOf(index) < index; }

  // What a line needs to have happened before it.
  void CheckBefore() {
    bool focus = false;
    bool status = false;
    bool year = false;
    bool checkYear = false;
    bool nextYear = false;
    for (index_ = 0; index_ < macro_.Lines().size(); ++index_) {
      const Line& line = macro_.Lines()[index_];
      if (line.form != LineForm::Statement) continue;
      year = year || runtime::Contains(line.command, "$WJ");
      checkYear = checkYear || line.Is("IF VJ") || line.Is("VERIFYLIST");
      nextYear = nextYear || line.Is("NEXT VJ");
      focus = focus || line.Is("SETFOCUS") || line.Is("SENDKEY2") || line.Is("SENDKEY2WINDOW");
      status = status || line.Is("DISPLAYSTATUS") || line.Is("DISPLAY");
      const bool needsFocus = line.Is("SELECTALL") || line.Is("IF SELECTALL") || line.Is("SENDKEY");
      if (needsFocus && !focus) Add(FindingId::NoFocus, line.PlaceOfWord(), {line.word});
      if (IsWait(line) && !status) Add(FindingId::SilentWait, line.PlaceOfWord(), {line.word});
      // Without $WJ it walks the rows of a list alone.
      if (line.Is("LOOP UNTIL COUNT") && !(checkYear && nextYear)) {
        std::string missing;
        if (!checkYear) missing += ", IF VJ";
        if (!nextYear) missing += ", NEXT VJ";
        if (!year) missing += ", $WJ";
        Add(FindingId::EndlessCount, line.PlaceOfWord(), {missing.substr(2)});
      }
    }
  }

  const Macro& macro_;
  Findings& findings_;
  std::vector<States> reached_;
  States marksReached_ = 0;  // the states in which all of them are
  std::deque<std::size_t> waiting_;
  std::size_t index_ = 0;
};

}  // namespace

void CheckFlow(const Macro& macro, Findings& findings) { Flow(macro, findings).Check(); }

}  // namespace makcheck
