#include "model/serveritem.h"

#include "modbus/modbus.h"

#include <QRegularExpression>

// The library reports its own errors above this base; the texts show the small number.
static constexpr int LibraryErrorBase = 112345678;

ServerItem::ServerItem(ServerItem *parent)
    : namePattern(QStringLiteral("Ports & Devices"))
    , m_parent(parent)
{
}

ServerItem::~ServerItem()
{
    qDeleteAll(m_children);
    m_children.clear();
    m_childrenByName.clear();
}

QString ServerItem::getErrorString(int code, int detail) const
{
    switch (code) {
    case ResultModbusError: {
        const int shown = (detail < -(LibraryErrorBase - 1) || detail > LibraryErrorBase - 1)
            ? detail - LibraryErrorBase
            : detail;
        return QStringLiteral("%1 (%2)")
            .arg(QString::fromLocal8Bit(modbus_strerror(detail)))
            .arg(shown);
    }
    case ResultConfigError:
        return QStringLiteral("Config error(invalid access type)");
    case ResultPortError:
        return QStringLiteral("Port/Link error");
    case ResultTimeout:
        return QStringLiteral("Timeout error");
    default:
        return QStringLiteral("No error");
    }
}

QVariantList ServerItem::listValue(const QVariant &value)
{
    const int type = value.typeId();
    if (type == QMetaType::QVariantList || type == QMetaType::QStringList)
        return value.toList();
    return QVariantList();
}

QString ServerItem::errorString() const
{
    std::lock_guard locker(m_errorStringLock);
    return m_errorString;
}

void ServerItem::setErrorString(const QString &text)
{
    std::lock_guard locker(m_errorStringLock);
    m_errorString = text;
}

ServerItem *ServerItem::child(int index) const
{
    return (index >= 0 && index < m_children.size()) ? m_children.at(index) : nullptr;
}

int ServerItem::childNumber() const
{
    return m_parent ? int(m_parent->m_children.indexOf(const_cast<ServerItem *>(this))) : -1;
}

void ServerItem::insertChild(int index, ServerItem *item)
{
    if (!item)
        return;
    if (index < 0 || index > m_children.size())
        index = int(m_children.size());
    item->m_parent = this;
    m_children.insert(index, item);
    m_childrenByName.insert(item->name(), item);
}

ServerItem *ServerItem::takeChild(const QString &name)
{
    ServerItem *item = m_childrenByName.take(name);
    if (item)
        m_children.removeOne(item);
    return item;
}

bool ServerItem::insertChildren(int position, int count)
{
    if (position < 0 || position > m_children.size())
        return false;
    for (int i = 0; i < count; ++i) {
        ServerItem *item = createChild();
        if (!item)
            return false;
        item->m_parent = this;
        m_children.insert(position, item);
        m_childrenByName.insert(item->name(), item);
    }
    return true;
}

bool ServerItem::removeChildren(int position, int count)
{
    if (position < 0 || position + count > m_children.size())
        return false;
    for (int i = 0; i < count; ++i) {
        ServerItem *item = m_children.takeAt(position);
        // A stale name entry would hand out a deleted item later.
        auto it = m_childrenByName.find(item->name());
        if (it != m_childrenByName.end() && it.value() == item)
            m_childrenByName.erase(it);
        delete item;
    }
    return true;
}

bool ServerItem::removeChildren()
{
    return removeChildren(0, int(m_children.size()));
}

QString ServerItem::createUniqName(const QString &pattern) const
{
    if (!m_parent)
        return pattern;
    QString candidate;
    do {
        int &counter = m_parent->m_nameCounters[pattern];
        const int number = counter++;
        candidate = pattern.arg(number);
    } while (m_parent->m_childrenByName.contains(candidate));
    return candidate;
}

QString ServerItem::validName(const QString &name)
{
    static const QRegularExpression blanks(QStringLiteral("(\\s|\\\\)+"));
    QString result = name;
    return result.replace(blanks, QStringLiteral("_"));
}

bool ServerItem::isNameValid(const QString &name) const
{
    if (!m_parent)
        return true;
    const auto it = m_parent->m_childrenByName.constFind(name);
    return it == m_parent->m_childrenByName.cend() || it.value() == this;
}

void ServerItem::setName(const QString &name)
{
    const QString oldName = m_name;
    QString candidate = validName(name);
    if (!isNameValid(candidate))
        candidate = createUniqName(candidate + QStringLiteral("_n%1"));
    m_name = candidate;
    if (m_parent) {
        auto it = m_parent->m_childrenByName.find(oldName);
        if (it != m_parent->m_childrenByName.end() && it.value() == this) {
            m_parent->m_childrenByName.erase(it);
            m_parent->m_childrenByName.insert(m_name, this);
        }
    }
}

void ServerItem::setEnabled(bool enabled)
{
    setProperty("enabled", enabled);
    if (enabled && m_parent)
        m_parent->setEnabled(true);
    emit stateChanged();
}

bool ServerItem::enabled() const
{
    return property("enabled").toBool();
}

void ServerItem::setPriority(int priority)
{
    setProperty("priority", priority);
}

int ServerItem::priority() const
{
    return property("priority").toInt();
}

void ServerItem::updateState(int code)
{
    const int newState = code == ResultGood ? StateGood : StateFailed;
    if (newState != m_state)
        m_state = newState;
    if (code != ResultGood)
        ++m_errorCount;
    m_lastResult = code;
    emit stateChanged();
}

void ServerItem::resetState()
{
    m_state = StateNone;
    m_lastResult = ResultGood;
    m_errorCount = 0;
    setErrorString(getErrorString(ResultGood, 0));
    emit stateChanged();
    for (ServerItem *item : qAsConst(m_children))
        item->resetState();
}

bool ServerItem::canMoveUp(ServerItem *child) const
{
    return m_children.indexOf(child) > 0;
}

bool ServerItem::canMoveDown(ServerItem *child) const
{
    const qsizetype index = m_children.indexOf(child);
    return index >= 0 && index < m_children.size() - 1;
}

int ServerItem::moveChildUp(ServerItem *child)
{
    const int index = int(m_children.indexOf(child));
    if (index <= 0)
        return index;
    m_children.swapItemsAt(index, index - 1);
    return index - 1;
}

int ServerItem::moveChildDown(ServerItem *child)
{
    const int index = int(m_children.indexOf(child));
    if (index < 0 || index >= m_children.size() - 1)
        return index;
    m_children.swapItemsAt(index, index + 1);
    return index + 1;
}
