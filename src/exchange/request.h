#ifndef REQUEST_H
#define REQUEST_H

#include <QObject>
#include <QVariant>

class Tag;

// One queued operation of a port's polling queue: read a tag, or write a value to it.
class Request : public QObject
{
    Q_OBJECT
public:
    enum Type { Read = 0, Write = 1 };

    // Priority of a typed request until its tag is set.
    static constexpr int TypedPriority = 65536;

    explicit Request(QObject *parent = nullptr);

    int processingTime() const { return m_processingTime; }
    void setProcessingTime(int ms) { m_processingTime = ms; }

    Tag *tag() const { return m_tag; }
    // Takes the tag's priority: call after setType, or the type's priority stays.
    void setTag(Tag *tag);

    Type type() const { return m_type; }
    void setType(Type type);

    QVariant value() const { return m_value; }
    void setValue(const QVariant &value) { m_value = value; }

    int priority() const { return m_priority; }
    void setPriority(int priority) { m_priority = priority; }

    // An editor's request, waited for by the interface thread: a tick never drops it.
    bool isOneShot() const { return m_oneShot; }
    void setOneShot(bool on) { m_oneShot = on; }

    // The exchange; true when the tag's last result is good.
    bool process();

    // A read needs access 0 or 2, a write 1 or 2; logs the refusal.
    static bool isAccessCompatible(const Tag *tag, Type type);

private:
    int m_processingTime = 0;
    Tag *m_tag = nullptr;
    Type m_type = Read;
    QVariant m_value;
    int m_priority = 0;
    bool m_oneShot = false;
};

// Heap order: the highest priority comes out first; equal priorities have no order.
struct RequestCompare
{
    bool operator()(const Request *a, const Request *b) const
    {
        return a->priority() < b->priority();
    }
};

#endif // REQUEST_H
