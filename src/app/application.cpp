// Start-up in a fixed order: the log and the crash hooks stand before anything that could fail.
#include "app/application.h"

#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQmlError>
#include <QQuickStyle>
#include <QStandardPaths>
#include <QtDebug>

#include "app/app_controller.h"
#include "app/app_log.h"
#include "app/crash_hooks.h"
#include "app/font_lists.h"
#include "app/language_manager.h"

namespace kelvane_app {
namespace {

constexpr char quick_controls_style[] = "Basic";
constexpr char window_icon[] = ":/Kelvane/qml/assets/Orvanthis_logo.png";
constexpr char product_name[] = "Orvanthis";
constexpr char product_version[] = "0.1.0";

QString temp_directory() {
    const QString temp = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
    return temp.isEmpty() ? QDir::currentPath() : temp;
}

void append_info_to_both(const QString& message) {
    append_to_both(log_line(QDateTime::currentDateTime(), QtInfoMsg, message).toUtf8().toStdString());
}

void log_start(const QString& app_dir, const AppLog& log) {
    qInfo().noquote() << "Starting Orvanthis";
    qInfo().noquote() << QStringLiteral("appDir=") + app_dir;
    qInfo().noquote() << QStringLiteral("cwd=") + QDir::currentPath();
    qInfo().noquote() << QStringLiteral("log_appDir=") + log.app_log_path();
    qInfo().noquote() << QStringLiteral("log_temp=") + log.temp_log_path();
    qInfo().noquote() << QStringLiteral("QuickControlsStyle=") + QQuickStyle::name();
}

void log_qml_warnings(const QList<QQmlError>& warnings) {
    for (const QQmlError& warning : warnings) qWarning().noquote() << warning.toString();
}

void connect_engine_reports(QQmlApplicationEngine& engine) {
    QObject::connect(&engine, &QQmlEngine::warnings, &engine, log_qml_warnings);
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreationFailed, &engine,
        [] {
            qCritical().noquote() << "QML object creation failed";
            QCoreApplication::exit(-1);
        },
        Qt::QueuedConnection);
}

}  // namespace

int run_application(int& argc, char** argv, const LaunchOptions& options) {
    // Qt reads the style only before the application object exists.
    QQuickStyle::setStyle(QLatin1String(quick_controls_style));
    QGuiApplication app(argc, argv);
    QGuiApplication::setWindowIcon(QIcon(QLatin1String(window_icon)));
    install_theme_font_lists();
    QCoreApplication::setOrganizationName(QLatin1String(product_name));
    QCoreApplication::setApplicationName(QLatin1String(product_name));
    QCoreApplication::setApplicationVersion(QLatin1String(product_version));

    const QString app_dir =
        options.app_dir.isEmpty() ? QCoreApplication::applicationDirPath() : options.app_dir;
    AppLog log(app_dir, temp_directory());
    install_crash_hooks();
    append_info_to_both(QStringLiteral("Crash handlers installed (v2)"));
    append_info_to_both(QStringLiteral("--- Kelvane Desktop starting (pre-QFile) ---"));

    log.open();
    if (log.open_count() > 0) {
        qInstallMessageHandler(log_message_handler);
        log_start(app_dir, log);
    }
    QGuiApplication::setQuitOnLastWindowClosed(true);

    QQmlApplicationEngine engine;
    // The module's documents in subfolders import the module itself, which lives under qrc:/Kelvane/.
    engine.addImportPath(QStringLiteral("qrc:/"));
    // Created before the first load, so the first document already comes up in the saved language.
    LanguageManager language_manager(&engine);
    engine.rootContext()->setContextProperty(QStringLiteral("languageManager"), &language_manager);
    AppController app_controller;
    engine.rootContext()->setContextProperty(QStringLiteral("appController"), &app_controller);
    connect_engine_reports(engine);

    engine.load(options.root_document);
    if (engine.rootObjects().isEmpty()) {
        qCritical().noquote() << "Failed to load QML:" << options.root_document.toString();
        return -1;
    }
    qInfo().noquote() << QStringLiteral("QML loaded. rootObjects=%1").arg(engine.rootObjects().size());
    return QGuiApplication::exec();
}

}  // namespace kelvane_app
