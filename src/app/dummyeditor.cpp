#include "app/dummyeditor.h"

#include "app/debugqt.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QTextStream>
#include <QVBoxLayout>

DummyEditor::DummyEditor(QWidget *parent, const QString &helpFile)
    : IServerItemEditor(parent)
    , m_text(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("DummyEditor"));
    m_text->setObjectName(QStringLiteral("helpTextEdit"));
    m_text->setReadOnly(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_text);

    QFile file(helpFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        LOG_ERR << "can't open" << helpFile;
        m_text->setPlainText(tr("Can't open help file"));
        return;
    }
    // The manual is kept in UTF-8 whatever the locale of the machine.
    QTextStream stream(&file);
    stream.setEncoding(QStringConverter::Utf8);
    QString line;
    while (stream.readLineInto(&line))
        m_text->appendPlainText(line);
    m_text->moveCursor(QTextCursor::Start);
}

QString DummyEditor::text() const
{
    return m_text->toPlainText();
}
