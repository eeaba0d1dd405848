#ifndef UTILS_H
#define UTILS_H

#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <cstdint>

// Blocking sleeps of the calling thread.
void mySleep(int ms);
void myUSleep(int us);

// Bytes as lower-case hexadecimal pairs separated by blanks.
QString byteBufferToString(const char *data, int length);
QString byteBufferToString(const QByteArray &bytes);

// `count` bits of the little-endian 64-bit word at `bytes` (8 bytes), starting at bit `start`.
uint extract_bits(const unsigned char *bytes, int start, int count);
// `where` with `count` bits from bit `start` replaced by the low bits of `from`; 32 bits only.
uint set_bits(uint where, uint from, int start, int count);

// Rounds half away from zero to `digits` decimals.
double round(double value, int digits);

void vmap_merge(const QVariantMap &from, QVariantMap &into);
void vmap_merge_new(const QVariantMap &from, QVariantMap &into);
QVariant vmap_get(const QVariantMap &map, const QString &path);
QVariant vmap_get(const QVariantMap &map, const QString &path, const QVariant &defaultValue);
bool vmap_put(QVariantMap &map, const QString &path, const QVariant &value);

QString searchHelpFile(const QString &name);

// Whole-file helpers with the sections "app", "srv" and "common".
QVariantMap loadConfig(const QString &path);
bool saveConfig(const QVariantMap &map, const QString &path);
QString searchConfigFile(const QString &name);

#endif // UTILS_H
