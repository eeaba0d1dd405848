#ifndef CHANNEL_H
#define CHANNEL_H

#include <QList>
#include <QObject>
#include <QPointF>
#include <QVariant>

class Tag;

// The recent samples of one polled channel tag: (time in ms since the epoch, value).
class Channel : public QObject
{
    Q_OBJECT
public:
    explicit Channel(Tag *tag, QObject *parent = nullptr);

    Tag *tag() const { return m_tag; }
    QString name() const { return m_name; }

    double deadBand() const { return m_deadBand; }
    void setDeadBand(double deadBand) { m_deadBand = deadBand; }
    int maxPoints() const { return m_maxPoints; }
    QList<QPointF> points() const { return m_points; }

    int getIntValue() const;
    double getFloatValue() const;
    bool isChannelError() const;
    QVariant readChannel();

signals:
    void appendData(const QString &tagName, const QVariant &value);

public slots:
    void onTagValueChanged(const QVariant &value);

private:
    Tag *m_tag;
    QString m_name;
    double m_deadBand = 0.0;
    int m_maxPoints = 10;
    QList<QPointF> m_points;
};

#endif // CHANNEL_H
