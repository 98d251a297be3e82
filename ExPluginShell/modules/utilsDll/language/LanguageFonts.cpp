#include "LanguageFonts.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

#include <algorithm>

namespace TOLVAN_NAMESPACE
{

namespace
{

QStringList currentFonts;

/// The fonts of Windows, macOS and Linux, in this order.
QStringList fontsOf(const QString& abbreviation)
{
    if (abbreviation == QLatin1String("ja")) {
        return {QStringLiteral("Yu Gothic UI"), QStringLiteral("Hiragino Sans"),
                QStringLiteral("Noto Sans CJK JP"), QStringLiteral("Noto Sans JP")};
    }
    if (abbreviation == QLatin1String("zh-CN")) {
        return {QStringLiteral("Microsoft YaHei UI"), QStringLiteral("PingFang SC"),
                QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Noto Sans SC")};
    }
    return {};
}

/// Every list of fonts in the style sheets names one of the first four.
QStringList fontsOfProduct()
{
    return {QStringLiteral("Open Sans"), QStringLiteral("Roboto"), QStringLiteral("Quicksand"),
            QStringLiteral("Cantarell"), QApplication::font().family()};
}

void replaceSubstitutes(const QString& family, const QStringList& old, const QStringList& fonts)
{
    QStringList substitutes = QFont::substitutes(family);
    substitutes.erase(
        std::remove_if(substitutes.begin(), substitutes.end(),
                       [&](const QString& name) { return old.contains(name, Qt::CaseInsensitive); }),
        substitutes.end());
    QFont::removeSubstitutions(family);
    QFont::insertSubstitutions(family, substitutes + fonts);
}

/// Qt keeps the fallbacks of each font that it has used. The style hint is a part of the font that changes
/// nothing where the family exists: with a hint for each language, all widgets get new fonts.
void renewFontsOfWidgets(const QString& abbreviation)
{
    static const QFont::StyleHint hintOfHost = QApplication::font().styleHint();
    QFont font = QApplication::font();
    font.setStyleHint(abbreviation == QLatin1String("ja")      ? QFont::SansSerif
                      : abbreviation == QLatin1String("zh-CN") ? QFont::System
                                                               : hintOfHost,
                      font.styleStrategy());
    QApplication::setFont(font);
}

/// Renews fonts that are used outside widgets: Qt forgets fallbacks when an application font is removed.
void forgetCachedFallbacks()
{
    const QFileInfoList files = QDir(QStringLiteral(":/fonts")).entryInfoList(QDir::Files);
    if (!files.isEmpty()) {
        QFontDatabase::removeApplicationFont(QFontDatabase::addApplicationFont(files.first().filePath()));
    }
}

} // namespace

void setFontsOfLanguage(const QString& abbreviation)
{
    const QStringList fonts = fontsOf(abbreviation);
    if (fonts == currentFonts || !qobject_cast<QApplication*>(QCoreApplication::instance())) {
        return;
    }
    const QStringList families = fontsOfProduct();
    for (const QString& family : families) {
        replaceSubstitutes(family, currentFonts, fonts);
    }
    currentFonts = fonts;
    forgetCachedFallbacks();
    renewFontsOfWidgets(abbreviation);
}

} // namespace TOLVAN_NAMESPACE
