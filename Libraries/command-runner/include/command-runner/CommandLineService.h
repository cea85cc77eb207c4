#pragma once

#include <Foundation/Result.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Runs programs and returns their standard output as text, without surrounding white space. Exit statuses
/// are ignored. Programs have no input, share this process's standard error and keep running if this process
/// ends first. Thread-safe. The functions return at once.
namespace velmar::CommandLineService {

/// Called once, on a pool thread, unless DispatchQueue::shutdown comes before the program's end. Errors are
/// CompletionError, ProcessError for a failed launch, and RegularExpressionError for a raw command that
/// exceeds the limits of the word pattern. May be empty.
using Completion = std::function<void(Result<std::string>)>;

/// Maximum output in bytes. The rest is dropped with a warning in the log.
inline constexpr std::size_t maximumOutput = std::size_t{64} << 20;

/// Runs a pipeline of programs, separated by "|". Words are separated by blanks; quotes (" or ') enclose
/// words with blanks. This is not a shell: quotes don't protect a "|", and there are no variables, patterns
/// or redirections. Partly quoted words and text after an open quote are omitted, with a warning in the log.
/// No program is started unless all exist.
void execute(std::string rawCommand, Completion completion = nullptr);

/// Runs one program with these arguments. A command without a slash is looked up in PATH.
void execute(std::string command, std::vector<std::string> arguments, Completion completion);

/// Runs a script through the interpreter of its `#!` line. PATH is not searched.
void executeScript(std::string path, std::vector<std::string> arguments, Completion completion);

/// Runs a script that may outlive this process. Its output goes to a file of at most `maximumOutput` bytes,
/// so it is not affected if this process ends. The execution ends with the script itself, even if its
/// children still run. `launched` is called on a pool thread once the script no longer depends on this
/// process; it is not called if the launch fails.
void executeDetachedScript(std::string path, std::vector<std::string> arguments,
                           std::function<void()> launched, Completion completion);

} // namespace velmar::CommandLineService
