// Tests of project files: a solved spot saved and loaded into a fresh controller, the failure texts, atomic
// replacement of an existing file, and documents that are truncated or hostile.
#include <sys/resource.h>

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <csignal>
#include <memory>

#include "controller_test_support.h"
#include "settings_sandbox.h"

using kelvane_app::AppController;
using kelvane_test::loadSpot;
using kelvane_test::waitForIdle;

namespace {

const QVariantMap kProjectState{
    {"boardText", "Ks9d4c7h2s"}, {"oopRangeText", "AA,KK"}, {"effectiveStack", 500}};

QVariantMap riverSpot() {
    QVariantMap cfg = loadSpot("river.json");
    cfg.insert("max_iterations", 40);
    return cfg;
}

bool solve(AppController& c) {
    c.startSolveWithConfig(riverSpot());
    return c.running() && waitForIdle(c) && c.resultIterations() > 0;
}

int firstChild(const AppController& c, int node) {
    return c.nodeActions(node).value(0).toMap().value("childIndex").toInt();
}

QJsonObject readJson(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

QByteArray readBytes(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QUrl writeFile(const QTemporaryDir& dir, const QString& name, const QByteArray& bytes) {
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly)) return {};
    file.write(bytes);
    return QUrl::fromLocalFile(file.fileName());
}

QByteArray projectJson(const QJsonObject& fields) {
    QJsonObject root{{"format", "kelvane_project"}, {"version", 1}};
    for (auto field = fields.begin(); field != fields.end(); ++field) root.insert(field.key(), field.value());
    return QJsonDocument(root).toJson();
}

QList<int> nodeIndices(const QJsonArray& items) {
    QList<int> nodes;
    for (const QJsonValue& item : items) nodes.append(item.toObject().value("nodeIndex").toInt());
    return nodes;
}

// Every answer the pages can ask for about one node.
QVariantMap nodeAnswers(const AppController& c, int node) {
    const QVariantList combos = c.nodeHandCombos(node);
    const QVariantMap first = combos.value(0).toMap();
    return {{"meta", c.nodeMeta(node)},
            {"actions", c.nodeActions(node)},
            {"strategy", c.nodeHandStrategy(node)},
            {"stats", c.nodeActionStats(node)},
            {"combos", combos},
            {"buckets", c.nodeHandBuckets(node)},
            {"oop", c.nodeSeatHandCombos(node, "OOP")},
            {"ip", c.nodeSeatHandCombos(node, "ip")},
            {"pocketEvs",
             c.nodePocketActionEvs(node, "OOP", first.value("c1").toString(), first.value("c2").toString())},
            {"locks", c.nodeLocks(node)}};
}

// The file size limit makes every write past it fail, as a full disk would; the signal it raises is ignored.
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

class AppControllerProjectTest : public QObject {
    Q_OBJECT

    std::unique_ptr<AppController> solved;
    QTemporaryDir dir;

    void expectLoadFailure(AppController& c, const QUrl& url, const QString& error) {
        const QString status = c.statusText();
        const int nodes = c.treeNodeCount();
        const QVariantMap before = nodeAnswers(c, 0);
        QSignalSpy results(&c, &AppController::resultsChanged);
        const QVariantMap answer = c.loadProject(url);
        QCOMPARE(answer,
                 QVariantMap(
                     {{"ok", false}, {"error", error}, {"project", QVariantMap()}, {"hasResults", false}}));
        QCOMPARE(results.count(), 0);
        QCOMPARE(c.statusText(), status);
        QCOMPARE(c.treeNodeCount(), nodes);
        QCOMPARE(nodeAnswers(c, 0), before);
    }

  private slots:
    void initTestCase() {
        kelvane_test::use_private_settings_store();
        QVERIFY(dir.isValid());
        solved = std::make_unique<AppController>();
        QVERIFY(solve(*solved));
        QVERIFY(solved->treeNodeCount() > 1);
    }

    void aSaveWithNoNodeOpenedHoldsTheRootsFourCaches() {
        const QString path = dir.filePath("root_only.kelvaneproj");
        QVERIFY(solved->saveProject(QUrl::fromLocalFile(path), kProjectState));
        const QJsonObject root = readJson(path);
        QCOMPARE(root.value("format").toString(), QStringLiteral("kelvane_project"));
        QCOMPARE(root.value("version").toInt(), 1);
        QCOMPARE(root.value("hasResults").toBool(), true);
        const QJsonObject caches = root.value("nodeCaches").toObject();
        QCOMPARE(caches.keys(), QStringList({"actionStatsByNode", "handBucketsByNode", "handCombosByNode",
                                             "handStrategyByNode", "seatHandCombosByNode"}));
        for (const char* key :
             {"handStrategyByNode", "actionStatsByNode", "handCombosByNode", "handBucketsByNode"})
            QCOMPARE(nodeIndices(caches.value(key).toArray()), QList<int>({0}));
        QVERIFY(caches.value("seatHandCombosByNode").toArray().isEmpty());
        QCOMPARE(root.value("results").toObject().keys(),
                 QStringList({"resultEvIp", "resultEvOop", "resultExploitability", "resultIterations",
                              "resultStartingPot", "resultsSummary", "rootActions", "treeNodeActions",
                              "treeNodeMeta"}));
        QCOMPARE(root.value("results").toObject().value("treeNodeMeta").toArray().size(),
                 solved->treeNodeCount());
        QCOMPARE(root.value("lastUiCfg").toObject().value("board").toString(), QStringLiteral("Ks9d4c7h2s"));
    }

    void aLoadedProjectAnswersAsTheSolvedOne() {
        const int child = firstChild(*solved, 0);
        QVERIFY(child > 0);
        const int unvisited = solved->treeNodeCount() - 1;
        QVERIFY(unvisited != child);
        solved->setNodeLock(0, "AA", 0, 0.7);
        solved->setNodeLock(child, "KK", 1, 1.5);
        solved->setNodeLock(solved->treeNodeCount() + 5, "QQ", 0, 0.5);  // outside the tree: not saved
        const QVariantMap rootAnswers = nodeAnswers(*solved, 0);
        const QVariantMap childAnswers = nodeAnswers(*solved, child);
        QVERIFY(!childAnswers.value("combos").toList().isEmpty());
        QVERIFY(!childAnswers.value("pocketEvs").toList().isEmpty());

        const QString path = dir.filePath("solved.kelvaneproj");
        QVERIFY(solved->saveProject(QUrl::fromLocalFile(path), kProjectState));
        const QJsonObject root = readJson(path);
        const QJsonArray seatItems =
            root.value("nodeCaches").toObject().value("seatHandCombosByNode").toArray();
        QStringList seats;
        for (const QJsonValue& item : seatItems) seats.append(item.toObject().value("seat").toString());
        QCOMPARE(seats, QStringList({"OOP", "OOP", "IP", "IP"}));
        for (const QJsonValue& item :
             root.value("nodeCaches").toObject().value("handBucketsByNode").toArray())
            for (const QJsonValue& bucket : item.toObject().value("data").toArray())
                QVERIFY(!bucket.toObject().contains("displayName"));
        QCOMPARE(root.value("nodeLocks").toArray().size(), 2);
        QCOMPARE(nodeIndices(root.value("nodeLocks").toArray()), QList<int>({0, child}));

        AppController loaded;
        QSignalSpy results(&loaded, &AppController::resultsChanged);
        const QVariantMap answer = loaded.loadProject(QUrl::fromLocalFile(path));
        QCOMPARE(answer,
                 QVariantMap(
                     {{"ok", true}, {"error", QString()}, {"project", kProjectState}, {"hasResults", true}}));
        QCOMPARE(results.count(), 1);
        QCOMPARE(loaded.statusText(), QStringLiteral("Loaded project (2 strategy nodes, 2 combo nodes)"));
        QCOMPARE(loaded.progress(), 0.0);
        QCOMPARE(loaded.running(), false);

        QCOMPARE(loaded.treeNodeCount(), solved->treeNodeCount());
        QCOMPARE(loaded.rootActions(), solved->rootActions());
        QCOMPARE(loaded.resultsSummary(), solved->resultsSummary());
        QCOMPARE(loaded.resultStartingPot(), solved->resultStartingPot());
        QCOMPARE(loaded.resultIterations(), solved->resultIterations());
        QCOMPARE(loaded.resultExploitability(), solved->resultExploitability());
        QCOMPARE(loaded.resultEvOop(), solved->resultEvOop());
        QCOMPARE(loaded.resultEvIp(), solved->resultEvIp());
        QCOMPARE(nodeAnswers(loaded, 0), rootAnswers);
        QCOMPARE(nodeAnswers(loaded, child), childAnswers);
        for (int node = 0; node < solved->treeNodeCount(); ++node) {
            QCOMPARE(loaded.nodeMeta(node), solved->nodeMeta(node));
            QCOMPARE(loaded.nodeActions(node), solved->nodeActions(node));
        }
        QCOMPARE(loaded.nodeLocks(child).value(0).toMap().value("actionProb").toDouble(), 1.0);
        QVERIFY(loaded.nodeLocks(solved->treeNodeCount() + 5).isEmpty());

        // Nothing of an unvisited node was saved, and a loaded project has no solver to ask.
        QVERIFY(loaded.nodeHandCombos(unvisited).isEmpty());
        QVERIFY(loaded.nodeHandStrategy(unvisited).isEmpty());
        const QVariantMap first = childAnswers.value("combos").toList().value(0).toMap();
        QVERIFY(
            loaded
                .nodePocketActionEvs(child, "IP", first.value("c2").toString(), first.value("c1").toString())
                .isEmpty());

        // The spot came back too, so a re-solve runs at once.
        loaded.reSolveWithNodeLocks();
        QVERIFY(loaded.running());
        QVERIFY(waitForIdle(loaded));
        QVERIFY(loaded.resultIterations() > 0);
    }

    void aProjectWithoutResultsKeepsLocksAndConfig() {
        AppController fresh;
        fresh.startSolveWithConfig({{"board", "Xx"}, {"starting_pot", 40}});  // refused, but remembered
        fresh.setNodeLock(0, "AA", 0, 0.5);
        const QString path = dir.filePath("empty.kelvaneproj");
        QVERIFY(fresh.saveProject(QUrl::fromLocalFile(path), kProjectState));
        const QJsonObject root = readJson(path);
        QCOMPARE(root.keys(),
                 QStringList({"format", "hasResults", "lastUiCfg", "nodeLocks", "project", "version"}));
        QCOMPARE(root.value("hasResults").toBool(), false);
        QCOMPARE(root.value("nodeLocks").toArray(), QJsonArray());
        QCOMPARE(root.value("lastUiCfg").toObject(), QJsonObject({{"board", "Xx"}, {"starting_pot", 40}}));
        QCOMPARE(root.value("project").toObject(), QJsonObject::fromVariantMap(kProjectState));

        AppController loaded;
        QCOMPARE(loaded.loadProject(QUrl::fromLocalFile(path)).value("hasResults").toBool(), false);
        loaded.reSolveWithNodeLocks();
        QCOMPARE(loaded.statusText(), QStringLiteral("Not ready: enter a valid board first"));
    }

    void cachesLoadEvenWithoutResults() {
        const QJsonArray combos{
            QJsonObject{{"c1", "Ah"}, {"c2", "Kd"}, {"actionEvs", QJsonArray{1.5, -2.0}}}};
        const QJsonArray seatCombos{QJsonObject{{"c1", "Qs"}, {"c2", "Qh"}, {"weight", 1}}};
        const QJsonObject caches{
            {"handCombosByNode",
             QJsonArray{QJsonObject{{"nodeIndex", 3}, {"data", combos}},
                        QJsonObject{{"nodeIndex", -1}, {"data", combos}}, QJsonObject{{"data", combos}}}},
            {"handStrategyByNode",
             QJsonArray{QJsonObject{{"nodeIndex", 0}, {"data", QJsonObject{{"weights", 1}}}},
                        QJsonObject{{"nodeIndex", 0}, {"data", QJsonObject{{"weights", 2}}}}}},
            {"handBucketsByNode",
             QJsonArray{
                 QJsonObject{{"nodeIndex", 4}, {"data", QJsonArray{QJsonObject{{"name", "two pair"}}}}}}},
            {"seatHandCombosByNode",
             QJsonArray{QJsonObject{{"nodeIndex", 2}, {"seat", " ip "}, {"data", seatCombos}},
                        QJsonObject{{"nodeIndex", 5}, {"seat", "BTN"}, {"data", seatCombos}},
                        QJsonObject{{"nodeIndex", 6}, {"seat", "oop"}, {"data", seatCombos}}}}};
        const QJsonArray locks{
            QJsonObject{{"nodeIndex", 1}, {"hand", "AKs"}, {"actionIndex", 2}, {"actionProb", 1.7}},
            QJsonObject{{"nodeIndex", 1}, {"hand", "QQ"}, {"actionIndex", 0}},
            QJsonObject{{"hand", "JJ"}, {"actionIndex", 0}, {"actionProb", 0.5}},
            QJsonObject{{"nodeIndex", 1}, {"hand", ""}, {"actionIndex", 0}},
            QJsonObject{{"nodeIndex", 1}, {"hand", "TT"}, {"actionProb", 0.5}},
            QJsonObject{{"nodeIndex", 2}, {"hand", "99"}, {"actionIndex", 1}, {"actionProb", -3}}};
        const QUrl url = writeFile(dir, "caches.json",
                                   projectJson({{"hasResults", false},
                                                {"results", QJsonObject{{"resultsSummary", "ignored"}}},
                                                {"nodeCaches", caches},
                                                {"nodeLocks", locks}}));
        AppController loaded;
        const QVariantMap answer = loaded.loadProject(url);
        QCOMPARE(answer.value("ok").toBool(), true);
        QCOMPARE(answer.value("project").toMap(), QVariantMap());
        QCOMPARE(loaded.resultsSummary(), QString());
        QCOMPARE(loaded.treeNodeCount(), 0);
        QCOMPARE(loaded.statusText(), QStringLiteral("Loaded project (1 strategy nodes, 1 combo nodes)"));
        QCOMPARE(loaded.nodeHandCombos(3), combos.toVariantList());
        QCOMPARE(loaded.nodeHandStrategy(0), QVariantMap({{"weights", 2}}));
        QCOMPARE(loaded.nodeHandBuckets(4).value(0).toMap().value("displayName").toString(),
                 QStringLiteral("two pair"));
        QCOMPARE(loaded.nodeSeatHandCombos(2, "IP"), seatCombos.toVariantList());
        QVERIFY(loaded.nodeSeatHandCombos(2, "OOP").isEmpty());
        QVERIFY(loaded.nodeSeatHandCombos(5, "IP").isEmpty());
        QVERIFY(loaded.nodeSeatHandCombos(5, "OOP").isEmpty());
        QCOMPARE(loaded.nodeSeatHandCombos(6, "OOP"), seatCombos.toVariantList());
        QCOMPARE(loaded.nodePocketActionEvs(3, "IP", " AH ", "kd"), QVariantList({1.5, -2.0}));
        QVERIFY(loaded.nodePocketActionEvs(3, "OOP", "Kd", "Ah").isEmpty());

        QCOMPARE(loaded.nodeLocks(1).size(), 2);
        for (const QVariant& lock : loaded.nodeLocks(1)) {
            const QVariantMap entry = lock.toMap();
            if (entry.value("hand") == "AKs") {
                QCOMPARE(entry.value("actionIndex").toInt(), 2);
                QCOMPARE(entry.value("actionProb").toDouble(), 1.0);
            } else {
                QCOMPARE(entry.value("hand").toString(), QStringLiteral("QQ"));
                QCOMPARE(entry.value("actionProb").toDouble(), 0.0);
            }
        }
        QCOMPARE(loaded.nodeLocks(2).value(0).toMap().value("actionProb").toDouble(), 0.0);
    }

    void failuresLeaveTheStateAsItWas() {
        AppController c;
        QVERIFY(c.loadProject(QUrl::fromLocalFile(dir.filePath("solved.kelvaneproj"))).value("ok").toBool());
        QVERIFY(c.treeNodeCount() > 0);
        expectLoadFailure(c, QUrl(), "Invalid/non-local file URL");
        expectLoadFailure(c, QUrl("https://example.com/spot.kelvaneproj"), "Invalid/non-local file URL");
        expectLoadFailure(c, QUrl("file:"), "Empty file path");
        expectLoadFailure(c, QUrl::fromLocalFile(dir.filePath("missing.kelvaneproj")), "Failed to open file");
        expectLoadFailure(c, writeFile(dir, "empty.txt", ""), "Invalid JSON");
        expectLoadFailure(c, writeFile(dir, "plain.txt", "just some words\n"), "Invalid JSON");
        expectLoadFailure(
            c, writeFile(dir, "other.json", "{\"format\": \"kelvane_ranges_export\", \"version\": 1}"),
            "Unrecognized project format");
        expectLoadFailure(c, writeFile(dir, "array.json", "[1, 2, 3]"), "Unrecognized project format");
        QByteArray newer = readBytes(dir.filePath("solved.kelvaneproj"));
        newer.replace("\"version\": 1", "\"version\": 2");
        expectLoadFailure(c, writeFile(dir, "newer.kelvaneproj", newer), "Unsupported project version");
    }

    void failureTextsAreTranslated() {
        QTranslator german;
        QVERIFY(german.load(":/Kelvane/i18n/kelvane_de.qm"));
        QCoreApplication::installTranslator(&german);
        AppController c;
        const QString error = c.loadProject(writeFile(dir, "plain_de.txt", "text")).value("error").toString();
        QCoreApplication::removeTranslator(&german);
        QCOMPARE(error, QStringLiteral("Ungültiges JSON"));
    }

    void truncatedDocumentsAreRefused() {
        const QByteArray whole = readBytes(dir.filePath("solved.kelvaneproj"));
        QVERIFY(whole.size() > 1000);
        AppController c;
        for (qsizetype length = 0; length < whole.size() - 2; length += 211) {
            const QVariantMap answer = c.loadProject(writeFile(dir, "cut.kelvaneproj", whole.left(length)));
            QCOMPARE(answer.value("error").toString(), QStringLiteral("Invalid JSON"));
        }
    }

    void hostileDocumentsNeverCrash() {
        const QList<QByteArray> documents{
            projectJson({{"hasResults", true},
                         {"results", "x"},
                         {"nodeCaches", QJsonArray{1, 2}},
                         {"nodeLocks", QJsonObject{{"a", 1}}},
                         {"lastUiCfg", 5},
                         {"project", "p"}}),
            projectJson(
                {{"hasResults", "yes"},
                 {"results",
                  QJsonObject{{"treeNodeMeta", 5},
                              {"treeNodeActions",
                               QJsonArray{QJsonArray{QJsonObject{{"childIndex", "x"}}}, 3, QJsonValue()}},
                              {"rootActions", "none"},
                              {"resultIterations", "many"}}},
                 {"nodeCaches",
                  QJsonObject{
                      {"handCombosByNode",
                       QJsonArray{QJsonObject{{"nodeIndex", 1e30}, {"data", "x"}}, "y", QJsonValue()}},
                      {"handStrategyByNode", QJsonArray{QJsonObject{{"nodeIndex", "0"}, {"data", 4}}}},
                      {"seatHandCombosByNode", QJsonArray{QJsonObject{{"nodeIndex", 0}, {"seat", 7}}}}}},
                 {"nodeLocks", QJsonArray{QJsonObject{{"nodeIndex", "1"}, {"hand", 3}, {"actionIndex", 1e30}},
                                          "lock", QJsonArray{}}}}),
            QByteArray(100000, '[') + QByteArray(100000, ']'),
            QByteArray("{\"format\":\"kelvane_project\",\"version\":1,\"project\":{\"a\":\"\\ud800\"}}"),
            QByteArray("\xef\xbb\xbf{\"format\":\"kelvane_project\",\"version\":1}\x00garbage", 52),
        };
        for (const QByteArray& document : documents) {
            AppController c;
            const QVariantMap answer = c.loadProject(writeFile(dir, "hostile.kelvaneproj", document));
            QVERIFY(answer.contains("ok"));
            for (int node = -1; node < 4; ++node) nodeAnswers(c, node);
            QVERIFY(c.saveProject(QUrl::fromLocalFile(dir.filePath("resaved.kelvaneproj")), {}));
        }
    }

    void aFailedSaveLeavesTheOldFileIntact() {
        const QString path = dir.filePath("kept.kelvaneproj");
        const QByteArray old = "{\"format\": \"kelvane_project\", \"version\": 1}";
        writeFile(dir, "kept.kelvaneproj", old);
        // No byte at all, and a short write that stops where the old file ended.
        for (const rlim_t bytes : {rlim_t(0), rlim_t(old.size())}) {
            const FileSizeLimit limit(bytes);
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression("^saveProject: commit failed: .*kept\\.kelvaneproj "));
            QCOMPARE(solved->saveProject(QUrl::fromLocalFile(path), kProjectState), false);
        }
        QCOMPARE(readBytes(path), old);
        QCOMPARE(QDir(dir.path()).entryList({"kept.kelvaneproj*"}, QDir::Files),
                 QStringList({"kept.kelvaneproj"}));

        QVERIFY(QDir(dir.path()).mkdir("folder.kelvaneproj"));
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression("^saveProject: failed to open: .*folder\\.kelvaneproj "));
        QCOMPARE(solved->saveProject(QUrl::fromLocalFile(dir.filePath("folder.kelvaneproj")), kProjectState),
                 false);
        QVERIFY(QFileInfo(dir.filePath("folder.kelvaneproj")).isDir());

        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("^saveProject: failed to open: "));
        QCOMPARE(
            solved->saveProject(QUrl::fromLocalFile(dir.filePath("kept.kelvaneproj/inner.kelvaneproj")), {}),
            false);
        QCOMPARE(readBytes(path), old);
    }

    void aSaveNeedsALocalFile() {
        QTest::ignoreMessage(QtWarningMsg,
                             "saveProject: invalid/non-local URL: https://example.com/a.kelvaneproj");
        QCOMPARE(solved->saveProject(QUrl("https://example.com/a.kelvaneproj"), {}), false);
        QCOMPARE(solved->saveProject(QUrl("file:"), {}), false);
    }
};

QTEST_MAIN(AppControllerProjectTest)
#include "app_controller_project_test.moc"
