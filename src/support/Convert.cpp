#include "support/Convert.h"
#include <cmath>
#include <limits>
#include "support/RuntimeError.h"

namespace {

bool isBlank(QChar c) { return c == u' ' || c == u'\t'; }

// Parses [sign] digits [. digits] [E [sign] digits] between blanks.
double parseNumber(const QString& text)
{
    qsizetype b = 0, e = text.size();
    while (b < e && isBlank(text[b])) ++b;
    while (e > b && isBlank(text[e - 1])) --e;
    const QStringView s = QStringView(text).mid(b, e - b);

    qsizetype i = 0;
    auto digits = [&]() {
        qsizetype start = i;
        while (i < s.size() && s[i] >= u'0' && s[i] <= u'9') ++i;
        return i - start;
    };
    if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) ++i;
    qsizetype mantissa = digits();
    if (i < s.size() && s[i] == u'.') {
        ++i;
        mantissa += digits();
    }
    if (mantissa == 0)
        throw ConversionError();
    if (i < s.size() && (s[i] == u'e' || s[i] == u'E')) {
        ++i;
        if (i < s.size() && (s[i] == u'+' || s[i] == u'-')) ++i;
        if (digits() == 0)
            throw ConversionError();
    }
    if (i != s.size())
        throw ConversionError();
    bool ok = false;
    const double value = s.toString().toDouble(&ok);
    if (!ok || !std::isfinite(value))
        throw ConversionError(QStringLiteral("Overflow"));
    return value;
}

// A plain whole number (sign and up to 18 digits between blanks) needs no
// rounding: its value is added up directly. Anything else returns false.
bool plainWhole(const QString& text, qint64& value)
{
    qsizetype b = 0, e = text.size();
    while (b < e && isBlank(text[b])) ++b;
    while (e > b && isBlank(text[e - 1])) --e;
    bool negative = false;
    if (b < e && (text[b] == u'+' || text[b] == u'-')) {
        negative = text[b] == u'-';
        ++b;
    }
    if (b == e || e - b > 18)
        return false;
    qint64 n = 0;
    for (qsizetype i = b; i < e; ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return false;
        n = n * 10 + (c - u'0');
    }
    value = negative ? -n : n;
    return true;
}

template <typename Int>
Int toWhole(const QString& text)
{
    if (qint64 whole = 0; plainWhole(text, whole)) {
        if (whole < std::numeric_limits<Int>::min() || whole > std::numeric_limits<Int>::max())
            throw ConversionError(QStringLiteral("Overflow"));
        return static_cast<Int>(whole);
    }
    const double rounded = std::nearbyint(parseNumber(text)); // half to even
    if (rounded < double(std::numeric_limits<Int>::min()) || rounded > double(std::numeric_limits<Int>::max()))
        throw ConversionError(QStringLiteral("Overflow"));
    return static_cast<Int>(rounded);
}

} // namespace

qint16 ToInteger(const QString& text) { return toWhole<qint16>(text); }
qint32 ToLong(const QString& text) { return toWhole<qint32>(text); }
double ToDouble(const QString& text) { return parseNumber(text); }

float ToSingle(const QString& text)
{
    const double value = parseNumber(text);
    if (std::fabs(value) > double(std::numeric_limits<float>::max()))
        throw ConversionError(QStringLiteral("Overflow"));
    return static_cast<float>(value);
}

bool ConvertsToLong(const QString& text)
{
    try {
        ToLong(text);
        return true;
    } catch (const ConversionError&) {
        return false;
    }
}
