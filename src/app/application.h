#ifndef APPLICATION_H
#define APPLICATION_H

#include <QApplication>
#include <QHash>
#include <QString>
#include <QStringList>

class QDir;
class QTranslator;

// The application object, with the message catalogues found at start and the
// style sheets.
class Application : public QApplication
{
    Q_OBJECT
public:
    Application(int &argc, char **argv);
    ~Application() override;

    // Loads every readable "*_*.qm" of the directory; the last two pieces of
    // the name give the key, "app_ru_ru.qm" -> "ru_RU".
    static void loadTranslations(const QString &dir);
    static void loadTranslations(const QDir &dir);

    static QStringList availableLanguages();
    static QString language();
    // An unknown key leaves no catalogue installed but keeps language().
    static void setLanguage(const QString &key);

    // Style sheet from the first existing "css" directory: data directory,
    // working directory, resources.
    void loadCss();

    // Contents of the matching files of a directory, in name order.
    static QString readAllFiles(const QString &path, const QStringList &filters);

private:
    static QHash<QString, QTranslator *> translators;
    static QTranslator *current;
    static QString currentLocale;
};

#endif // APPLICATION_H
