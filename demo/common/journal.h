// What a stand-in has received and done, one line each, for tests to read. Without a file named it does nothing.
#pragma once

#include <string>

namespace standin {

void OpenJournal(const std::string& path);
void Journal(const std::string& line);

}  // namespace standin
