#pragma once

#include <string>

/// \file
/// The logger of the product's libraries.

/// Level letters of log lines, in rising order of importance.
namespace LogLevel
{
constexpr char Debug = 'D';       ///< start-up lines and other details
constexpr char Information = 'I'; ///< something a reader of the log should know
constexpr char Warning = 'W';     ///< the work goes on with a fallback
constexpr char Error = 'E';       ///< a failed operation or a failed assertion
} // namespace LogLevel

/// The logger that libraries of the product pass to each other.
///
/// The object crosses library boundaries, so only its virtual operations are used and the order of their
/// slots is part of the interface: destructor, init(), log(). Nothing may be added before or between them.
///
/// \par Ownership
/// The host or the logger library owns the object. UtilsDllTrelioFrame keeps a pointer to it until the
/// process ends and never deletes it.
///
/// \par Threads
/// log() is called from any thread without a lock: an implementation has to be thread-safe.
class ILoggerInterface
{
public:
    virtual ~ILoggerInterface() = default;

    /// Opens the logger's output.
    /// \param folder where the output goes, UTF-8
    /// \param name   name of the log without a suffix, UTF-8
    /// \param level  lowest level letter that is written; 0 if the setting names none
    virtual void init(const std::string& folder, const std::string& name, char level) = 0;

    /// Writes one line.
    /// \param level a letter of LogLevel
    /// \param text  zero-terminated, UTF-8, without time stamp, level or line end; valid only during the call
    virtual void log(char level, const char* text) = 0;
};
