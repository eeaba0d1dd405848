#ifndef TESTSUPPORT_H
#define TESTSUPPORT_H

#include "config/appsettings.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

// Runs a test inside a fresh temporary working directory, so that nothing
// touches the real working directory or home.
class ScopedWorkDir
{
public:
    ScopedWorkDir()
        : m_previous(QDir::currentPath())
    {
        QDir::setCurrent(m_dir.path());
        AppSettings::initPaths();
    }
    ~ScopedWorkDir()
    {
        QDir::setCurrent(m_previous);
        AppSettings::initPaths();
    }
    QString path() const { return m_dir.path(); }
    QString filePath(const QString &name) const { return m_dir.filePath(name); }

private:
    QTemporaryDir m_dir;
    QString m_previous;
};

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString &path, const QByteArray &data)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(data) == data.size();
}

// The directory of the test data files kept in the source tree.
inline QString testDataDir()
{
    return QStringLiteral(REGDESK_TEST_DATA_DIR);
}

#endif // TESTSUPPORT_H
