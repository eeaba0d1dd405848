#ifndef IDENTIFICATION_H
#define IDENTIFICATION_H

#include "registermap.h"
#include "scenario.h"
#include "tagcodec.h"

#include <QByteArray>
#include <QList>
#include <QString>

// How an instrument proves who it is, by family: a function 17 text for the
// maker's instruments, register contents for the outside sensors and for
// the "#F3#" identities that any answer satisfies.
class Identification
{
public:
    enum Family { Report, RegisterRead, Hamilton, Nengshi, Y510B, Y610B };

    Identification(const InstrumentSettings &settings, const QList<SimTag> &tags);

    QString modbusId() const { return m_modbusId; }
    Family family() const { return m_family; }
    // The function 17 text, without slave id and run indicator.
    QString replyText() const;

    // Makes the registers that the master's check reads exist and hold
    // what the check expects.
    void prepare(RegisterMap &map) const;
    QByteArray reportSlaveId(const QByteArray &pdu) const;

private:
    InstrumentSettings m_settings;
    QList<SimTag> m_tags;
    QString m_modbusId;
    QString m_templateName;
    QString m_templateDate;
    Family m_family = Report;
    unsigned m_f3Address = 0;
    int m_f3Count = 1;
};

#endif // IDENTIFICATION_H
