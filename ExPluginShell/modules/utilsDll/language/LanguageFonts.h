#pragma once

#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Makes the fonts of a language the substitutes of the product's fonts, for the characters that these do not
/// have. Chinese and Japanese share code points with different glyphs, so the language decides which font is
/// asked first. Replaces the substitutes of the previous call and keeps those of the host. Does nothing
/// without a QApplication. Internal, not installed.
/// \param abbreviation as in the language table, "ja" or "zh-CN"; other languages need no substitutes
void setFontsOfLanguage(const QString& abbreviation);

} // namespace TOLVAN_NAMESPACE
