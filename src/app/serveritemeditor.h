#ifndef SERVERITEMEDITOR_H
#define SERVERITEMEDITOR_H

#include "model/serveritem.h"

#include <QMap>
#include <QStackedWidget>
#include <QVariantMap>

class Device;
class IServerItemEditor;

// The right side of the main window: one page per kind of item, the manual
// for the root and the port page for ports. A device shows an empty page
// until device editors exist; the calls that reach them are kept here so
// that the main window already makes them in the right places.
class ServerItemEditor : public QStackedWidget
{
    Q_OBJECT
public:
    explicit ServerItemEditor(QWidget *parent = nullptr);

    IServerItemEditor *editorForType(int type) const { return m_editors.value(type); }
    QWidget *currentDeviceEditor() const;
    ServerItem *currentItem() const { return m_item; }

    void setItem(ServerItem *item);
    void removeDeviceEditor(ServerItem *item);
    bool pasteFromClipboard(const QVariantMap &map);
    void saveFieldsInTagsAllEditors();
    void updateButtonsAllEditors();
    bool getModbusBusyAllEditors() const;
    void reloadFileBufferOfCurrenEditor();
    void stopAllEditorsReadChannels();
    void stopCurrentEditorReadChannels();
    void restartCurrentEditorReadChannels();
    void enableEditors(bool on);
    void updateEditorsSizePolicy(QWidget *widget);

signals:
    void changed(ServerItem *item);
    void editorAdded();

private:
    QMap<int, IServerItemEditor *> m_editors;
    QMap<ServerItem *, QWidget *> m_deviceEditors;
    QWidget *m_devicePage;
    ServerItem *m_item = nullptr;
};

#endif // SERVERITEMEDITOR_H
