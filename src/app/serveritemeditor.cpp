#include "app/serveritemeditor.h"

#include "app/debugqt.h"
#include "app/dummyeditor.h"
#include "app/porteditor.h"
#include "model/device.h"

ServerItemEditor::ServerItemEditor(QWidget *parent)
    : QStackedWidget(parent)
    , m_devicePage(new QWidget(this))
{
    setObjectName(QStringLiteral("serverItemEditor"));
    auto *help = new DummyEditor(this);
    auto *port = new PortEditor(this);
    m_editors.insert(ServerItem::ItemServer, help);
    m_editors.insert(ServerItem::ItemPort, port);
    m_devicePage->setObjectName(QStringLiteral("devicePage"));
    addWidget(help);
    addWidget(port);
    addWidget(m_devicePage);
    for (IServerItemEditor *editor : std::as_const(m_editors))
        connect(editor, &IServerItemEditor::changed, this, &ServerItemEditor::changed);
}

QWidget *ServerItemEditor::currentDeviceEditor() const
{
    QWidget *page = currentWidget();
    for (QWidget *editor : m_deviceEditors)
        if (editor == page)
            return editor;
    return nullptr;
}

void ServerItemEditor::setItem(ServerItem *item)
{
    if (m_item && m_item != item) {
        if (IServerItemEditor *old = m_editors.value(m_item->type()))
            old->disconnectEditor();
    }
    m_item = item;
    if (!item)
        return;
    if (IServerItemEditor *editor = m_editors.value(item->type())) {
        editor->setItem(item);
        setCurrentWidget(editor);
        return;
    }
    if (item->type() == ServerItem::ItemDevice) {
        if (QWidget *editor = m_deviceEditors.value(item)) {
            setCurrentWidget(editor);
            return;
        }
        LOG_INFO << "try select editor by template:"
                 << static_cast<Device *>(item)->deviceTemplateName();
        setCurrentWidget(m_devicePage);
    }
}

void ServerItemEditor::removeDeviceEditor(ServerItem *item)
{
    if (m_item == item)
        m_item = nullptr;
    QWidget *editor = m_deviceEditors.take(item);
    if (editor) {
        removeWidget(editor);
        editor->deleteLater();
    }
    LOG_INFO << "completed";
}

bool ServerItemEditor::pasteFromClipboard(const QVariantMap &map)
{
    auto *device = qobject_cast<Device *>(m_item);
    if (!device)
        return false;
    return device->pasteFromClipboard(map);
}

void ServerItemEditor::saveFieldsInTagsAllEditors() { }

void ServerItemEditor::updateButtonsAllEditors() { }

bool ServerItemEditor::getModbusBusyAllEditors() const
{
    return false;
}

void ServerItemEditor::reloadFileBufferOfCurrenEditor() { }

void ServerItemEditor::stopAllEditorsReadChannels() { }

void ServerItemEditor::stopCurrentEditorReadChannels() { }

void ServerItemEditor::restartCurrentEditorReadChannels() { }

void ServerItemEditor::enableEditors(bool on)
{
    for (QWidget *editor : std::as_const(m_deviceEditors))
        editor->setEnabled(on);
}

void ServerItemEditor::updateEditorsSizePolicy(QWidget *widget)
{
    if (widget)
        widget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}
