// A logger library for the tests of the logger start-up. Notes every call in the file "logger.txt" of the
// working folder. FAKE_LOGGER_NULL makes a variant that returns no logger, FAKE_LOGGER_NO_EXPORT one without
// the export, FAKE_LOGGER_THROWS one whose logger throws.

#include <utilsDll/ILoggerInterface.h>

#include <QtCore/qglobal.h>

#include <fstream>

namespace
{

class FakeLogger : public ILoggerInterface
{
public:
    void init(const std::string& folder, const std::string& name, char level) override
    {
#if defined(FAKE_LOGGER_THROWS)
        throw 1;
#endif
        note() << "init " << folder << '|' << name << '|' << int(static_cast<unsigned char>(level)) << '\n';
    }
    void log(char level, const char* text) override
    {
        note() << level << ' ' << text << '\n';
    }

private:
    static std::ofstream note()
    {
        return std::ofstream("logger.txt", std::ios::app | std::ios::binary);
    }
};

} // namespace

#if defined(FAKE_LOGGER_NO_EXPORT)
#define loggerInstance somethingElse
#endif
extern "C" Q_DECL_EXPORT ILoggerInterface* loggerInstance();
extern "C" Q_DECL_EXPORT ILoggerInterface* loggerInstance()
{
#if defined(FAKE_LOGGER_NULL)
    return nullptr;
#else
    static FakeLogger logger;
    return &logger;
#endif
}
