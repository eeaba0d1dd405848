#include "exchange/byteswapper.h"

#include <algorithm>

QByteArray ByteSwapper::swap_byteorder(const QByteArray &data, int n)
{
    if (n < 1)
        return data;
    if (data.size() % n != 0)
        return QByteArray();
    QByteArray result = data;
    for (qsizetype i = 0; i < result.size(); i += n)
        std::reverse(result.begin() + i, result.begin() + i + n);
    return result;
}

QByteArray ByteSwapper::convert(const QByteArray &data, const QString &rule)
{
    int digits = 0;
    for (const QChar c : rule) {
        if (c.isDigit())
            ++digits;
    }
    if (data.size() < digits)
        return QByteArray();
    QByteArray result(data.size(), '\0');
    int base = 0;
    int out = 0;
    for (const QChar c : rule) {
        if (c == QLatin1Char('~')) {
            base = 0;
        } else if (c == QLatin1Char('!')) {
            base = 10;
        } else if (c == QLatin1Char('@')) {
            base = 20;
        } else if (c.isDigit()) {
            const int index = base + c.digitValue();
            // A rule that points past the data is the configuration's fault;
            // the byte stays zero rather than reading beyond the buffer.
            if (index < data.size() && out < result.size())
                result[out] = data.at(index);
            ++out;
        }
    }
    return result;
}

QString ByteSwapper::inverseRule(const QString &rule)
{
    QString result = rule;
    for (int i = 0; i + 1 < result.size(); i += 2)
        std::swap(result[i], result[i + 1]);
    return result;
}
