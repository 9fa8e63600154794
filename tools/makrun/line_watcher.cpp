#include "line_watcher.h"

#include <cstdio>

#include "common/tool.h"
#include "engine/line_watch.h"
#include "engine/state.h"
#include "explain.h"
#include "runtime/code_page.h"
#include "runtime/text.h"
#include "texts.h"

namespace makrun {

using basMain::lineWatch;
using basMain::run;
using tools::Say;

LineWatcher::LineWatcher(const Options& options) : options_(options) {
  lineWatch.Visited = [this](std::int32_t index, const std::string& line) { Visited(index, line); };
  lineWatch.Parsed = [this](const std::string& verb, const basMain::Arguments& a, bool passedOver) {
    Parsed(verb, a, passedOver);
  };
  lineWatch.Done = [this](std::int32_t) { Done(); };
}

LineWatcher::~LineWatcher() { lineWatch = {}; }

void LineWatcher::Visited(std::int32_t index, const std::string& line) {
  ++visited_;
  visit_ = {.index = index, .line = line};
  errorBefore_ = run.LastError;
}

void LineWatcher::Parsed(const std::string& verb, const basMain::Arguments& a, bool passedOver) {
  visit_.parsed = true;
  visit_.verb = verb;
  visit_.arguments = a;
  visit_.passedOver = passedOver;
  CheckLimit();
  Trace();
}

void LineWatcher::Done() {
  if (!visit_.parsed) {
    CheckLimit();
    Trace();
  }
  // A DO on the first line leaves the same mark as none.
  if (visit_.verb.starts_with("LOOP ") && run.LoopBack && run.LoopStart == 0 &&
      runtime::ToUpper(run.MakroLines.front()) != "DO")
    loopWithoutDo_ = visit_;
  const bool isStop = visit_.verb == "STOP" || visit_.verb == "HOLD";
  if (run.StopRun && (!isStop || visit_.passedOver)) {
    Report(Say(say::kCancelled), Explain(visit_));
  } else if (run.RunFailed) {
    // The line has not failed with a text of its own where an older one still stands.
    Report(run.LastError == errorBefore_ ? "" : runtime::ToUtf8(run.LastError), Explain(visit_));
  }
}

// Where the verb is known, so that it can be told.
void LineWatcher::CheckLimit() const {
  if (visited_ > options_.lineLimit) throw LineLimitPassed{};
}

void LineWatcher::Trace() const {
  if (!options_.trace) return;
  const std::string mark = visit_.passedOver ? Say(say::kPassedOver) + " " : "";
  tools::Write(stderr, NumberOf(visit_) + ": " + mark + CarriedOut(visit_) + "\n");
}

void LineWatcher::GiveUp(const std::string& why) const {
  const std::string cause = loopWithoutDo_ ? Say(say::kNoDo, {NumberOf(*loopWithoutDo_)}) : Explain(visit_);
  Report(Say(say::kGivenUp, {why}), cause);
}

void LineWatcher::Report(const std::string& text, const std::string& why) const {
  std::string report = options_.macro + ":" + NumberOf(visit_) + ": ";
  if (visit_.parsed) report += runtime::ToUtf8(visit_.verb) + ": ";
  if (!text.empty()) report += text;
  else report += why.empty() ? Say(say::kNoText) : why;
  report += "\n  " + Say(say::kLine, {runtime::ToUtf8(visit_.line)});
  if (visit_.parsed) report += "\n  " + Say(say::kCarriedOut, {CarriedOut(visit_)});
  if (!text.empty() && !why.empty()) report += "\n  " + Say(say::kWhy, {why});
  tools::Write(stderr, report + "\n");
}

}  // namespace makrun
