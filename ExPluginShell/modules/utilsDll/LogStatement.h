#pragma once

#include "ILoggerInterface.h"
#include "utilsdll_global.h"

#include <QByteArray>
#include <QString>

#include <type_traits>

/// \file
/// Log lines of modules, in the form of the library's own.

/// Logs one line through the logger of the library: the qualified name of the current function, ": ", and the
/// pieces. Without a logger the statement costs one call and a branch, and the pieces are not evaluated.
///
/// \code
/// if (!file.open(QIODevice::ReadOnly)) {
///     TOLVAN_LOG(LogLevel::Warning) << "cannot read " << file.fileName() << ", error " << int(file.error());
/// }
/// \endcode
///
/// May be used in any thread.
/// \param level a letter of LogLevel
#define TOLVAN_LOG(level)                                                                                    \
    if (!TOLVAN_NAMESPACE::CLogStatement::isEnabled()) {                                                     \
    } else                                                                                                   \
        TOLVAN_NAMESPACE::CLogStatement(level, Q_FUNC_INFO)

namespace TOLVAN_NAMESPACE
{

/// One log line under construction; the destructor hands it to the logger. Use TOLVAN_LOG instead of this class.
class UTILSDLL_EXPORT CLogStatement
{
public:
    /// \param level     a letter of LogLevel
    /// \param signature the function as the compiler describes it (Q_FUNC_INFO); the line begins with its
    ///                  qualified name, without types and parameters
    CLogStatement(char level, const char* signature);
    ~CLogStatement();

    /// Returns whether a logger has been installed with initLoggerForUtilsDll().
    static bool isEnabled();

    /// Appends a text, as UTF-8.
    CLogStatement& operator<<(const QString& text);
    /// Appends a text that is UTF-8; nothing if it is null.
    CLogStatement& operator<<(const char* text);
    /// Appends a text that is UTF-8.
    CLogStatement& operator<<(const QByteArray& text);
    /// Appends "true" or "false".
    CLogStatement& operator<<(bool value);
    /// Appends a number in the shortest form that reads back as the same value.
    CLogStatement& operator<<(double number);
    /// Appends a number.
    template <class Integer, std::enable_if_t<std::is_integral<Integer>::value, int> = 0>
    CLogStatement& operator<<(Integer number)
    {
        return *this << QByteArray::number(number);
    }

private:
    Q_DISABLE_COPY(CLogStatement)

    const char m_level;
    QByteArray m_text;
};

/// Sends the messages of qDebug(), qInfo(), qWarning(), qCritical() and of Qt itself to the library's logger, at
/// the levels D, I, W and E, and after that to the handler that was installed before. The function part of a
/// line is "Qt", or "Qt " and the name of the logging category. Messages that a log line itself causes go to the
/// earlier handler only.
///
/// A second call has no effect. Call removeQtMessageLog() before the library is unloaded.
UTILSDLL_EXPORT void installQtMessageLog();

/// Installs the earlier handler again. Has no effect without installQtMessageLog(), or if another handler has been
/// installed since.
UTILSDLL_EXPORT void removeQtMessageLog();

} // namespace TOLVAN_NAMESPACE
