#pragma once

#include <Foundation/Result.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

/// Runs programs and gives what they print on their standard output, as text without the white space around
/// it. Whether a program succeeds makes no difference: what it printed is the result. Programs read nothing,
/// share the standard error of this process, and live on if it ends first. Any thread; returns at once.
namespace velmar::CommandLineService {

/// Is called once, on a thread of the pool; not if DispatchQueue::shutdown comes before the program's end.
/// Fails with CompletionError, ProcessError (a launch) or, for a raw command that is too much for the
/// pattern of its words, RegularExpressionError. May be empty.
using Completion = std::function<void(Result<std::string>)>;

/// Of what a program prints the rest is dropped, with a warning in the log.
inline constexpr std::size_t maximumOutput = std::size_t{64} << 20;

/// Runs a line of programs with arguments: "|" leads the output of one into the next. A word stands between
/// blanks, and one with blanks in it between quotes (" or '), too. This is no shell: quotes don't protect a
/// "|", there are no variables, patterns or redirections, and what is quoted in part or not to its end is
/// left out, with a warning in the log. Nothing is started unless every program is there.
void execute(std::string rawCommand, Completion completion = nullptr);

/// Runs one program, each argument as it is. A command without a slash is looked up in the search path.
void execute(std::string command, std::vector<std::string> arguments, Completion completion);

/// Runs a script, which says itself by what it is to be run. The path is never searched for.
void executeScript(std::string path, std::vector<std::string> arguments, Completion completion);

/// The same for a script that may outlive this process: whoever reads its output may be gone, which it
/// doesn't notice. It is over when it has itself ended, whatever it leaves running. Its output may have
/// `maximumOutput` bytes and no more. `launched` is called on a thread of the pool when its process is there
/// and needs this one no more; not if it can't be launched.
void executeDetachedScript(std::string path, std::vector<std::string> arguments,
                           std::function<void()> launched, Completion completion);

} // namespace velmar::CommandLineService
