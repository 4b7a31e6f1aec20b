// Starts the real orvanthis executable headless and checks that it loads its root document and runs.
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "child_process.h"

namespace {

constexpr int start_timeout_ms = 30000;
constexpr int poll_interval_ms = 100;

}  // namespace

class OrvanthisSmokeTest : public QObject {
    Q_OBJECT

  private slots:
    void starts_loads_the_root_document_and_runs() {
        QTemporaryDir temp_dir;
        QProcess app;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("TMPDIR"), temp_dir.path());
        app.setProcessEnvironment(environment);
        app.setProcessChannelMode(QProcess::ForwardedChannels);
        app.start(QStringLiteral(ORVANTHIS_EXECUTABLE), {});
        QVERIFY(app.waitForStarted());

        const QString log = temp_dir.filePath(QStringLiteral("orvanthis.log"));
        QStringList lines;
        QTRY_VERIFY_WITH_TIMEOUT((lines = kelvane_test::read_lines(log))
                                             .filter(QStringLiteral("] QML loaded. rootObjects=1"))
                                             .size() == 1 ||
                                     app.state() == QProcess::NotRunning,
                                 start_timeout_ms);
        // Still running: the event loop holds the window.
        QCOMPARE(app.state(), QProcess::Running);
        QTest::qWait(poll_interval_ms * 5);
        QCOMPARE(app.state(), QProcess::Running);
        app.terminate();
        QVERIFY(app.waitForFinished());

        lines = kelvane_test::read_lines(log);
        QVERIFY(!lines.filter(QStringLiteral("] QuickControlsStyle=Basic")).isEmpty());
        QVERIFY(!lines
                     .filter(QStringLiteral("] appDir=") +
                             QFileInfo(QStringLiteral(ORVANTHIS_EXECUTABLE)).absolutePath())
                     .isEmpty());
        QVERIFY(lines.filter(QStringLiteral("Failed to load QML")).isEmpty());
        // The module's own documents load without a single warning or error.
        const QStringList module_reports = lines.filter(QStringLiteral("qrc:/Kelvane/"));
        QVERIFY2(module_reports.isEmpty(), qPrintable(module_reports.join(QLatin1Char('\n'))));
    }
};

QTEST_GUILESS_MAIN(OrvanthisSmokeTest)
#include "orvanthis_smoke_test.moc"
