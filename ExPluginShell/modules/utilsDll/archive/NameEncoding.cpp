#include "NameEncoding.h"

#include "ContentStream.h"
#include "platform/CodePage.h"
#include "ZipDirectory.h"

#include <QtEndian>
#include <QTextCodec>

#include <algorithm>
#include <array>

namespace TOLVAN_NAMESPACE
{

namespace
{

constexpr quint16 unicodePathField = 0x7075;

/// The upper half of code page 437, which the zip format takes for unmarked names.
constexpr char16_t upperHalf[] = u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
                                 u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
                                 u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
                                 u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00a0";
static_assert(sizeof(upperHalf) == (128 + 1) * sizeof(char16_t) && upperHalf[0] == 0x00C7 &&
                  upperHalf[48] == 0x2591 && upperHalf[96] == 0x03B1 && upperHalf[126] == 0x25A0,
              "the compiler has to read this source as UTF-8");

QString fromCodePage437(const QByteArray& raw)
{
    QString text;
    text.reserve(raw.size());
    for (const char byte : raw) {
        const auto code = static_cast<unsigned char>(byte);
        text += QChar(code < 0x80 ? char16_t(code) : upperHalf[code - 0x80]);
    }
    return text;
}

/// \return null when the bytes are no valid UTF-8
QString fromStrictUtf8(const QByteArray& raw)
{
    static QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state;
    const QString text = utf8->toUnicode(raw.constData(), raw.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text : QString();
}

/// The "Info-ZIP Unicode Path" field: version 1, CRC of the name it stands for, the name in UTF-8.
QString unicodePath(const QByteArray& raw, const QByteArray& extra)
{
    const QByteArray field = extraField(extra, unicodePathField);
    if (field.size() < 5 || field.at(0) != 1 ||
        qFromLittleEndian<quint32>(field.constData() + 1) !=
            updatedChecksum(0, raw.constData(), raw.size())) {
        return {};
    }
    return fromStrictUtf8(field.mid(5));
}

using Byte = unsigned char;

bool isIn(Byte value, Byte first, Byte last)
{
    return value >= first && value <= last;
}

bool isLatinLetter(Byte value)
{
    return isIn(value, 'A', 'Z') || isIn(value, 'a', 'z');
}

/// Whether all bytes that are not ASCII belong to pairs that \a isPair accepts.
/// \param loneBesideLatin whether a single pair may stand beside a Latin letter
template <class IsPair>
bool consistsOfPairs(const QByteArray& raw, bool loneBesideLatin, const IsPair& isPair)
{
    const auto at = [&raw](int i) {
        return i >= 0 && i < raw.size() ? static_cast<Byte>(raw.at(i)) : Byte(0);
    };
    for (int i = 0; i < raw.size();) {
        const int begin = i;
        while (at(i) >= 0x80) {
            if (!isPair(at(i), at(i + 1))) {
                return false;
            }
            i += 2;
        }
        if (i == begin + 2 && !loneBesideLatin && (isLatinLetter(at(begin - 1)) || isLatinLetter(at(i)))) {
            return false;
        }
        i = i == begin ? i + 1 : i;
    }
    return true;
}

bool looksChinese(const QByteArray& raw)
{
    return consistsOfPairs(raw, true, [](Byte lead, Byte trail) {
        return (isIn(lead, 0xB0, 0xF7) || isIn(lead, 0xA1, 0xA3)) && isIn(trail, 0xA1, 0xFE);
    });
}

bool looksJapanese(const QByteArray& raw)
{
    return consistsOfPairs(raw, false, [](Byte lead, Byte trail) {
        const bool isTrail = isIn(trail, 0x40, 0x7E) || isIn(trail, 0x80, 0xFC);
        const bool isSymbol = lead == 0x81 && !isIn(trail, 0x40, 0x5B) && !isIn(trail, 0x69, 0x7A);
        const bool isKana = lead == 0x82 || (lead == 0x83 && trail <= 0x96);
        return isTrail && !isSymbol &&
               (lead == 0x81 || isKana || isIn(lead, 0x88, 0x9F) || isIn(lead, 0xE0, 0xEA));
    });
}

bool looksCyrillic(const QByteArray& raw)
{
    const auto isCapital = [](Byte value) { return isIn(value, 0x80, 0x9F) || value == 0xF0; };
    const auto isSmall = [](Byte value) {
        return isIn(value, 0xA0, 0xAF) || isIn(value, 0xE0, 0xEF) || value == 0xF1;
    };
    bool beforeIsLatin = false;
    for (int i = 0; i < raw.size();) {
        const int begin = i;
        int capitals = 0;
        for (; i < raw.size() && static_cast<Byte>(raw.at(i)) >= 0x80; ++i) {
            const auto value = static_cast<Byte>(raw.at(i));
            if (!isCapital(value) && !isSmall(value)) {
                return false;
            }
            capitals += isCapital(value) ? 1 : 0;
        }
        const int length = i - begin;
        if (length > 0) {
            const bool oneCapital = capitals == 1 && isCapital(static_cast<Byte>(raw.at(begin)));
            const bool nextIsLatin = i < raw.size() && isLatinLetter(static_cast<Byte>(raw.at(i)));
            if (length < 2 || beforeIsLatin || nextIsLatin ||
                !(capitals == 0 || oneCapital || capitals == length)) {
                return false;
            }
            continue;
        }
        beforeIsLatin = isLatinLetter(static_cast<Byte>(raw.at(i++)));
    }
    return true;
}

/// An encoding that is recognized by its bytes.
struct Guess {
    bool (*fits)(const QByteArray& raw);
    const char* codec;
    std::array<QLocale::Language, 4> languages;
};

const Guess guesses[] = {
    {looksChinese, "GBK", {QLocale::Chinese, QLocale::Chinese, QLocale::Chinese, QLocale::Chinese}},
    {looksCyrillic,
     "IBM866",
     {QLocale::Russian, QLocale::Ukrainian, QLocale::Byelorussian, QLocale::Bulgarian}},
    {looksJapanese,
     "Shift_JIS",
     {QLocale::Japanese, QLocale::Japanese, QLocale::Japanese, QLocale::Japanese}},
};

/// \return null if the bytes don't look like text in this encoding
QString decoded(const QByteArray& raw, const Guess& guess)
{
    const QTextCodec* const codec = guess.fits(raw) ? QTextCodec::codecForName(guess.codec) : nullptr;
    if (!codec) {
        return {};
    }
    QTextCodec::ConverterState state;
    const QString text = codec->toUnicode(raw.constData(), raw.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0 ? text : QString();
}

QString guessedName(const QByteArray& raw, QLocale::Language language)
{
    for (const bool anyLanguage : {false, true}) {
        for (const Guess& guess : guesses) {
            const auto& languages = guess.languages;
            if (anyLanguage || std::find(languages.begin(), languages.end(), language) != languages.end()) {
                const QString text = decoded(raw, guess);
                if (!text.isNull()) {
                    return text;
                }
            }
        }
    }
    return {};
}

} // namespace

QString decodeUnmarkedName(const QByteArray& raw, const QByteArray& extra, QLocale::Language language)
{
    QString text = unicodePath(raw, extra);
    if (text.isNull()) {
        text = fromStrictUtf8(raw);
    }
    if (text.isNull()) {
        text = Platform::fromSystemCodePage(raw);
    }
    if (text.isNull()) {
        text = guessedName(raw, language);
    }
    return text.isNull() ? fromCodePage437(raw) : text;
}

} // namespace TOLVAN_NAMESPACE
