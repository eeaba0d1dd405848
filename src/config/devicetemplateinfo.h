#ifndef DEVICETEMPLATEINFO_H
#define DEVICETEMPLATEINFO_H

#include <QString>

// The metadata of a device template, as the template dialogs carry it.
struct DeviceTemplateInfo
{
    QString name;
    QString producer;
    QString comment;
    QString path; // the directory
    QString ext; // the extension
    bool custom = false;
};

#endif // DEVICETEMPLATEINFO_H
