#ifndef TAGCODEC_H
#define TAGCODEC_H

#include <QByteArray>
#include <QString>
#include <QVariant>

// One template tag as the simulator needs it: where its value lies and how
// the master will decode it.
struct SimTag
{
    QString name;
    QString group; // config group id, lower case
    unsigned address = 0; // register (or bit) of the value itself
    int deviceType = 5; // Tag::DeviceType
    int width = 4; // bytes
    bool separate = false;
    unsigned blockAddress = 0; // a separate tag's block
    int blockRegisters = 0;
    bool swap = true; // the master's byte swap for this tag
    bool byteorderEnabled = false;
    QString byteorder;
    bool bitField = false;
    int bitFrom = 0;
    int bitTo = 0;
    int readFunc = 3;
    int writeFunc = 16;
    int access = 2; // Tag::OpcAccessType
    bool hasLimits = false;
    double low = 0.0, high = 0.0;
    QVariant value; // the template's value, invalid when absent

    bool isBit() const { return deviceType == 0; }
    bool isChannel() const { return group == QLatin1String("channel"); }
    bool isFloat() const { return deviceType == 5 || deviceType == 6; }
    int registers() const { return (width + 1) / 2; }
};

// The mirror image of the master's tag encoding: a value becomes the register
// bytes on the wire that the master decodes back into that very value, with
// the device's byte swap, the tag's byte order rule and its bit field.
class TagCodec
{
public:
    static SimTag fromTemplate(const QVariantMap &tag, bool deviceSwap);

    // Wire bytes (whole registers, most significant byte first) for value.
    // current is the wire image now held, which a bit field keeps outside
    // its bits.
    static QByteArray encode(const SimTag &tag, const QVariant &value, const QByteArray &current);
    // The value the master would read from these wire bytes.
    static QVariant decode(const SimTag &tag, const QByteArray &wire);

    // The value as the master holds it in memory, little-endian.
    static QByteArray valueBytes(const SimTag &tag, const QVariant &value);
    // The master's byte order rule: result[i] = data[base + digit i].
    static QByteArray applyRule(const QByteArray &data, const QString &rule);
    // Its inverse: out[base + digit i] = data[i].
    static QByteArray invertRule(const QByteArray &data, const QString &rule);

private:
    static QByteArray toWire(const SimTag &tag, QByteArray memory);
    static QByteArray fromWire(const SimTag &tag, const QByteArray &wire);
};

#endif // TAGCODEC_H
