#include "app/application.h"
#include "app/debugqt.h"
#include "app/mainwindow.h"
#include "app/sighandler.h"
#include "config/appsettings.h"
#include "config/devicetemplatecatalog.h"
#include "exchange/modbuslogger.h"

#include <QRect>
#include <QScreen>

// Singletons come up in dependency order and go down in the reverse one; the
// log channel is first up so that everything after it can report.
int main(int argc, char *argv[])
{
    DebugQt::instance(DebugQt::StartFlags, nullptr)->setEmitMessages(true);
    install_sig_handlers();

    // Settings are read before the application object exists.
    AppSettings *settings = AppSettings::instance();
    settings->load();

    auto *app = new Application(argc, argv);
    Application::loadTranslations(QStringLiteral(":/lang"));

    // Made here so that the frame tap lives in the interface thread.
    ModbusLogger::instance();

    DeviceTemplateCatalog::instance()->loadTemplates(AppSettings::templates_dir());
    auto *window = new MainWindow;

    if (settings->isApplyCss())
        app->loadCss();

    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        const QRect available = screen->availableGeometry();
        window->move((available.width() - window->width()) / 2,
                     (available.height() - window->height()) / 2);
    }
    window->show();
    const int code = app->exec();

    delete window;
    DeviceTemplateCatalog::release();
    AppSettings::release();
    ModbusLogger::release();
    delete DebugQt::instance();
    delete app;
    return code;
}
