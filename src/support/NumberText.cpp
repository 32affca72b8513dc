#include "support/NumberText.h"
#include "support/Convert.h"
#include "support/RuntimeError.h"

qint16 ParseInteger(const QString& text, bool& failed)
{
    failed = false;
    if (text.isEmpty())
        return 0;
    try {
        return ToInteger(text);
    } catch (const ConversionError&) {
        failed = true;
        return 0;
    }
}

qint16 ParseInteger(const QString& text)
{
    bool failed = false;
    return ParseInteger(text, failed);
}

bool IsNumberText(const QString& text) { return ConvertsToLong(text); }

bool IsNumber(const QString& text, bool allowDecimal, bool allowNegative)
{
    if (text.isEmpty())
        return false;
    auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    const QChar first = text[0];
    if (!isDigit(first) && !(allowNegative && first == u'-'))
        return false;
    if (text.size() == 1)
        return isDigit(first);
    bool seenPoint = false;
    for (qsizetype i = 1; i < text.size(); ++i) {
        const QChar c = text[i];
        if (isDigit(c))
            continue;
        if (c == u'.' && allowDecimal && !seenPoint) {
            seenPoint = true;
            continue;
        }
        return false;
    }
    return true;
}
