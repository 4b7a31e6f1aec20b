// Runs the QML tests against the real module: each test document gets a real controller and language manager
// under the names the application publishes, and a settings store of its own.
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

#include "app/app_controller.h"
#include "app/font_lists.h"
#include "app/language_manager.h"
#include "app/settings_sandbox.h"

Q_IMPORT_QML_PLUGIN(KelvanePlugin)

namespace {

// The variable that names the folder for the screenshot document's images.
constexpr char kScreenshotDirVariable[] = "KELVANE_SCREENSHOT_DIR";

class QmlTestSetup : public QObject {
    Q_OBJECT

  public slots:
    void applicationAvailable() {
        kelvane_test::use_private_settings_store();
        kelvane_app::install_theme_font_lists();
    }

    void qmlEngineAvailable(QQmlEngine* engine) {
        // The test documents live outside the module, so they import it by name from the resources.
        engine->addImportPath(QStringLiteral("qrc:/"));
        QQmlContext* context = engine->rootContext();
        context->setContextProperty(QStringLiteral("languageManager"),
                                    new kelvane_app::LanguageManager(engine, engine));
        context->setContextProperty(QStringLiteral("appController"), new kelvane_app::AppController(engine));
        context->setContextProperty(QStringLiteral("screenshotDirectory"),
                                    qEnvironmentVariable(kScreenshotDirVariable));
    }
};

}  // namespace

QUICK_TEST_MAIN_WITH_SETUP(kelvane_qml_tests, QmlTestSetup)

#include "kelvane_qml_tests.moc"
