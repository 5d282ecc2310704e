// Services of the host process: its root directory, its current directory
// (the host's path manager keeps its own, apart from the process's), fresh
// temporary names and loading of shared libraries. The binding points these
// at the host once it is loaded; until then they answer from the process.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace host {

// The host's installation root; empty until the binding sets it.
std::u16string QuorixRoot();
void setQuorixRoot(std::u16string root);

// QuorixRoot() + "/toolbox".
std::u16string getToolboxPrefix();

// The host's current directory. Without a provider, the process's working
// directory in generic form.
std::u16string currentDirectory();
using CurrentDirectoryProvider = std::function<std::u16string()>;
// An empty provider restores the default.
void setCurrentDirectoryProvider(CurrentDirectoryProvider provider);

// Writes a fresh path under the system temp directory into `buffer` as
// UTF-8, NUL-terminated and cut to `size`. Nothing is created there.
void utTmpnam(char* buffer, std::size_t size);

// Loads a shared library (and so holds a reference to it). `status` is 0 on
// success. The handle is never closed: the library stays for the process.
void* utLoadLibrary(char const* fileName, int& status);

}  // namespace host
