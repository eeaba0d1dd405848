#include "app/messagebox.h"

namespace {
// Qt names the standard buttons in this context; listing the names here
// keeps them in our own catalogue, so that boxes and dialogs answer in the
// language of the rest of the window.
[[maybe_unused]] const char *const StandardButtonTexts[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),    QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),  QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"), QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),  QT_TRANSLATE_NOOP("QPlatformTheme", "Help"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply"), QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"),
};

MessageBox::Hook &hookRef()
{
    static MessageBox::Hook hook;
    return hook;
}
} // namespace

void MessageBox::setHook(const Hook &hook)
{
    hookRef() = hook;
}

bool MessageBox::hasHook()
{
    return bool(hookRef());
}

QMessageBox::StandardButton MessageBox::show(QWidget *parent, const Request &request)
{
    if (const Hook &hook = hookRef())
        return hook(request);
    QMessageBox box(request.icon, request.title, request.text, request.buttons, parent);
    if (request.defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(request.defaultButton);
    return QMessageBox::StandardButton(box.exec());
}

QMessageBox::StandardButton MessageBox::warning(QWidget *parent, const QString &title,
                                                const QString &text,
                                                QMessageBox::StandardButtons buttons,
                                                QMessageBox::StandardButton defaultButton)
{
    return show(parent, {QMessageBox::Warning, title, text, buttons, defaultButton});
}

QMessageBox::StandardButton MessageBox::critical(QWidget *parent, const QString &title,
                                                 const QString &text,
                                                 QMessageBox::StandardButtons buttons,
                                                 QMessageBox::StandardButton defaultButton)
{
    return show(parent, {QMessageBox::Critical, title, text, buttons, defaultButton});
}

QMessageBox::StandardButton MessageBox::information(QWidget *parent, const QString &title,
                                                    const QString &text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton)
{
    return show(parent, {QMessageBox::Information, title, text, buttons, defaultButton});
}

QMessageBox::StandardButton MessageBox::question(QWidget *parent, const QString &title,
                                                 const QString &text,
                                                 QMessageBox::StandardButtons buttons,
                                                 QMessageBox::StandardButton defaultButton)
{
    return show(parent, {QMessageBox::Question, title, text, buttons, defaultButton});
}
