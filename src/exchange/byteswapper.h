#ifndef BYTESWAPPER_H
#define BYTESWAPPER_H

#include <QByteArray>
#include <QString>

// Byte order helpers for register images.
class ByteSwapper
{
public:
    // Reverses each group of n bytes. n below 1 leaves the data as it is; a
    // size that is not a multiple of n gives an empty result.
    static QByteArray swap_byteorder(const QByteArray &data, int n);

    // Picks bytes by a rule of digits: "1032" on 11 22 33 44 gives 22 11 44 33.
    // The marks "~", "!" and "@" set the base of the following digits to 0, 10
    // and 20. The result has the size of the data with its leading part
    // filled; data shorter than the rule's digits gives an empty result.
    static QByteArray convert(const QByteArray &data, const QString &rule);

    // Exchanges the characters of each pair: "0123" gives "1032".
    static QString inverseRule(const QString &rule);
};

#endif // BYTESWAPPER_H
