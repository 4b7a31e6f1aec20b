// Tests of start-up: the order and text of the start-up lines, both logs, fallbacks and the exit codes.
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtQml/qqmlextensionplugin.h>
#include <QtTest>

#include <fcntl.h>

#include "app/application.h"
#include "child_process.h"

namespace {

constexpr int failed_load_status = 255;  // -1 as a process exit status
constexpr int document_exit_code = 3;

const QRegularExpression line_pattern(
    QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3} \[(DEBUG|INFO|WARN|ERROR|FATAL)\] (.*)$)"));

// A root document that ends the event loop with a known code soon after it starts.
const char* const exiting_document = R"(import QtQuick
Window {
    property int broken: undefinedName + 1
    Timer { interval: 50; running: true; onTriggered: Qt.exit(3) }
}
)";

const char* const unparsable_document = "import QtQuick\nWindow { width: }\n";

// Creates the real root window beside itself and reports what its documents can see.
const char* const probing_document = R"(import QtQuick
Window {
    Component.onCompleted: {
        const main = Qt.createComponent("qrc:/Kelvane/Main.qml").createObject(null);
        const shell = main ? main.contentItem.children[0] : null;
        console.info("probe appController=" + (typeof appController !== "undefined" && appController !== null)
                     + " languageManager=" + (typeof languageManager !== "undefined" && languageManager !== null)
                     + " shellController=" + (shell !== null && shell.controller === appController));
        Qt.exit(3);
    }
}
)";

struct Launch {
    QString app_dir;
    QString temp_dir;
    QUrl root;
    QString stderr_path = {};  // empty: the child's error output stays the test's
    QString working_dir = {};  // empty: the test's
};

kelvane_test::ChildEnd launch_in_child(const Launch& launch) {
    return kelvane_test::run_in_child([&] {
        // A real process starts with Qt's own message output, not the test framework's.
        qInstallMessageHandler(nullptr);
        qputenv("TMPDIR", launch.temp_dir.toUtf8());
        qputenv("QT_QPA_PLATFORM", "offscreen");
        if (!launch.working_dir.isEmpty()) QDir::setCurrent(launch.working_dir);
        if (!launch.stderr_path.isEmpty()) {
            const int file =
                ::open(launch.stderr_path.toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            ::dup2(file, STDERR_FILENO);
        }
        int argc = 1;
        char name[] = "orvanthis";
        char* argv[] = {name, nullptr};
        return kelvane_app::run_application(argc, argv, {launch.root, launch.app_dir});
    });
}

QUrl write_document(const QTemporaryDir& dir, const QString& name, const char* text) {
    const QString path = dir.filePath(name);
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(text);
    return QUrl::fromLocalFile(path);
}

QString log_in(const QString& dir) { return dir + QStringLiteral("/orvanthis.log"); }

// The messages of the lines written through the log, in order; lines without time and level are dropped.
QStringList messages(const QStringList& lines, const QString& level) {
    QStringList found;
    for (const QString& line : lines) {
        const auto match = line_pattern.match(line);
        if (match.hasMatch() && match.captured(1) == level) found << match.captured(2);
    }
    return found;
}

bool contains_in_order(const QStringList& all, const QStringList& wanted) {
    qsizetype at = 0;
    for (const QString& line : wanted) {
        at = all.indexOf(line, at);
        if (at < 0) return false;
        ++at;
    }
    return true;
}

}  // namespace

class ApplicationTest : public QObject {
    Q_OBJECT

  private:
    QTemporaryDir work_;
    QUrl exiting_root_;

    QString make_dir(const QString& name) {
        QDir(work_.path()).mkpath(name);
        return work_.filePath(name);
    }

  private slots:
    void initTestCase() {
        QVERIFY(work_.isValid());
        exiting_root_ = write_document(work_, QStringLiteral("Exiting.qml"), exiting_document);
    }

    void start_up_writes_every_line_to_both_logs() {
        const QString app_dir = make_dir(QStringLiteral("both/app"));
        const QString temp_dir = make_dir(QStringLiteral("both/temp"));
        const auto end = launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = exiting_root_});
        QVERIFY(end.exited);
        QCOMPARE(end.exit_code, document_exit_code);

        const QStringList expected_info = {
            QStringLiteral("Crash handlers installed (v2)"),
            QStringLiteral("--- Kelvane Desktop starting (pre-QFile) ---"),
            QStringLiteral("Starting Orvanthis"),
            QStringLiteral("appDir=") + app_dir,
            QStringLiteral("cwd=") + QDir::currentPath(),
            QStringLiteral("log_appDir=") + log_in(app_dir),
            QStringLiteral("log_temp=") + log_in(temp_dir),
            QStringLiteral("QuickControlsStyle=Basic"),
            QStringLiteral("QML loaded. rootObjects=1"),
        };
        for (const QString& log : {log_in(app_dir), log_in(temp_dir)}) {
            const QByteArray bytes = kelvane_test::read_bytes(log);
            const QList<QByteArray> raw = bytes.split('\n');
            // The two lines written before the files open end with CR LF, those of the handler with LF.
            QVERIFY(raw.value(0).endsWith("] Crash handlers installed (v2)\r"));
            QVERIFY(raw.value(1).endsWith("] --- Kelvane Desktop starting (pre-QFile) ---\r"));
            QVERIFY(raw.value(2).endsWith("] Starting Orvanthis"));

            const QStringList lines = kelvane_test::read_lines(log);
            for (const QString& line : lines) QVERIFY2(line_pattern.match(line).hasMatch(), qPrintable(line));
            const QStringList info = messages(lines, QStringLiteral("INFO"));
            QVERIFY2(contains_in_order(info, expected_info), qPrintable(info.join(QLatin1Char('\n'))));
            QCOMPARE(info.mid(0, 8), expected_info.mid(0, 8));
        }
    }

    void qml_warnings_are_logged_at_warn_level() {
        const QString app_dir = make_dir(QStringLiteral("warn/app"));
        const QString temp_dir = make_dir(QStringLiteral("warn/temp"));
        launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = exiting_root_});
        const QStringList warnings =
            messages(kelvane_test::read_lines(log_in(temp_dir)), QStringLiteral("WARN"));
        const auto reference_errors =
            warnings.filter(QStringLiteral("ReferenceError: undefinedName is not defined"));
        QVERIFY2(!reference_errors.isEmpty(), qPrintable(warnings.join(QLatin1Char('\n'))));
        QVERIFY(!reference_errors.first().startsWith(QLatin1Char('"')));
    }

    void a_second_start_appends_to_both_logs() {
        const QString app_dir = make_dir(QStringLiteral("twice/app"));
        const QString temp_dir = make_dir(QStringLiteral("twice/temp"));
        launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = exiting_root_});
        launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = exiting_root_});
        for (const QString& log : {log_in(app_dir), log_in(temp_dir)}) {
            const QStringList info = messages(kelvane_test::read_lines(log), QStringLiteral("INFO"));
            QCOMPARE(info.count(QStringLiteral("Starting Orvanthis")), 2);
            QCOMPARE(info.count(QStringLiteral("Crash handlers installed (v2)")), 2);
        }
    }

    void an_unwritable_app_directory_leaves_the_temporary_log() {
        // Permissions do not bind a privileged user, so the directory is made unwritable by not existing.
        const QString app_dir = work_.filePath(QStringLiteral("absent/app"));
        const QString temp_dir = make_dir(QStringLiteral("absent/temp"));
        const auto end = launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = exiting_root_});
        QCOMPARE(end.exit_code, document_exit_code);
        QVERIFY(!QFile::exists(log_in(app_dir)));
        const QStringList info = messages(kelvane_test::read_lines(log_in(temp_dir)), QStringLiteral("INFO"));
        QVERIFY(contains_in_order(
            info, {QStringLiteral("Crash handlers installed (v2)"),
                   QStringLiteral("--- Kelvane Desktop starting (pre-QFile) ---"),
                   QStringLiteral("Starting Orvanthis"), QStringLiteral("log_appDir=") + log_in(app_dir),
                   QStringLiteral("QML loaded. rootObjects=1")}));
    }

    void without_a_temporary_location_the_current_directory_holds_the_log() {
        const QString app_dir = make_dir(QStringLiteral("cwd/app"));
        const QString current = make_dir(QStringLiteral("cwd/current"));
        // Qt reports no temporary location when TMPDIR names a directory that does not exist.
        const QString missing_temp = work_.filePath(QStringLiteral("cwd/no-temp"));
        const auto end = launch_in_child(
            {.app_dir = app_dir, .temp_dir = missing_temp, .root = exiting_root_, .working_dir = current});
        QCOMPARE(end.exit_code, document_exit_code);
        const QStringList info = messages(kelvane_test::read_lines(log_in(current)), QStringLiteral("INFO"));
        QVERIFY(info.contains(QStringLiteral("log_temp=") + log_in(current)));
        QVERIFY(info.contains(QStringLiteral("QML loaded. rootObjects=1")));
    }

    void without_any_log_the_default_output_stays() {
        // A plain file where both directories should be: nothing can be created below it.
        const QString blocker = work_.filePath(QStringLiteral("blocker"));
        QFile(blocker).open(QIODevice::WriteOnly);
        const QString stderr_path = work_.filePath(QStringLiteral("stderr.txt"));
        const auto end = launch_in_child(
            {.app_dir = blocker, .temp_dir = blocker, .root = exiting_root_, .stderr_path = stderr_path});
        QCOMPARE(end.exit_code, document_exit_code);
        QCOMPARE(QFileInfo(blocker).size(), 0);
        const QByteArray output = kelvane_test::read_bytes(stderr_path);
        QVERIFY2(output.contains("QML loaded. rootObjects=1"), output.constData());
        QVERIFY(output.contains("ReferenceError: undefinedName is not defined"));
        QVERIFY(!output.contains("Starting Orvanthis"));
    }

    void the_root_window_sees_both_context_properties() {
        const QString app_dir = make_dir(QStringLiteral("probe/app"));
        const QString temp_dir = make_dir(QStringLiteral("probe/temp"));
        const QUrl root = write_document(work_, QStringLiteral("Probe.qml"), probing_document);
        const auto end = launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = root});
        QVERIFY(end.exited);
        QCOMPARE(end.exit_code, document_exit_code);
        const QStringList info = messages(kelvane_test::read_lines(log_in(temp_dir)), QStringLiteral("INFO"));
        QVERIFY2(info.contains(QStringLiteral("probe appController=true languageManager=true shellController=true")),
                 qPrintable(info.join(QLatin1Char('\n'))));
    }

    void a_missing_root_document_ends_with_minus_one() {
        const QString app_dir = make_dir(QStringLiteral("missing/app"));
        const QString temp_dir = make_dir(QStringLiteral("missing/temp"));
        const QUrl root = QUrl::fromLocalFile(work_.filePath(QStringLiteral("NoSuchMain.qml")));
        const auto end = launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = root});
        QVERIFY(end.exited);
        QCOMPARE(end.exit_code, failed_load_status);
        for (const QString& log : {log_in(app_dir), log_in(temp_dir)}) {
            const QStringList lines = kelvane_test::read_lines(log);
            const QStringList errors = messages(lines, QStringLiteral("ERROR"));
            QVERIFY2(errors.contains(QStringLiteral("Failed to load QML: ") + root.toString()),
                     qPrintable(errors.join(QLatin1Char('\n'))));
            QVERIFY(messages(lines, QStringLiteral("INFO")).filter(QStringLiteral("QML loaded")).isEmpty());
        }
    }

    void an_unparsable_root_document_ends_with_minus_one() {
        const QString app_dir = make_dir(QStringLiteral("broken/app"));
        const QString temp_dir = make_dir(QStringLiteral("broken/temp"));
        const QUrl root = write_document(work_, QStringLiteral("Broken.qml"), unparsable_document);
        const auto end = launch_in_child({.app_dir = app_dir, .temp_dir = temp_dir, .root = root});
        QCOMPARE(end.exit_code, failed_load_status);
        const QStringList lines = kelvane_test::read_lines(log_in(temp_dir));
        QVERIFY(messages(lines, QStringLiteral("ERROR"))
                    .contains(QStringLiteral("Failed to load QML: ") + root.toString()));
        QVERIFY(!messages(lines, QStringLiteral("WARN")).filter(QStringLiteral("Broken.qml")).isEmpty());
    }
};

// The module is linked statically, as in the application.
Q_IMPORT_QML_PLUGIN(KelvanePlugin)

QTEST_APPLESS_MAIN(ApplicationTest)
#include "application_test.moc"
