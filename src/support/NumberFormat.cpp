#include "support/NumberFormat.h"

QString Str(qint64 n)
{
    return n < 0 ? QString::number(n) : QStringLiteral(" ") + QString::number(n);
}

QString NumberLine(qint64 n) { return Str(n) + QStringLiteral(" "); }

QString Format(qint64 n, const QString& pattern)
{
    if (pattern.contains(u'@'))
        return Format(QString::number(n), pattern);
    const int minDigits = static_cast<int>(pattern.count(u'0'));
    const quint64 magnitude = n < 0 ? quint64(-(n + 1)) + 1 : quint64(n);
    QString digits = (magnitude == 0 && minDigits == 0) ? QString() : QString::number(magnitude);
    if (digits.size() < minDigits)
        digits = QString(minDigits - digits.size(), u'0') + digits;
    return n < 0 ? QStringLiteral("-") + digits : digits;
}

QString Format(const QString& text, const QString& pattern)
{
    const int width = static_cast<int>(pattern.count(u'@'));
    return text.size() >= width ? text : QString(width - text.size(), u' ') + text;
}
