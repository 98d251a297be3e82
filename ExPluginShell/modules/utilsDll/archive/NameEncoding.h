#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

namespace TOLVAN_NAMESPACE
{

/// Text of the name of an archive entry that is not marked as UTF-8. Internal.
///
/// The first of these rules that fits decides:
/// 1. the extra field with a UTF-8 name, if it was made for these bytes;
/// 2. valid UTF-8;
/// 3. on Windows, the code page of the user's system;
/// 4. Japanese (Shift-JIS), Chinese (GBK) or Cyrillic (code page 866), if that is the user's language and the bytes
///    are plausible text in it;
/// 5. the same three for any user, in the order GBK, code page 866, Shift-JIS;
/// 6. code page 437, which the zip format prescribes.
///
/// Bytes are plausible
/// - in GBK if all that are not ASCII are pairs of the common characters (GB 2312);
/// - in code page 866 if all that are not ASCII form whole words of two or more letters, with capitals at the
///   beginning or throughout;
/// - in Shift-JIS if all that are not ASCII are pairs for kana, kanji and their punctuation, and no single one
///   stands beside a Latin letter, as in "K\xF6ln".
///
/// \param raw      the bytes of the name
/// \param extra    the entry's extra fields
/// \param language the user's
QString decodeUnmarkedName(const QByteArray& raw, const QByteArray& extra,
                           QLocale::Language language = QLocale::system().language());

} // namespace TOLVAN_NAMESPACE
