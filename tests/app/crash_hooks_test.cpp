// Tests of the crash hooks: the exact FATAL lines in both logs and how the process ends.
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <exception>
#include <limits>
#include <new>
#include <stdexcept>
#include <thread>

#include "app/app_log.h"
#include "app/crash_hooks.h"
#include "child_process.h"

using namespace kelvane_app;

namespace {

void* volatile kept_allocation = nullptr;

// Runs failure in a child whose crash hooks write to two fresh logs; returns the lines of both logs.
struct CrashRun {
    kelvane_test::ChildEnd end;
    QStringList app_lines;
    QStringList temp_lines;
};

CrashRun crash_in_child(const std::function<void()>& failure) {
    QTemporaryDir app_dir;
    QTemporaryDir temp_dir;
    CrashRun run;
    run.end = kelvane_test::run_in_child([&] {
        AppLog log(app_dir.path(), temp_dir.path());
        install_crash_hooks();
        failure();
        return 0;
    });
    run.app_lines = kelvane_test::read_lines(app_dir.filePath(QStringLiteral("orvanthis.log")));
    run.temp_lines = kelvane_test::read_lines(temp_dir.filePath(QStringLiteral("orvanthis.log")));
    return run;
}

}  // namespace

class CrashHooksTest : public QObject {
    Q_OBJECT

  private slots:
    void exception_lines_are_lower_case_hex_without_padding() {
        QCOMPARE(exception_line("Vectored exception", 0xC0000005u, 0x7FF6A1B2C3D4u).view(),
                 std::string_view("FATAL: Vectored exception code=0xc0000005 addr=7ff6a1b2c3d4"));
        QCOMPARE(exception_line("Unhandled SEH exception", 0, 0).view(),
                 std::string_view("FATAL: Unhandled SEH exception code=0x0 addr=0"));
    }

    void signal_line_is_decimal() {
        QCOMPARE(signal_line(11).view(), std::string_view("FATAL: C signal received sig=11"));
    }

    void crash_line_stops_at_its_capacity() {
        CrashLine line;
        const std::string long_text(1000, 'x');
        line.append(long_text).append_decimal(12345).append_hex(0xabc);
        QVERIFY(line.view().size() < long_text.size());
        QVERIFY(line.view().find_first_not_of('x') == std::string_view::npos);
    }

    void segmentation_fault_is_logged_then_aborts() {
        const CrashRun run = crash_in_child([] {
            volatile int* volatile nowhere = nullptr;
            *nowhere = 1;
        });
        QVERIFY(!run.end.exited);
        QCOMPARE(run.end.signal_number, SIGABRT);
        for (const QStringList& lines : {run.app_lines, run.temp_lines}) {
            QCOMPARE(lines.value(0), QStringLiteral("FATAL: C signal received sig=%1").arg(SIGSEGV));
            // abort() raises SIGABRT, whose hook reports it once more.
            QCOMPARE(lines.value(1), QStringLiteral("FATAL: C signal received sig=%1").arg(SIGABRT));
            QCOMPARE(lines.size(), 2);
        }
    }

    void every_hooked_signal_is_logged_data() {
        QTest::addColumn<int>("number");
        QTest::newRow("SIGABRT") << SIGABRT;
        QTest::newRow("SIGSEGV") << SIGSEGV;
        QTest::newRow("SIGILL") << SIGILL;
        QTest::newRow("SIGFPE") << SIGFPE;
    }

    void every_hooked_signal_is_logged() {
        QFETCH(int, number);
        const CrashRun run = crash_in_child([number] { std::raise(number); });
        QCOMPARE(run.end.signal_number, SIGABRT);
        QCOMPARE(run.app_lines.value(0), QStringLiteral("FATAL: C signal received sig=%1").arg(number));
        QCOMPARE(run.temp_lines.value(0), QStringLiteral("FATAL: C signal received sig=%1").arg(number));
    }

    void a_file_line_has_no_time_or_level_and_ends_with_crlf() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        kelvane_test::run_in_child([&] {
            AppLog log(app_dir.path(), temp_dir.path());
            install_crash_hooks();
            std::raise(SIGFPE);
            return 0;
        });
        const QByteArray bytes = kelvane_test::read_bytes(temp_dir.filePath(QStringLiteral("orvanthis.log")));
        QVERIFY2(bytes.startsWith("FATAL: C signal received sig=8\r\n"), bytes.constData());
    }

    void terminate_is_logged_then_aborts() {
        const CrashRun run = crash_in_child([] { std::terminate(); });
        QCOMPARE(run.end.signal_number, SIGABRT);
        for (const QStringList& lines : {run.app_lines, run.temp_lines}) {
            QCOMPARE(lines.value(0), QStringLiteral("FATAL: std::terminate() called"));
            QCOMPARE(lines.value(1), QStringLiteral("FATAL: C signal received sig=%1").arg(SIGABRT));
        }
    }

    void an_escaping_exception_reaches_the_terminate_hook() {
        // An exception that leaves a thread's function ends in std::terminate.
        const CrashRun run =
            crash_in_child([] { std::thread([] { throw std::runtime_error("escaped"); }).join(); });
        QCOMPARE(run.end.signal_number, SIGABRT);
        QCOMPARE(run.temp_lines.value(0), QStringLiteral("FATAL: std::terminate() called"));
    }

    void failed_allocation_is_logged_then_aborts() {
        const CrashRun run = crash_in_child(
            [] { kept_allocation = ::operator new(std::numeric_limits<std::size_t>::max() / 2); });
        QCOMPARE(run.end.signal_number, SIGABRT);
        for (const QStringList& lines : {run.app_lines, run.temp_lines}) {
            QCOMPARE(lines.value(0), QStringLiteral("FATAL: std::new_handler invoked (out of memory)"));
            QCOMPARE(lines.value(1), QStringLiteral("FATAL: C signal received sig=%1").arg(SIGABRT));
        }
    }

    void a_caught_exception_leaves_no_line_here() {
        QTemporaryDir app_dir;
        QTemporaryDir temp_dir;
        const auto end = kelvane_test::run_in_child([&] {
            AppLog log(app_dir.path(), temp_dir.path());
            install_crash_hooks();
            try {
                throw std::invalid_argument("invalid board");
            } catch (const std::invalid_argument&) {
                return 7;
            }
        });
        QVERIFY(end.exited);
        QCOMPARE(end.exit_code, 7);
        QVERIFY(!QFile::exists(temp_dir.filePath(QStringLiteral("orvanthis.log"))));
    }
};

QTEST_APPLESS_MAIN(CrashHooksTest)
#include "crash_hooks_test.moc"
