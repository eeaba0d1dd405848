#ifndef ISERVERITEMEDITOR_H
#define ISERVERITEMEDITOR_H

#include "model/serveritem.h"

#include <QWidget>

// A page on the right of the main window that shows one item of the tree.
class IServerItemEditor : public QWidget
{
    Q_OBJECT
public:
    explicit IServerItemEditor(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        // Queued and spied connections of changed() need the type by name.
        qRegisterMetaType<ServerItem *>("ServerItem*");
    }

public slots:
    virtual void setItem(ServerItem *item) = 0;
    // Called before another item takes the page over.
    virtual void disconnectEditor() = 0;

signals:
    void changed(ServerItem *item);
};

#endif // ISERVERITEMEDITOR_H
