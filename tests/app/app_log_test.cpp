// Tests of the log line, the two log files and the message handler.
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <thread>
#include <vector>

#include "app/app_log.h"
#include "child_process.h"

using namespace kelvane_app;

namespace {

const QRegularExpression line_pattern(
    QStringLiteral(R"(^\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d\.\d{3} \[(DEBUG|INFO|WARN|ERROR|FATAL)\] (.*)$)"));

void log_through_handler(QtMsgType type, const QString& message) {
    log_message_handler(type, QMessageLogContext(), message);
}

}  // namespace

class AppLogTest : public QObject {
    Q_OBJECT

  private slots:
    void level_words() {
        QCOMPARE(level_word(QtDebugMsg), "DEBUG");
        QCOMPARE(level_word(QtInfoMsg), "INFO");
        QCOMPARE(level_word(QtWarningMsg), "WARN");
        QCOMPARE(level_word(QtCriticalMsg), "ERROR");
        QCOMPARE(level_word(QtFatalMsg), "FATAL");
    }

    void line_is_time_level_and_message() {
        const QDateTime time(QDate(2024, 3, 5), QTime(7, 8, 9, 45));
        QCOMPARE(log_line(time, QtWarningMsg, QStringLiteral("disk slow")),
                 QStringLiteral("2024-03-05T07:08:09.045 [WARN] disk slow"));
        QCOMPARE(log_line(time, QtCriticalMsg, QString()),
                 QStringLiteral("2024-03-05T07:08:09.045 [ERROR] "));
    }

    void current_local_time_carries_no_zone() {
        const QString line = log_line(QDateTime::currentDateTime(), QtInfoMsg, QStringLiteral("now"));
        const auto match = line_pattern.match(line);
        QVERIFY2(match.hasMatch(), qPrintable(line));
        QCOMPARE(match.captured(2), QStringLiteral("now"));
    }

    void paths_join_directory_separator_and_file_name() {
        AppLog log(QStringLiteral("/some/app"), QStringLiteral("/some/temp"));
        QCOMPARE(log.app_log_path(), QStringLiteral("/some/app/orvanthis.log"));
        QCOMPARE(log.temp_log_path(), QStringLiteral("/some/temp/orvanthis.log"));
    }

    void handler_writes_each_line_to_both_open_files() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        AppLog log(app_dir.path(), temp_dir.path());
        log.open();
        QCOMPARE(log.open_count(), std::size_t{2});
        log_through_handler(QtDebugMsg, QStringLiteral("one"));
        log_through_handler(QtWarningMsg, QStringLiteral("two ≈ three"));
        for (const QString& path : {log.app_log_path(), log.temp_log_path()}) {
            const QByteArray bytes = kelvane_test::read_bytes(path);
            QVERIFY(!bytes.contains('\r'));
            const QStringList lines = kelvane_test::read_lines(path);
            QCOMPARE(lines.size(), 2);
            QCOMPARE(line_pattern.match(lines[0]).captured(1), QStringLiteral("DEBUG"));
            QCOMPARE(line_pattern.match(lines[0]).captured(2), QStringLiteral("one"));
            QCOMPARE(line_pattern.match(lines[1]).captured(1), QStringLiteral("WARN"));
            QCOMPARE(line_pattern.match(lines[1]).captured(2), QStringLiteral("two ≈ three"));
        }
    }

    void an_unopenable_file_is_left_out() {
        QTemporaryDir temp_dir;
        AppLog log(temp_dir.filePath(QStringLiteral("missing")), temp_dir.path());
        log.open();
        QCOMPARE(log.open_count(), std::size_t{1});
        log_through_handler(QtInfoMsg, QStringLiteral("only here"));
        QCOMPARE(kelvane_test::read_lines(log.temp_log_path()).size(), 1);
        QVERIFY(!QFile::exists(log.app_log_path()));
    }

    void without_open_files_the_handler_appends_directly() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        AppLog log(app_dir.path(), temp_dir.path());
        QCOMPARE(log.open_count(), std::size_t{0});
        log_through_handler(QtCriticalMsg, QStringLiteral("direct"));
        for (const QString& path : {log.app_log_path(), log.temp_log_path()}) {
            const QByteArray bytes = kelvane_test::read_bytes(path);
            QVERIFY(bytes.endsWith("] direct\r\n"));
            QCOMPARE(line_pattern.match(kelvane_test::read_lines(path).value(0)).captured(1),
                     QStringLiteral("ERROR"));
        }
    }

    void files_leave_the_handler_with_their_owner() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        {
            AppLog log(app_dir.path(), temp_dir.path());
            log.open();
        }
        AppLog later(app_dir.path(), temp_dir.path());
        QCOMPARE(later.open_count(), std::size_t{0});
    }

    void append_to_both_writes_both_paths() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        AppLog log(app_dir.path(), temp_dir.path());
        append_to_both("FATAL: plain");
        QCOMPARE(kelvane_test::read_bytes(log.app_log_path()), QByteArray("FATAL: plain\r\n"));
        QCOMPARE(kelvane_test::read_bytes(log.temp_log_path()), QByteArray("FATAL: plain\r\n"));
    }

    void lines_from_many_threads_stay_whole() {
        constexpr int threads = 4;
        constexpr int lines_per_thread = 250;
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        AppLog log(app_dir.path(), temp_dir.path());
        log.open();
        std::vector<std::thread> writers;
        for (int t = 0; t < threads; ++t) {
            writers.emplace_back([t] {
                for (int i = 0; i < lines_per_thread; ++i) {
                    log_through_handler(
                        QtInfoMsg, QStringLiteral("thread %1 line %2 padding padding padding").arg(t).arg(i));
                }
            });
        }
        for (std::thread& writer : writers) writer.join();
        for (const QString& path : {log.app_log_path(), log.temp_log_path()}) {
            const QStringList lines = kelvane_test::read_lines(path);
            QCOMPARE(lines.size(), threads * lines_per_thread);
            for (const QString& line : lines) QVERIFY2(line_pattern.match(line).hasMatch(), qPrintable(line));
        }
    }

    void fatal_message_is_written_then_aborts() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        const auto end = kelvane_test::run_in_child([&] {
            AppLog log(app_dir.path(), temp_dir.path());
            log.open();
            log_through_handler(QtFatalMsg, QStringLiteral("cannot go on"));
            return 0;
        });
        QVERIFY(!end.exited);
        QCOMPARE(end.signal_number, SIGABRT);
        const QString path = temp_dir.filePath(QStringLiteral("orvanthis.log"));
        const auto match = line_pattern.match(kelvane_test::read_lines(path).value(0));
        QCOMPARE(match.captured(1), QStringLiteral("FATAL"));
        QCOMPARE(match.captured(2), QStringLiteral("cannot go on"));
    }
};

QTEST_APPLESS_MAIN(AppLogTest)
#include "app_log_test.moc"
