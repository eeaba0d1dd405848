#include "app/application.h"

#include "app/debugqt.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTranslator>

QHash<QString, QTranslator *> Application::translators;
QTranslator *Application::current = nullptr;
QString Application::currentLocale;

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
}

Application::~Application()
{
    // The translators are our children and go with us.
    current = nullptr;
    translators.clear();
}

void Application::loadTranslations(const QString &dir)
{
    loadTranslations(QDir(dir));
}

void Application::loadTranslations(const QDir &dir)
{
    const QStringList names
        = dir.entryList({QStringLiteral("*_*.qm")}, QDir::Files | QDir::Readable, QDir::Name);
    for (const QString &name : names) {
        const QStringList pieces = QFileInfo(name).completeBaseName().split(QLatin1Char('_'));
        if (pieces.size() < 2)
            continue;
        const QString key
            = pieces.at(pieces.size() - 2).toLower() + QLatin1Char('_') + pieces.last().toUpper();

        auto *translator = new QTranslator(QCoreApplication::instance());
        if (!translator->load(dir.absoluteFilePath(name))) {
            delete translator;
            continue;
        }
        QTranslator *old = translators.value(key);
        translators.insert(key, translator);
        if (old) {
            // Keep the language in use when its catalogue is replaced.
            if (old == current) {
                current = translator;
                installTranslator(translator);
            }
            delete old;
        }
    }
}

QStringList Application::availableLanguages()
{
    return translators.keys();
}

QString Application::language()
{
    return currentLocale;
}

void Application::setLanguage(const QString &key)
{
    if (current)
        removeTranslator(current);
    const auto it = translators.constFind(key);
    if (it == translators.constEnd()) {
        current = nullptr;
        return;
    }
    current = it.value();
    if (current) {
        currentLocale = key;
        installTranslator(current);
    }
}

void Application::loadCss()
{
    LOG_INFO << "enter";
    const QStringList candidates = {
        QStringLiteral("%1/css").arg(
            QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)),
        QStringLiteral("%1/css").arg(QDir::currentPath()),
        QStringLiteral(":/css"),
    };
    QString path;
    for (const QString &candidate : candidates) {
        if (!candidate.isEmpty() && QDir(candidate).exists()) {
            path = candidate;
            break;
        }
    }
    if (path.isEmpty())
        return;
    LOG_INFO << qPrintable(QStringLiteral("path='%1'").arg(path));
    setStyleSheet(readAllFiles(path, {QStringLiteral("*.css")}));
}

QString Application::readAllFiles(const QString &path, const QStringList &filters)
{
    QString result;
    if (path.isEmpty())
        return result;
    QDir dir(path);
    if (!dir.exists())
        return result;
    dir.setFilter(dir.filter() | QDir::Files | QDir::Readable);
    dir.setNameFilters(filters);
    dir.setSorting(QDir::Name);
    const QStringList names = dir.entryList();
    for (const QString &name : names) {
        SLOG_INFO << qPrintable(QLatin1Char('"') + name + QLatin1Char('"'));
        QFile file(path + QDir::separator() + name);
        if (!file.open(QIODevice::ReadOnly))
            continue;
        result += QObject::tr(file.readAll().constData());
    }
    SLOG_INFO << qPrintable(result);
    return result;
}
