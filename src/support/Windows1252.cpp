#include "support/Windows1252.h"
#include <array>

namespace {

// Unicode of the bytes 0x80 to 0x9F.
constexpr std::array<char16_t, 32> kHigh = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char encodeOne(char16_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return static_cast<char>(c);
    for (size_t i = 0; i < kHigh.size(); ++i)
        if (kHigh[i] == c)
            return static_cast<char>(0x80 + i);
    return '?';
}

} // namespace

void AppendWindows1252(QByteArray& out, QStringView text)
{
    const qsizetype start = out.size();
    out.resize(start + text.size());
    char* p = out.data() + start;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        // A surrogate pair is one character with no code: one "?".
        if (c.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            *p++ = '?';
            ++i;
            continue;
        }
        *p++ = encodeOne(c.unicode());
    }
    out.resize(p - out.data());
}

QByteArray ToWindows1252(QStringView text)
{
    QByteArray out;
    AppendWindows1252(out, text);
    return out;
}

QString FromWindows1252(const char* data, qsizetype size)
{
    QString out(size, Qt::Uninitialized);
    QChar* q = out.data();
    for (qsizetype i = 0; i < size; ++i) {
        const auto b = static_cast<unsigned char>(data[i]);
        q[i] = (b >= 0x80 && b <= 0x9F) ? QChar(kHigh[b - 0x80]) : QChar(b);
    }
    return out;
}
