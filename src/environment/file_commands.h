// The verbs for files and folders. What is not there is mostly no failure; what the system refuses goes to LastError
// and yields false.
#pragma once

#include <string>

namespace basMain {

// "DELETEFILE": deletes a file, or all files that fit an argument that holds "*.*". Any other pattern is the name of a
// file that is not there. Logs text 1046 (1045 for "*.*") and the argument, also when there was no such file; "*.*"
// without a file to delete is a fault.
bool DeleteFile(const std::string& file);

// "DELETEFOLDER": deletes a folder with all that it holds, read-only or not, and logs text 1057. A missing one is
// passed over without a log line. LastError also names the folder.
bool DeleteFolder(const std::string& folder);

// "COPYFILE": makes the destination as a folder and copies the source, which may be a pattern, over what is there. The
// destination must end in a backslash; without one, the folder just made is in the new file's way. Logs "CopyFile ".
// LastError is "Fehler ", the fault's number, " beim Kopieren: " and its description.
bool CopyFile(const std::string& source, const std::string& destination);

// "COPYFOLDER": merges the source into the destination, which is made where it is missing, and replaces files of the
// same name. Does nothing without a source folder. Logs both and, before it makes the destination, that.
bool CopyFolder(const std::string& source, const std::string& destination);

// "RENAMEPATH": deletes the destination folder, then moves the source folder there. A missing source costs the
// destination nonetheless. Logs both and, before it deletes the destination, that.
bool RenamePath(const std::string& source, const std::string& destination);

// "CREATEDIR": joins the pieces by backslashes, an empty one adding its backslash too, removes every dot of the whole
// path, makes it and yields it. Logs "CreateDir: " and the path. Empty after a fault.
std::string CreateDir(const std::string& piece1, const std::string& piece2, const std::string& piece3,
                      const std::string& piece4, const std::string& piece5);

// "WAITFORFILE": waits, without limit, until the file is there and has stopped growing. With an asterisk in the
// argument, for all files of its folder that have its extension, 100 at most. Shows each size as status text 1055; a
// file that is gone again is logged with text 1056. A stop ends the wait, and the result is true as well.
bool WaitForFile(const std::string& file);

}  // namespace basMain
