// Tests of the text file services: reading with its size limit, atomic saving, resource text and the notices.
#include <sys/resource.h>

#include <QDesktopServices>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>

#include "app/app_controller.h"
#include "settings_sandbox.h"

using kelvane_app::AppController;

namespace {

constexpr qint64 kLimit = 2097152;
const QString kSample = QStringLiteral("Résumé of a resource: ♠ ♥ ♦ ♣\nsecond line\n");

QUrl writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& bytes) {
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly)) return {};
    file.write(bytes);
    return QUrl::fromLocalFile(file.fileName());
}

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVariantMap readFailure(const QString& error) {
    return {{"ok", false}, {"error", error}, {"text", QString()}};
}

QVariantMap saveFailure(const QString& error) { return {{"ok", false}, {"error", error}}; }

// Makes every write past the limit fail, as a full disk would; the signal it raises is ignored.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &saved);
        previousHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit = saved;
        limit.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, previousHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit saved{};
    void (*previousHandler)(int) = nullptr;
};

}  // namespace

// Stands in for the desktop: records what would have been opened.
class OpenedUrls : public QObject {
    Q_OBJECT

  public:
    QList<QUrl> urls;

  public slots:
    void open(const QUrl& url) { urls.append(url); }
};

class AppControllerFilesTest : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    std::unique_ptr<AppController> controller;

  private slots:
    void initTestCase() {
        kelvane_test::use_private_settings_store();
        QVERIFY(dir.isValid());
        controller = std::make_unique<AppController>();
    }

    void aFileAtTheLimitIsRead() {
        const QVariantMap answer =
            controller->readTextFile(writeFile(dir, "limit.txt", QByteArray(kLimit, 'x')));
        QCOMPARE(answer.value("ok").toBool(), true);
        QCOMPARE(answer.value("error").toString(), QString());
        QCOMPARE(answer.value("text").toString().size(), kLimit);
    }

    void oneByteMoreIsRefused() {
        const QUrl url = writeFile(dir, "over.txt", QByteArray(kLimit + 1, 'x'));
        QCOMPARE(controller->readTextFile(url), readFailure("File is too large (2097153 bytes)."));
    }

    void invalidUtf8IsReadWithReplacements() {
        const QVariantMap answer = controller->readTextFile(writeFile(dir, "latin1.txt", "caf\xe9 ok"));
        QCOMPARE(answer.value("ok").toBool(), true);
        QCOMPARE(answer.value("text").toString(),
                 QString("caf") + QChar(QChar::ReplacementCharacter) + " ok");
    }

    void textModeJoinsLineEnds() {
        const QVariantMap answer = controller->readTextFile(writeFile(dir, "crlf.txt", "a\r\nb\r\n"));
        QCOMPARE(answer.value("text").toString(), QStringLiteral("a\nb\n"));
    }

    void readRefusalsHaveTheirTexts() {
        QCOMPARE(controller->readTextFile(QUrl()), readFailure("Invalid file URL."));
        QCOMPARE(controller->readTextFile(QUrl("https://example.com/ranges.txt")),
                 readFailure("Only local files are supported."));
        QCOMPARE(controller->readTextFile(QUrl("ftp://example.com/ranges.txt")),
                 readFailure("Only local files are supported."));
        QCOMPARE(controller->readTextFile(QUrl("file:")), readFailure("Empty file path."));
        QCOMPARE(controller->readTextFile(QUrl::fromLocalFile(dir.filePath("missing.txt"))),
                 readFailure("File does not exist."));
        const QVariantMap folder = controller->readTextFile(QUrl::fromLocalFile(dir.path()));
        QCOMPARE(folder.value("ok").toBool(), false);
        QVERIFY2(folder.value("error").toString().startsWith("Failed to open file: "),
                 qPrintable(folder.value("error").toString()));
    }

    void readTextsStayEnglishUnderATranslation() {
        QTranslator german;
        QVERIFY(german.load(":/Kelvane/i18n/kelvane_de.qm"));
        QCoreApplication::installTranslator(&german);
        const QVariantMap read = controller->readTextFile(QUrl("file:"));
        const QVariantMap saved = controller->saveTextFile(QUrl("https://example.com/a.txt"), "x");
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(read.value("error").toString(), QStringLiteral("Empty file path."));
        QCOMPARE(saved.value("error").toString(), QStringLiteral("Ungültige oder nicht lokale Datei-URL"));
    }

    void aSavedTextReadsBack() {
        const QUrl url = QUrl::fromLocalFile(dir.filePath("saved.json"));
        QCOMPARE(controller->saveTextFile(url, "first"), QVariantMap({{"ok", true}, {"error", QString()}}));
        QCOMPARE(controller->saveTextFile(url, kSample), QVariantMap({{"ok", true}, {"error", QString()}}));
        QCOMPARE(readBytes(url.toLocalFile()), kSample.toUtf8());
        QCOMPARE(controller->readTextFile(url).value("text").toString(), kSample);
    }

    void saveRefusalsHaveTheirTexts() {
        QCOMPARE(controller->saveTextFile(QUrl(), "x"), saveFailure("Invalid/non-local file URL"));
        QCOMPARE(controller->saveTextFile(QUrl("https://example.com/a.txt"), "x"),
                 saveFailure("Invalid/non-local file URL"));
        QCOMPARE(controller->saveTextFile(QUrl("file:"), "x"), saveFailure("Empty file path"));
        const QString blocker = writeFile(dir, "plain_file", "x").toLocalFile();
        const QVariantMap underFile =
            controller->saveTextFile(QUrl::fromLocalFile(blocker + "/inner.txt"), "x");
        QCOMPARE(underFile.value("ok").toBool(), false);
        QVERIFY2(underFile.value("error").toString().startsWith("Failed to open file: "),
                 qPrintable(underFile.value("error").toString()));
        const QVariantMap onFolder = controller->saveTextFile(QUrl::fromLocalFile(dir.path()), "x");
        QVERIFY2(onFolder.value("error").toString().startsWith("Failed to open file: "),
                 qPrintable(onFolder.value("error").toString()));
    }

    void aFailedSaveLeavesTheOldFileIntact() {
        const QUrl url = writeFile(dir, "kept.txt", "old text");
        const QByteArray large(100000, 'n');
        for (const auto& [bytes, text] : {std::pair{rlim_t(0), QByteArray("new text")},
                                          std::pair{rlim_t(0), large}, std::pair{rlim_t(8), large}}) {
            QVariantMap answer;
            {
                const FileSizeLimit limit(bytes);
                answer = controller->saveTextFile(url, QString::fromUtf8(text));
            }
            QCOMPARE(answer.value("ok").toBool(), false);
            QVERIFY2(answer.value("error").toString().startsWith("Failed to save file: "),
                     qPrintable(answer.value("error").toString()));
            QCOMPARE(readBytes(url.toLocalFile()), QByteArray("old text"));
        }
        QCOMPARE(QDir(dir.path()).entryList({"kept.txt*"}, QDir::Files), QStringList({"kept.txt"}));
    }

    void resourcesReadAlikeUnderEveryPrefix() {
        QCOMPARE(controller->readTextResource(":/test/resource_sample.txt"), kSample);
        QCOMPARE(controller->readTextResource("qrc:/test/resource_sample.txt"), kSample);
        QCOMPARE(controller->readTextResource("/test/resource_sample.txt"), kSample);
        QCOMPARE(controller->readTextResource("  :/test/resource_sample.txt \n"), kSample);
    }

    void onlyResourcesAreRead() {
        QTest::ignoreMessage(QtWarningMsg, "readTextResource: not a Qt resource path: C:/ranges.json");
        QCOMPARE(controller->readTextResource("C:/ranges.json"), QString());
        QTest::ignoreMessage(QtWarningMsg, "readTextResource: not a Qt resource path: resource_sample.txt");
        QCOMPARE(controller->readTextResource("resource_sample.txt"), QString());
        // A rooted path is read from the resource tree, never from the disk.
        const QString onDisk = writeFile(dir, "disk.txt", "disk").toLocalFile();
        QTest::ignoreMessage(QtWarningMsg, qPrintable("readTextResource: failed to open: :" + onDisk));
        QCOMPARE(controller->readTextResource(onDisk), QString());
        QTest::ignoreMessage(QtWarningMsg, "readTextResource: failed to open: :/test/missing.txt");
        QCOMPARE(controller->readTextResource("qrc:/test/missing.txt"), QString());
    }

    void noticesOpenBesideTheExecutable() {
        OpenedUrls opened;
        QDesktopServices::setUrlHandler("file", &opened, "open");
        controller->openLicensesFolder();
        controller->openThirdPartyNotices();
        QDesktopServices::unsetUrlHandler("file");
        const QString appDir = QCoreApplication::applicationDirPath();
        QCOMPARE(opened.urls,
                 QList<QUrl>({QUrl::fromLocalFile(appDir + "/licenses"),
                              QUrl::fromLocalFile(appDir + "/licenses/THIRD_PARTY_NOTICES.txt")}));
    }

    // The tests are built beside the application, so the build's notices stand here as well.
    void theBuildLaysTheNoticesBesideTheExecutable() {
        const QDir licenses(QCoreApplication::applicationDirPath() + "/licenses");
        const QString notices = QString::fromUtf8(readBytes(licenses.filePath("THIRD_PARTY_NOTICES.txt")));
        QVERIFY(notices.contains("Qt 6"));
        QVERIFY(notices.contains("GNU Lesser General Public License, version 3"));
        for (const auto& [source, copy] :
             {std::pair{"LGPL-3", "LGPL-3.0.txt"}, std::pair{"GPL-3", "GPL-3.0.txt"}}) {
            const QString system = QStringLiteral("/usr/share/common-licenses/") + source;
            if (QFile::exists(system)) QCOMPARE(readBytes(licenses.filePath(copy)), readBytes(system));
        }
    }
};

QTEST_MAIN(AppControllerFilesTest)
#include "app_controller_files_test.moc"
