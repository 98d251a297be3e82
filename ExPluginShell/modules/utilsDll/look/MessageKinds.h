#pragma once

#include <QIcon>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// What a message box is for. Kinds with the same picture have icons of their own.
enum class MessageKind { Information, Warning, Error, Question, SaveQuestion };

/// Returns the icon of a kind. A drawing is read and rendered once for all boxes.
QIcon messageIcon(MessageKind kind);

/// Returns the translated name of the kind that has this icon, for assistive technology.
/// \return an empty text for any other icon, also for a null one
QString messageKindName(const QIcon& icon);

} // namespace TOLVAN_NAMESPACE
