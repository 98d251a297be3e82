#include "LogStatement.h"

#include "frame/Logging.h"

#include <QLocale>

#include <atomic>

namespace TOLVAN_NAMESPACE
{

namespace
{

/// Where the first parenthesis of the parameters stands; Clang writes anonymous namespaces in parentheses, and the
/// call operator has some in its name.
int endOfName(const QByteArray& signature)
{
    const QByteArray anonymous("(anonymous namespace)");
    int end = signature.indexOf('(');
    while (end >= 0 && signature.mid(end, anonymous.size()) == anonymous) {
        end = signature.indexOf('(', end + anonymous.size());
    }
    const bool callOperator = end > 0 && signature.left(end).endsWith("operator");
    end = callOperator ? end + 2 : end;
    return end < 0 ? signature.size() : end;
}

/// The last blank before \a end that is not inside brackets; -1 without one.
int lastBlank(const QByteArray& signature, int end)
{
    int depth = 0;
    for (int place = end - 1; place >= 0; --place) {
        const char letter = signature.at(place);
        depth += (letter == '>' || letter == ')' || letter == '}') -
                 (letter == '<' || letter == '(' || letter == '{');
        if (letter == ' ' && depth == 0) {
            return place;
        }
    }
    return -1;
}

/// "A::B::f" out of "const int* A::B::f(const C&) const".
QByteArray qualifiedName(const char* function)
{
    const QByteArray signature(function);
    const int end = endOfName(signature);
    int start = lastBlank(signature, end);
    if (signature.left(qMax(start, 0)).endsWith("operator")) { // a conversion: its name has a blank
        start = lastBlank(signature, start);
    }
    QByteArray name = signature.mid(start + 1, end - start - 1);
    while (name.startsWith('*') || name.startsWith('&')) {
        name.remove(0, 1);
    }
    return name;
}

thread_local bool insideHandler = false;
std::atomic<bool> installed{false};
std::atomic<QtMessageHandler> earlierHandler{nullptr};

char levelOf(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return LogLevel::Debug;
    case QtInfoMsg:
        return LogLevel::Information;
    case QtWarningMsg:
        return LogLevel::Warning;
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return LogLevel::Error;
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    // The library has logged its own failed assertions before it writes them to Qt's debug stream.
    const bool logged = type == QtDebugMsg && message.startsWith(QLatin1String("ASSERT"));
    if (!insideHandler && !logged) {
        insideHandler = true;
        const bool named = context.category && qstrcmp(context.category, "default") != 0;
        const QByteArray source = named ? QByteArray("Qt ") + context.category : QByteArray("Qt");
        UTILSDLL_LOG(levelOf(type), source.constData()) << message;
        insideHandler = false;
    }
    if (const QtMessageHandler handler = earlierHandler.load()) {
        handler(type, context, message);
    }
}

} // namespace

CLogStatement::CLogStatement(char level, const char* signature)
    : m_level(level)
    , m_text(qualifiedName(signature) + ": ")
{
}

CLogStatement::~CLogStatement()
{
    if (ILoggerInterface* const logger = Logging::logger()) {
        // A logger that throws must not end the program in the middle of a diagnostic.
        try {
            logger->log(m_level, m_text.constData());
        } catch (...) {
        }
    }
}

bool CLogStatement::isEnabled()
{
    return Logging::logger() != nullptr;
}

CLogStatement& CLogStatement::operator<<(const QString& text)
{
    return *this << text.toUtf8();
}

CLogStatement& CLogStatement::operator<<(const char* text)
{
    m_text.append(text);
    return *this;
}

CLogStatement& CLogStatement::operator<<(const QByteArray& text)
{
    m_text.append(text);
    return *this;
}

CLogStatement& CLogStatement::operator<<(bool value)
{
    return *this << (value ? "true" : "false");
}

CLogStatement& CLogStatement::operator<<(double number)
{
    return *this << QByteArray::number(number, 'g', QLocale::FloatingPointShortest);
}

void installQtMessageLog()
{
    if (!installed.exchange(true)) {
        earlierHandler = qInstallMessageHandler(handleMessage);
    }
}

void removeQtMessageLog()
{
    if (!installed.exchange(false)) {
        return;
    }
    const QtMessageHandler current = qInstallMessageHandler(earlierHandler.load());
    if (current != handleMessage) {
        qInstallMessageHandler(current);
        installed = true;
    }
}

} // namespace TOLVAN_NAMESPACE
