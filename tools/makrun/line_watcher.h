// Follows the run line by line and prints on standard error: the trace where it is wanted, and a report of each line
// that failed, that was cancelled while it waited, or at which the rehearsal was given up. A report is "FILE:LINE:
// VERB: text", and indented below it the line as it stands, as it was carried out, and why, as far as that is known.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "line_visit.h"
#include "options.h"

namespace makrun {

// Thrown out of the run when more lines have been visited than the limit allows.
struct LineLimitPassed {};

class LineWatcher {
 public:
  // The options must outlive this object, of which there is one at a time.
  explicit LineWatcher(const Options& options);
  ~LineWatcher();
  LineWatcher(const LineWatcher&) = delete;
  LineWatcher& operator=(const LineWatcher&) = delete;

  // The run is given up at the present line, for this reason in UTF-8.
  void GiveUp(const std::string& why) const;

  bool VisitedAny() const { return visited_ > 0; }

 private:
  void Visited(std::int32_t index, const std::string& line);
  void Parsed(const std::string& verb, const basMain::Arguments& a, bool passedOver);
  void Done();
  void CheckLimit() const;
  void Trace() const;
  void Report(const std::string& text, const std::string& why) const;

  const Options& options_;
  std::int64_t visited_ = 0;
  LineVisit visit_;
  std::string errorBefore_;  // LastError in front of the line
  // The last loop end without a DO, which goes back to the first line.
  std::optional<LineVisit> loopWithoutDo_;
};

}  // namespace makrun
