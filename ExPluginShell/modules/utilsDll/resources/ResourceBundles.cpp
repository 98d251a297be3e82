#include <QtCore/qglobal.h>

// The output of Qt's resource compiler calls these two functions; no header of Qt declares them.
Q_CORE_EXPORT bool qRegisterResourceData(int version, const unsigned char* tree, const unsigned char* names,
                                         const unsigned char* data);
Q_CORE_EXPORT bool qUnregisterResourceData(int version, const unsigned char* tree, const unsigned char* names,
                                           const unsigned char* data);

#define DECLARE_BUNDLE(symbol) extern const unsigned char symbol##Tree[], symbol##Names[], symbol##Data[]

extern "C" {
DECLARE_BUNDLE(utilsDllUserInterface);
DECLARE_BUNDLE(utilsDllCalibration);
DECLARE_BUNDLE(utilsDllTranslations);
DECLARE_BUNDLE(utilsDllAppIcon);
}

namespace
{

constexpr int formatVersion = 1;

/// Keeps one bundle registered from the moment the library is loaded until it is unloaded.
class Registration
{
public:
    Registration(const unsigned char* tree, const unsigned char* names, const unsigned char* data)
        : m_tree(tree)
        , m_names(names)
        , m_data(data)
    {
        qRegisterResourceData(formatVersion, m_tree, m_names, m_data);
    }
    ~Registration() { qUnregisterResourceData(formatVersion, m_tree, m_names, m_data); }
    Registration(const Registration&) = delete;
    Registration& operator=(const Registration&) = delete;

private:
    const unsigned char* const m_tree;
    const unsigned char* const m_names;
    const unsigned char* const m_data;
};

#define REGISTER_BUNDLE(symbol) const Registration symbol(symbol##Tree, symbol##Names, symbol##Data)

REGISTER_BUNDLE(utilsDllUserInterface);
REGISTER_BUNDLE(utilsDllCalibration);
REGISTER_BUNDLE(utilsDllTranslations);
REGISTER_BUNDLE(utilsDllAppIcon);

} // namespace
