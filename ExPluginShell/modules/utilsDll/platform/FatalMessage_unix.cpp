#include "platform/FatalMessage.h"

#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstring>

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace TOLVAN_NAMESPACE::Platform
{

namespace
{

enum class Dialect { None, KDialog, Zenity, XMessage };

/// The message program, in memory that exists before a message has to be shown.
struct MessageProgram {
    Dialect dialect = Dialect::None;
    char path[PATH_MAX] = {};
};

MessageProgram messageProgram;

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

/// Zero-terminated UTF-8 without heap memory; a text that does not fit is cut after a whole character.
class Utf8Text
{
public:
    explicit Utf8Text(const ushort* text)
    {
        while (*text != 0) {
            uint code = *text++;
            const bool isPair = (code & 0xFC00) == 0xD800 && (*text & 0xFC00) == 0xDC00;
            if (isPair) {
                code = 0x10000 + ((code - 0xD800) << 10) + (*text++ - 0xDC00u);
            }
            if (!append(code)) {
                break;
            }
        }
        m_bytes[m_size] = '\0';
    }

    char* data() { return m_bytes; }
    std::size_t size() const { return m_size; }

private:
    bool append(uint code)
    {
        constexpr std::size_t longest = 4;
        if (m_size + longest >= sizeof m_bytes) {
            return false;
        }
        const int followers = code < 0x80 ? 0 : code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
        constexpr uint leads[] = {0x00, 0xC0, 0xE0, 0xF0};
        m_bytes[m_size++] = static_cast<char>(leads[followers] | (code >> (6 * followers)));
        for (int follower = followers - 1; follower >= 0; --follower) {
            m_bytes[m_size++] = static_cast<char>(0x80 | ((code >> (6 * follower)) & 0x3F));
        }
        return true;
    }

    char m_bytes[4096];
    std::size_t m_size = 0;
};

void runToItsEnd(char* const arguments[])
{
    // The calling handler may have blocked signals, which the program would inherit.
    posix_spawnattr_t attributes;
    sigset_t none;
    sigemptyset(&none);
    if (posix_spawnattr_init(&attributes) != 0) {
        return;
    }
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK);
    pid_t child = 0;
    const int failure = posix_spawn(&child, arguments[0], nullptr, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    while (failure == 0 && waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
    }
}

void showInProgram(Utf8Text& text, Utf8Text& title)
{
    char titleOption[] = "--title";
    char plainTitleOption[] = "-title";
    char errorOption[] = "--error";
    char textOption[] = "--text";
    char noMarkup[] = "--no-markup";
    char center[] = "-center";
    char* const path = messageProgram.path;
    switch (messageProgram.dialect) {
    case Dialect::KDialog: {
        char* const arguments[] = {path, titleOption, title.data(), errorOption, text.data(), nullptr};
        runToItsEnd(arguments);
        break;
    }
    case Dialect::Zenity: {
        char* const arguments[] = {path,         errorOption, noMarkup,    titleOption,
                                   title.data(), textOption,  text.data(), nullptr};
        runToItsEnd(arguments);
        break;
    }
    case Dialect::XMessage: {
        char* const arguments[] = {path, center, plainTitleOption, title.data(), text.data(), nullptr};
        runToItsEnd(arguments);
        break;
    }
    case Dialect::None:
        break;
    }
}

/// Keeps the calling thread from being ended by a write into a pipe that is not read any more.
class PipeSignalBlock
{
public:
    PipeSignalBlock()
    {
        sigemptyset(&m_pipe);
        sigaddset(&m_pipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &m_pipe, &m_before);
    }
    ~PipeSignalBlock()
    {
        const timespec atOnce = {};
        while (sigismember(&m_before, SIGPIPE) == 0 && sigtimedwait(&m_pipe, nullptr, &atOnce) > 0) {
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    PipeSignalBlock(const PipeSignalBlock&) = delete;
    PipeSignalBlock& operator=(const PipeSignalBlock&) = delete;

private:
    sigset_t m_pipe;
    sigset_t m_before;
};

void writeToStandardError(const char* bytes, std::size_t size)
{
    const PipeSignalBlock block;
    while (size > 0) {
        const ssize_t written = write(STDERR_FILENO, bytes, size);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return;
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
}

} // namespace

void prepareFatalMessages()
{
    messageProgram.dialect = Dialect::None;
    if (!hasDisplay()) {
        return;
    }
    const struct {
        const char* name;
        Dialect dialect;
    } programs[] = {
        {"kdialog", Dialect::KDialog}, {"zenity", Dialect::Zenity}, {"xmessage", Dialect::XMessage}};
    for (const auto& program : programs) {
        const QByteArray path =
            QFile::encodeName(QStandardPaths::findExecutable(QLatin1String(program.name)));
        if (!path.isEmpty() && path.size() < int(sizeof messageProgram.path)) {
            std::memcpy(messageProgram.path, path.constData(), static_cast<std::size_t>(path.size()) + 1);
            messageProgram.dialect = program.dialect;
            return;
        }
    }
}

void showFatalMessage(const ushort* text, const ushort* title, quintptr)
{
    Utf8Text messageText(text);
    Utf8Text messageTitle(title);
    // Always and first: the program may refuse to show the box or wait for a display that does not answer.
    writeToStandardError(messageTitle.data(), messageTitle.size());
    writeToStandardError("\n", 1);
    writeToStandardError(messageText.data(), messageText.size());
    writeToStandardError("\n", 1);
    showInProgram(messageText, messageTitle);
}

} // namespace TOLVAN_NAMESPACE::Platform
