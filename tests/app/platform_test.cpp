// Tests of the operating-system calls: line appends, physical memory and usable processors.
#include <QTemporaryDir>
#include <QtTest>

#include <sched.h>

#include <fstream>
#include <string>

#include "app/platform.h"
#include "child_process.h"

using kelvane_app::platform::append_line;

namespace {

std::uint64_t meminfo_kib(const std::string& key) {
    std::ifstream meminfo("/proc/meminfo");
    std::string name;
    std::uint64_t value = 0;
    std::string unit;
    while (meminfo >> name >> value >> unit) {
        if (name == key + ":") return value;
    }
    return 0;
}

}  // namespace

class PlatformTest : public QObject {
    Q_OBJECT

  private slots:
    void append_line_creates_the_file_and_ends_lines_with_crlf() {
        QTemporaryDir dir;
        const QByteArray path = dir.filePath(QStringLiteral("a.log")).toUtf8();
        append_line("first line", path.constData());
        append_line("second", path.constData());
        QCOMPARE(kelvane_test::read_bytes(QString::fromUtf8(path)), QByteArray("first line\r\nsecond\r\n"));
    }

    void append_line_never_truncates() {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("a.log"));
        QFile existing(path);
        QVERIFY(existing.open(QIODevice::WriteOnly));
        existing.write("kept\n");
        existing.close();
        append_line("added", path.toUtf8().constData());
        QCOMPARE(kelvane_test::read_bytes(path), QByteArray("kept\nadded\r\n"));
    }

    void append_line_writes_utf8_as_given() {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("é.log"));
        append_line("exploitability≈0.5", path.toUtf8().constData());
        QCOMPARE(kelvane_test::read_bytes(path), QByteArray("exploitability≈0.5\r\n"));
    }

    void append_line_ignores_empty_and_unopenable_paths() {
        QTemporaryDir dir;
        append_line("nothing", nullptr);
        append_line("nothing", "");
        const QString missing = dir.filePath(QStringLiteral("no-such-dir/a.log"));
        append_line("nothing", missing.toUtf8().constData());
        QVERIFY(!QFile::exists(missing));
        QVERIFY(QDir(dir.path()).entryList(QDir::NoDotAndDotDot | QDir::AllEntries).isEmpty());
    }

    void physical_memory_matches_the_kernel_totals() {
        const auto memory = kelvane_app::platform::physical_memory();
        QCOMPARE(memory.total_bytes, meminfo_kib("MemTotal") * 1024);
        QVERIFY(memory.available_bytes > 0);
        QVERIFY(memory.available_bytes <= memory.total_bytes);
    }

    void processor_count_follows_the_affinity_mask() {
        const unsigned all = kelvane_app::platform::logical_processor_count();
        QVERIFY(all >= 1);
        QVERIFY(all <= static_cast<unsigned>(sysconf(_SC_NPROCESSORS_CONF)));
        const auto end = kelvane_test::run_in_child([] {
            cpu_set_t allowed;
            if (sched_getaffinity(0, sizeof allowed, &allowed) != 0) return 2;
            int first = 0;
            while (!CPU_ISSET(first, &allowed)) ++first;
            cpu_set_t one;
            CPU_ZERO(&one);
            CPU_SET(first, &one);
            if (sched_setaffinity(0, sizeof one, &one) != 0) return 2;
            return kelvane_app::platform::logical_processor_count() == 1 ? 0 : 1;
        });
        QVERIFY(end.exited);
        QCOMPARE(end.exit_code, 0);
    }
};

QTEST_APPLESS_MAIN(PlatformTest)
#include "platform_test.moc"
