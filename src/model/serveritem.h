#ifndef SERVERITEM_H
#define SERVERITEM_H

#include <QIcon>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <atomic>
#include <mutex>

class Tag;

// Base of the four levels of the item tree (Server, Port, Device, Tag): the
// parent and child links, names and unique names, the last exchange result.
// The tree link is its own; the QObject parent is not used.
class ServerItem : public QObject
{
    Q_OBJECT
public:
    enum ItemType { ItemServer = 1, ItemPort = 2, ItemDevice = 3, ItemTag = 4 };

    // Result codes of an exchange.
    enum Result {
        ResultGood = 1,
        ResultModbusError = 2,
        ResultConfigError = 3,
        ResultPortError = 4,
        ResultTimeout = 5,
    };

    // Display state of an item.
    enum State { StateNone = 1, StateGood = 2, StateFailed = 3 };

    explicit ServerItem(ServerItem *parent = nullptr);
    ~ServerItem() override;

    virtual QList<Tag *> tags() const = 0;
    virtual QList<Tag *> activeTags() const = 0;
    virtual QString fullName() const = 0;
    virtual QIcon icon() const = 0;
    virtual bool load(const QVariantMap &map) = 0;
    virtual QVariantMap save() const = 0;
    virtual bool insertChildren(int position, int count);
    virtual bool removeChildren(int position, int count);
    virtual bool removeChildren();
    virtual QString createUniqName(const QString &pattern) const;
    virtual int type() const = 0;
    virtual ServerItem *createChild() = 0;
    virtual QString getErrorString(int code, int detail) const;

    ServerItem *parentItem() const { return m_parent; }
    ServerItem *child(int index) const;
    int childCount() const { return int(m_children.size()); }
    const QList<ServerItem *> &children() const { return m_children; }
    ServerItem *childByName(const QString &name) const { return m_childrenByName.value(name); }
    bool hasChildName(const QString &name) const { return m_childrenByName.contains(name); }
    int childNumber() const;
    void insertChild(int index, ServerItem *item);

    QString name() const { return m_name; }
    void setName(const QString &name);
    bool isNameValid(const QString &name) const;
    static QString validName(const QString &name);

    void setEnabled(bool enabled);
    bool enabled() const;
    void setPriority(int priority);
    int priority() const;

    // The result of the last exchange is written by polling threads and read
    // by the window, hence atomics and a lock for the text.
    int state() const { return m_state; }
    int lastResult() const { return m_lastResult; }
    int errorCount() const { return m_errorCount; }
    void increaseErrorCount() { ++m_errorCount; }
    QString errorString() const;
    void setErrorString(const QString &text);
    void updateState(int code);
    void resetState();

    bool canMoveUp(ServerItem *child) const;
    bool canMoveDown(ServerItem *child) const;
    int moveChildUp(ServerItem *child);
    int moveChildDown(ServerItem *child);

signals:
    void stateChanged();
    void modified();

protected:
    // A list only when the value is one: a text is not a list of one text.
    static QVariantList listValue(const QVariant &value);

    void setParentItem(ServerItem *parent) { m_parent = parent; }
    // Takes a child out of the list and the name index without deleting it.
    ServerItem *takeChild(const QString &name);

    QString namePattern;

private:
    ServerItem *m_parent = nullptr;
    QList<ServerItem *> m_children;
    QMap<QString, ServerItem *> m_childrenByName;
    mutable QMap<QString, int> m_nameCounters;
    std::atomic<int> m_lastResult {ResultGood};
    std::atomic<int> m_state {StateNone};
    mutable std::mutex m_errorStringLock;
    QString m_errorString;
    QString m_name;
    std::atomic<int> m_errorCount {0};
};

#endif // SERVERITEM_H
