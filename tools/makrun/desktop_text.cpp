#include "desktop_text.h"

#include "common/code_pages.h"
#include "common/tool.h"
#include "desktop_texts.h"
#include "runtime/text.h"

namespace makrun {
namespace {

using tools::Say;

struct Line {
  int number = 0;
  std::size_t indentation = 0;
  std::vector<Word> words;
};

class Reader {
 public:
  explicit Reader(std::string path) : path_(std::move(path)) {}

  std::vector<Statement> Read() {
    int number = 0;
    for (std::string line : runtime::Split(tools::ProgramText(tools::ReadFile(path_)), '\n')) {
      ++number;
      if (line.ends_with('\r')) line.pop_back();
      ReadLine(number, line);
    }
    std::size_t next = 0;
    if (!lines_.empty() && lines_[0].indentation > 0) RaiseMistake(path_, lines_[0].number, Say(say::kNotIndented));
    return Block(next, 0);
  }

 private:
  void ReadLine(int number, const std::string& line) {
    const auto start = line.find_first_not_of(' ');
    if (start == std::string::npos || line[start] == '#') return;
    if (line[start] == '\t') RaiseMistake(path_, number, Say(say::kNoTabs));
    lines_.push_back({number, start, Words(number, line, start)});
  }

  std::vector<Word> Words(int number, const std::string& line, std::size_t at) const {
    std::vector<Word> words;
    while ((at = line.find_first_not_of(' ', at)) != std::string::npos) {
      if (line[at] != '"') {
        const auto end = std::min(line.find(' ', at), line.size());
        words.push_back({line.substr(at, end - at), false});
        at = end;
        continue;
      }
      std::string text;
      for (++at;; ++at) {
        if (at >= line.size()) RaiseMistake(path_, number, Say(say::kClosingQuote));
        if (line[at] != '"') text += line[at];
        else if (line.substr(at, 2) == "\"\"") text += line[at++];
        else break;
      }
      words.push_back({text, true});
      if (++at < line.size() && line[at] != ' ') RaiseMistake(path_, number, Say(say::kBlankBehind));
    }
    return words;
  }

  // The statements from `next` on that are indented exactly so far.
  std::vector<Statement> Block(std::size_t& next, std::size_t indentation) const {
    std::vector<Statement> statements;
    while (next < lines_.size() && lines_[next].indentation >= indentation) {
      const Line& line = lines_[next];
      if (line.indentation > indentation) RaiseMistake(path_, line.number, Say(say::kIndentationAbove));
      statements.push_back({line.number, line.words, {}});
      ++next;
      if (next < lines_.size() && lines_[next].indentation > indentation)
        statements.back().inner = Block(next, lines_[next].indentation);
    }
    return statements;
  }

  std::string path_;
  std::vector<Line> lines_;
};

}  // namespace

std::vector<Statement> ReadStatements(const std::string& path) { return Reader(path).Read(); }

void RaiseMistake(const std::string& path, int line, const std::string& expected) {
  throw tools::FileError{path + ":" + std::to_string(line) + ": " + Say(say::kExpected, {expected})};
}

}  // namespace makrun
