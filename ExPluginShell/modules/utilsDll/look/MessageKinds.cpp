#include "look/MessageKinds.h"

#include <QCoreApplication>

#include <iterator>

namespace TOLVAN_NAMESPACE
{

namespace
{

struct Appearance {
    const char* icon;
    const char* name;
};

constexpr Appearance appearances[] = {
    {"://icons/messagebox/info_dark_icon.svg", QT_TRANSLATE_NOOP("CMessageBox", "Information")},
    {"://icons/messagebox/alert_dark_icon.svg", QT_TRANSLATE_NOOP("CMessageBox", "Warning")},
    {"://icons/messagebox/alert_dark_icon.svg", QT_TRANSLATE_NOOP("CMessageBox", "Error")},
    {"://icons/messagebox/question_mark_dark_icon.svg", QT_TRANSLATE_NOOP("CMessageBox", "Question")},
    {":/icons/messagebox/question_mark_dark_icon.svg", QT_TRANSLATE_NOOP("CMessageBox", "Question")},
};

/// The icons made so far. Main thread only.
QIcon& iconAt(std::size_t index)
{
    static QIcon icons[std::size(appearances)];
    return icons[index];
}

} // namespace

QIcon messageIcon(MessageKind kind)
{
    const auto index = static_cast<std::size_t>(kind);
    QIcon& icon = iconAt(index);
    if (icon.isNull()) {
        icon = QIcon(QString::fromLatin1(appearances[index].icon));
    }
    return icon;
}

QString messageKindName(const QIcon& icon)
{
    for (std::size_t i = 0; i < std::size(appearances); ++i) {
        if (!icon.isNull() && iconAt(i).cacheKey() == icon.cacheKey()) {
            return QCoreApplication::translate("CMessageBox", appearances[i].name);
        }
    }
    return {};
}

} // namespace TOLVAN_NAMESPACE
