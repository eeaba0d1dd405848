#ifndef DUMMYEDITOR_H
#define DUMMYEDITOR_H

#include "app/iserveritemeditor.h"

class QPlainTextEdit;

// The page of the tree root: the manual, read-only.
class DummyEditor : public IServerItemEditor
{
    Q_OBJECT
public:
    explicit DummyEditor(QWidget *parent = nullptr,
                         const QString &helpFile = QStringLiteral(":/doc/regdesk.txt"));

    QString text() const;

public slots:
    void setItem(ServerItem *) override { }
    void disconnectEditor() override { }

private:
    QPlainTextEdit *m_text;
};

#endif // DUMMYEDITOR_H
