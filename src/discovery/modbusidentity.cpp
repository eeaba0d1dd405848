#include "discovery/modbusidentity.h"

#include "model/tag.h"

#include <QRegularExpression>
#include <QStringList>

ModbusIdentity ModbusIdentity::parse(const QString &modbusId)
{
    ModbusIdentity identity;
    identity.id = modbusId;
    const QString upper = modbusId.toUpper();
    if (upper.startsWith(QLatin1String("#F3#"))) {
        identity.method = ReadRegisters;
        const QStringList parts = modbusId.mid(4).split(QLatin1Char('#'));
        static const QRegularExpression digits(
            QRegularExpression::anchoredPattern(QStringLiteral("([0-9]+)")));
        if (parts.size() >= 2) {
            identity.address = int(Tag::addressFromText(parts.at(0)));
            identity.count = digits.match(parts.at(1)).hasMatch() ? parts.at(1).toInt() : 1;
        } else {
            identity.address = int(Tag::addressFromText(modbusId.mid(4).trimmed()));
            identity.count = 1;
        }
    } else if (upper.contains(QLatin1String("ODOUM0")) || upper.contains(QLatin1String("EPHUM0"))) {
        identity.method = Hamilton;
        identity.address = 1031;
        identity.count = 8;
    } else if (upper.contains(QLatin1String("NENGSHI"))) {
        identity.method = Nengshi;
        identity.address = 0;
        identity.count = 10;
    } else if (upper.contains(QLatin1String("Y510-B"))) {
        identity.method = Y510B;
        identity.address = 2304;
        identity.count = 7;
    } else if (upper.contains(QLatin1String("Y610-B"))) {
        identity.method = Y610B;
        identity.address = 9728;
        identity.count = 6;
    } else {
        identity.method = Function17;
    }
    return identity;
}
