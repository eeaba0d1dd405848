#ifndef CONFIGBACKUP_H
#define CONFIGBACKUP_H

#include <QString>

// Keeps "<file>.bak" as the configuration stood before the last save, and
// brings it back when a save fails. On failure the title and text of the
// message to show the user are filled in.
struct ConfigBackupError
{
    QString title;
    QString text;
};

bool backupConfigFile(const QString &file, ConfigBackupError *error = nullptr);
bool rollbackBackupConfigFile(const QString &file, ConfigBackupError *error = nullptr);

#endif // CONFIGBACKUP_H
