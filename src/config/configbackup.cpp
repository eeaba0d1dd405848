#include "config/configbackup.h"

#include <QFile>
#include <QFileInfo>

static bool fail(ConfigBackupError *error, const QString &title, const QString &text)
{
    if (error) {
        error->title = title;
        error->text = text;
    }
    return false;
}

bool backupConfigFile(const QString &file, ConfigBackupError *error)
{
    if (file.isEmpty())
        return false;
    const QString backup = file + QStringLiteral(".bak");
    QFile backupFile(backup);
    if (backupFile.exists() && !backupFile.remove()) {
        return fail(
            error, QStringLiteral("Error"),
            QStringLiteral("can't remove file '%1', '%2'").arg(backup, backupFile.errorString()));
    }
    QFile source(file);
    if (source.exists() && !source.copy(backup)) {
        return fail(error, QStringLiteral("Backup config file"),
                    QStringLiteral("can't copy file '%1' to '%2', '%3'")
                        .arg(file, backup, source.errorString()));
    }
    return true;
}

bool rollbackBackupConfigFile(const QString &file, ConfigBackupError *error)
{
    if (file.isEmpty())
        return false;
    const QString backup = file + QStringLiteral(".bak");
    if (!QFileInfo::exists(backup))
        return fail(error, QStringLiteral("Error"),
                    QStringLiteral("backup file '%1' not exists!").arg(backup));
    QFile::remove(file);
    QFile backupFile(backup);
    if (!backupFile.copy(file)) {
        return fail(error, QStringLiteral("Rollback config file"),
                    QStringLiteral("can't copy file '%1' to '%2', '%3'")
                        .arg(backup, file, backupFile.errorString()));
    }
    return true;
}
