#include "exchange/channel.h"

#include "model/tag.h"

#include <cmath>

Channel::Channel(Tag *tag, QObject *parent)
    : QObject(parent)
    , m_tag(tag)
    , m_name(tag ? tag->name() : QString())
{
    if (m_tag)
        connect(m_tag, &Tag::valueChanged, this, &Channel::onTagValueChanged);
}

int Channel::getIntValue() const
{
    return m_tag ? m_tag->value().toInt() : 0;
}

double Channel::getFloatValue() const
{
    return m_tag ? m_tag->value().toDouble() : 0.0;
}

bool Channel::isChannelError() const
{
    return !m_tag || m_tag->lastResult() != ServerItem::ResultGood;
}

QVariant Channel::readChannel()
{
    return m_tag ? m_tag->read() : QVariant();
}

void Channel::onTagValueChanged(const QVariant &value)
{
    const double v = value.toDouble();
    if (m_deadBand > 0 && !m_points.isEmpty() && std::fabs(v - m_points.last().y()) < m_deadBand)
        return;
    const double time = m_tag ? double(m_tag->timestamp().toMSecsSinceEpoch()) : 0.0;
    m_points.append(QPointF(time, v));
    while (m_points.size() > m_maxPoints)
        m_points.removeFirst();
    emit appendData(m_name, value);
}
