#include "identification.h"

#include "instrument.h"

#include "model/tag.h"

#include <QDate>
#include <QRegularExpression>

namespace {

QByteArray padded(const QByteArray &text, int size)
{
    QByteArray out = text.left(size);
    out.resize(size, '\0');
    return out;
}

QByteArray swapPairs(QByteArray data)
{
    for (int i = 0; i + 1 < data.size(); i += 2)
        std::swap(data[i], data[i + 1]);
    return data;
}

} // namespace

Identification::Identification(const InstrumentSettings &settings, const QList<SimTag> &tags)
    : m_settings(settings)
    , m_tags(tags)
{
    const QVariantMap device = settings.templateMap.value(QStringLiteral("device")).toMap();
    // As the master loads it: without a modbus_id the template's name stands in.
    m_modbusId = device.contains(QStringLiteral("modbus_id"))
        ? device.value(QStringLiteral("modbus_id")).toString()
        : device.value(QStringLiteral("template")).toString();
    m_templateName = settings.templateMap.value(QStringLiteral("name")).toString();
    m_templateDate = device.value(QStringLiteral("firmware_date")).toString();

    const QString id = m_modbusId.toUpper();
    if (id.startsWith(QLatin1String("#F3#"))) {
        m_family = RegisterRead;
        const QStringList parts = id.mid(4).split(QLatin1Char('#'));
        const QString address = parts.size() >= 2 ? parts.at(0) : id.mid(4).trimmed();
        m_f3Address = Tag::addressFromText(address);
        static const QRegularExpression digits(QStringLiteral("\\A([0-9]+)\\z"));
        if (parts.size() >= 2 && digits.match(parts.at(1)).hasMatch())
            m_f3Count = qBound(1, parts.at(1).toInt(), 125);
    } else if (id.contains(QLatin1String("ODOUM0")) || id.contains(QLatin1String("EPHUM0"))) {
        m_family = Hamilton;
    } else if (id.contains(QLatin1String("NENGSHI"))) {
        m_family = Nengshi;
    } else if (id.contains(QLatin1String("Y510-B"))) {
        m_family = Y510B;
    } else if (id.contains(QLatin1String("Y610-B"))) {
        m_family = Y610B;
    }
}

QString Identification::replyText() const
{
    const IdentificationSettings &s = m_settings.identification;
    QString model = s.model;
    if (model.isEmpty())
        model = m_family == Report && !m_modbusId.isEmpty() ? m_modbusId : m_templateName;
    QString date = s.firmwareDate;
    if (date.isEmpty())
        date = m_templateDate.isEmpty() ? QStringLiteral("01.01.2020") : m_templateDate;
    date.replace(QLatin1Char('.'), s.dateSeparator);
    if (s.form == QLatin1String("compact"))
        return model;
    if (s.form == QLatin1String("short"))
        return QStringList {model, s.text, s.firmware, date}.join(QLatin1Char(' '));
    if (s.form == QLatin1String("short_date"))
        return QStringList {model, s.text, date}.join(QLatin1Char(' '));
    return QStringList {model, s.serial, s.year, s.text, s.firmware, date, s.tail}.join(
        QLatin1Char(' '));
}

void Identification::prepare(RegisterMap &map) const
{
    const IdentificationSettings &s = m_settings.identification;
    switch (m_family) {
    case RegisterRead:
        // Any answer proves the instrument; places the template leaves out
        // still have to answer.
        for (int i = 0; i < m_f3Count; ++i) {
            if (!map.registersCovered(m_f3Address + i, 1))
                map.coverRegisters(m_f3Address + i, 1, RegisterMap::ReadHolding);
        }
        break;
    case Hamilton: {
        // The master looks for the id in the registers as they lie in its
        // memory, low byte of each register first.
        const QByteArray text = (s.sensorText.isEmpty() ? m_modbusId : s.sensorText).toLatin1();
        map.coverRegisters(1031, 8, RegisterMap::ReadHolding);
        map.setWire(1031, swapPairs(padded(text, 16)));
        break;
    }
    case Nengshi: {
        map.coverRegisters(0, 10, RegisterMap::ReadInput);
        // The third byte of the answer tells the kind: 10 pH, 7 conductivity.
        bool given = false;
        for (const SimTag &t : m_tags) {
            if (t.address == 1 && t.readFunc == 4 && m_settings.values.contains(t.name))
                given = true;
        }
        if (!given) {
            const bool conductivity
                = m_templateName.contains(QLatin1String("CON"), Qt::CaseInsensitive);
            map.setReg(1, uint16_t((map.reg(1) & 0xFF00) | (conductivity ? 7 : 10)));
        }
        break;
    }
    case Y510B: {
        // Read back through a pair swap, so the text lies as it reads.
        const QString text
            = s.sensorText.isEmpty() ? QStringLiteral("Y510-B ") + s.serial : s.sensorText;
        map.coverRegisters(2304, 7, RegisterMap::ReadHolding);
        map.setWire(2304, padded(text.toLatin1(), 14));
        break;
    }
    case Y610B:
        map.coverRegisters(9728, 6, RegisterMap::ReadHolding);
        break;
    case Report:
        break;
    }
}

QByteArray Identification::reportSlaveId(const QByteArray &pdu) const
{
    const IdentificationSettings &s = m_settings.identification;
    if (pdu.size() != 1 || s.form == QLatin1String("none"))
        return Instrument::exception(17, pdu.size() != 1 ? 3 : 1);
    const QByteArray text = replyText().toLatin1().left(240);
    QByteArray reply;
    reply.append(char(17));
    reply.append(char(text.size() + 2));
    reply.append(char(s.slaveId >= 0 ? s.slaveId : m_settings.address));
    reply.append(char(s.runIndicator));
    reply.append(text);
    return reply;
}
