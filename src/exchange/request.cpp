#include "exchange/request.h"

#include "app/debugqt.h"
#include "model/tag.h"

Request::Request(QObject *parent)
    : QObject(parent)
{
}

void Request::setTag(Tag *tag)
{
    m_tag = tag;
    m_priority = tag ? tag->priority() : 0;
}

void Request::setType(Type type)
{
    m_type = type;
    m_priority = TypedPriority;
}

bool Request::isAccessCompatible(const Tag *tag, Type type)
{
    if (!tag)
        return false;
    const int access = tag->access();
    const bool fits = type == Write ? (access == Tag::WriteOnly || access == Tag::ReadWrite)
                                    : (access == Tag::ReadOnly || access == Tag::ReadWrite);
    if (!fits) {
        SLOG_INFO << QStringLiteral(
                         "can't process tag '%1', incompatible access type and request type")
                         .arg(tag->name());
    }
    return fits;
}

bool Request::process()
{
    if (!m_tag || !isAccessCompatible(m_tag, m_type))
        return false;
    // A disabled tag is skipped, and judged by the result it last had.
    if (m_tag->enabled()) {
        if (m_type == Write)
            m_tag->write(m_value);
        else
            m_tag->read();
    }
    return m_tag->state() == Tag::StateGood;
}
