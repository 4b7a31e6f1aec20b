// Tests of the controller's node interface: tree views, locks, hand queries, their caches and showdowns.
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <QtTest>
#include <chrono>
#include <cmath>
#include <memory>
#include <thread>

#include "controller_test_support.h"
#include "session/hand_categories.h"

using kelvane_app::AppController;
using kelvane_test::loadSpot;
using kelvane_test::waitForIdle;

namespace {

constexpr double kTolerance = 1e-5;

QVariantMap riverSpot(int iterations) {
    QVariantMap cfg = loadSpot("river.json");
    cfg.insert("max_iterations", iterations);
    return cfg;
}

bool solve(AppController& c, const QVariantMap& cfg) {
    c.startSolveWithConfig(cfg);
    return c.running() && waitForIdle(c) && c.statusText() == QLatin1String("Done");
}

int childOf(const AppController& c, int node, const QString& actionType) {
    for (const QVariant& action : c.nodeActions(node))
        if (action.toMap().value("actionType").toString() == actionType)
            return action.toMap().value("childIndex").toInt();
    return -1;
}

QStringList actionTypes(const AppController& c, int node) {
    QStringList types;
    for (const QVariant& action : c.nodeActions(node))
        types.append(action.toMap().value("actionType").toString());
    return types;
}

double sum(const QVariantList& values) {
    double total = 0.0;
    for (const QVariant& value : values) total += value.toDouble();
    return total;
}

QStringList sortedKeys(const QVariantMap& map) {
    QStringList keys = map.keys();
    keys.sort();
    return keys;
}

// The index of the action a hand class plays least at a node.
int leastPlayed(const QVariantList& probs) {
    int least = 0;
    for (int a = 1; a < probs.size(); ++a)
        if (probs[a].toDouble() < probs[least].toDouble()) least = a;
    return least;
}

QStringList bucketRowNames() {
    QStringList names;
    for (const std::string_view name : kelvane_app::kBucketRowNames)
        names.append(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())));
    return names;
}

QString translatedBucket(const QTranslator& translator, const QString& name) {
    return translator.translate("HandBuckets", name.toUtf8().constData());
}

// The source texts of one context of a translation catalogue.
QStringList sourcesInContext(const QString& cataloguePath, const QString& context) {
    QFile file(cataloguePath);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QXmlStreamReader xml(&file);
    QStringList sources;
    QString currentContext;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) continue;
        if (xml.name() == QLatin1String("name")) currentContext = xml.readElementText();
        else if (xml.name() == QLatin1String("source") && currentContext == context) sources.append(xml.readElementText());
    }
    return sources;
}

// One read of each cached query at a node, kept to tell a cached answer from a recomputed one.
struct NodeReads {
    QVariantList stats;
    QVariantList combos;
    QVariantList oop;
    QVariantList ip;
    QVariantList buckets;
    QVariantMap strategy;
};

NodeReads readNode(const AppController& c, int node) {
    return {c.nodeActionStats(node),      c.nodeHandCombos(node),  c.nodeSeatHandCombos(node, "OOP"),
            c.nodeSeatHandCombos(node, "IP"), c.nodeHandBuckets(node), c.nodeHandStrategy(node)};
}

// The bucket list gets its display names anew at each read, so its rows' probability lists tell.
QVariantList firstBucketProbs(const QVariantList& buckets) {
    return buckets.isEmpty() ? QVariantList() : buckets[0].toMap().value("actionProbs").toList();
}

// Whether every answer of `later` is the very data of `earlier`, not merely equal to it.
bool sharesAll(const NodeReads& earlier, const NodeReads& later) {
    return later.stats.isSharedWith(earlier.stats) && later.combos.isSharedWith(earlier.combos) &&
           later.oop.isSharedWith(earlier.oop) && later.ip.isSharedWith(earlier.ip) &&
           firstBucketProbs(later.buckets).isSharedWith(firstBucketProbs(earlier.buckets)) &&
           later.strategy.isSharedWith(earlier.strategy);
}

// Whether no answer of `later` is the data of `earlier`: each was computed anew.
bool sharesNone(const NodeReads& earlier, const NodeReads& later) {
    return !later.stats.isSharedWith(earlier.stats) && !later.combos.isSharedWith(earlier.combos) &&
           !later.oop.isSharedWith(earlier.oop) && !later.ip.isSharedWith(earlier.ip) &&
           !firstBucketProbs(later.buckets).isSharedWith(firstBucketProbs(earlier.buckets)) &&
           !later.strategy.isSharedWith(earlier.strategy);
}

bool allAnswered(const NodeReads& reads) {
    return !reads.stats.isEmpty() && !reads.combos.isEmpty() && !reads.oop.isEmpty() && !reads.ip.isEmpty() &&
           !firstBucketProbs(reads.buckets).isEmpty() && !reads.strategy.isEmpty();
}

bool equalAnswers(const NodeReads& a, const NodeReads& b) {
    return a.stats == b.stats && a.combos == b.combos && a.oop == b.oop && a.ip == b.ip &&
           a.buckets == b.buckets && a.strategy == b.strategy;
}

// Polls without delivering the controller's queued messages, until `ready` holds or time runs out.
template <typename Ready>
bool waitWithoutEvents(Ready ready) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(kelvane_test::kSolveTimeoutMs);
    while (!ready()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

}  // namespace

class AppControllerNodesTest : public QObject {
    Q_OBJECT

    std::unique_ptr<AppController> solved;
    int riverNode = -1;  // IP to act after the check
    int terminalNode = -1;

  private slots:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        QCoreApplication::setOrganizationName("OrvanthisControllerTest");
        QCoreApplication::setApplicationName("OrvanthisControllerTest");
        solved = std::make_unique<AppController>();
        QVERIFY(solve(*solved, riverSpot(60)));
        riverNode = childOf(*solved, 0, "check");
        QVERIFY(riverNode > 0);
        terminalNode = childOf(*solved, childOf(*solved, 0, "bet 75%"), "fold");
        QVERIFY(terminalNode > 0);
        QCOMPARE(solved->nodeMeta(terminalNode).value("nodeType").toString(), QStringLiteral("terminal"));
    }

    void treeViewsOutsideTheTree() {
        const AppController& c = *solved;
        QVERIFY(c.nodeMeta(-1).isEmpty());
        QVERIFY(c.nodeMeta(c.treeNodeCount()).isEmpty());
        QVERIFY(c.nodeActions(-1).isEmpty());
        QVERIFY(c.nodeActions(c.treeNodeCount()).isEmpty());
        QVERIFY(!c.nodeMeta(c.treeNodeCount() - 1).isEmpty());
        QCOMPARE(sortedKeys(c.nodeMeta(riverNode)),
                 (QStringList{"chanceDeal", "effectiveStack", "hasChildren", "investedIp", "investedOop",
                              "nodeType", "player", "pot"}));
        QCOMPARE(c.nodeMeta(terminalNode).value("hasChildren").toBool(), false);
        QVERIFY(c.nodeActions(terminalNode).isEmpty());
    }

    void lockEdits() {
        AppController c;
        c.setNodeLock(-1, "AA", 0, 0.5);
        c.setNodeLock(3, "", 0, 0.5);
        QVERIFY(c.nodeLocks(3).isEmpty());
        QVERIFY(c.nodeLocks(-1).isEmpty());

        c.setNodeLock(3, "AKs", 1, 1.5);
        c.setNodeLock(3, "QQ", -2, -0.25);
        QVariantList locks = c.nodeLocks(3);
        QCOMPARE(locks.size(), 2);
        for (const QVariant& item : locks) {
            const QVariantMap lock = item.toMap();
            if (lock.value("hand").toString() == QLatin1String("AKs")) {
                QCOMPARE(lock.value("actionIndex").toInt(), 1);
                QCOMPARE(lock.value("actionProb").toDouble(), 1.0);
            } else {
                QCOMPARE(lock.value("hand").toString(), QStringLiteral("QQ"));
                QCOMPARE(lock.value("actionIndex").toInt(), -2);
                QCOMPARE(lock.value("actionProb").toDouble(), 0.0);
            }
        }
        c.setNodeLock(3, "AKs", 0, 0.25);
        locks = c.nodeLocks(3);
        QCOMPARE(locks.size(), 2);

        c.clearNodeLocks(7);
        c.clearNodeLocks(-1);
        QCOMPARE(c.nodeLocks(3).size(), 2);
        c.clearNodeLocks(3);
        QVERIFY(c.nodeLocks(3).isEmpty());
    }

    void rootQueries() {
        const AppController& c = *solved;
        const QVariantList stats = c.nodeActionStats(0);
        QCOMPARE(stats.size(), 2);
        for (int a = 0; a < 2; ++a) {
            const QVariantMap item = stats[a].toMap();
            QCOMPARE(sortedKeys(item),
                     (QStringList{"actionType", "combos", "equity", "ev", "frequency", "name"}));
            QCOMPARE(item.value("name"), c.rootActions()[a].toMap().value("name"));
            QVERIFY(item.value("combos").toDouble() >= 0.0);
            QVERIFY(std::isfinite(item.value("ev").toDouble()));
        }

        const QVariantList combos = c.nodeHandCombos(0);
        QVERIFY(!combos.isEmpty());
        for (const QVariant& entry : combos) {
            const QVariantMap combo = entry.toMap();
            QCOMPARE(sortedKeys(combo),
                     (QStringList{"actionEvs", "actionProbs", "buckets", "c1", "c2", "ev", "weight"}));
            QCOMPARE(combo.value("c1").toString().size(), 2);
            QCOMPARE(combo.value("actionEvs").toList().size(), 2);
            QCOMPARE(combo.value("actionProbs").toList().size(), 2);
            QVERIFY(std::abs(sum(combo.value("actionProbs").toList()) - 1.0) < 1e-4);
            QVERIFY(!combo.value("buckets").toList().isEmpty());
        }
        // A second read answers from the cache, equal to the first.
        QCOMPARE(c.nodeHandCombos(0), combos);

        const QVariantList oop = c.nodeSeatHandCombos(0, "oop");
        const QVariantList ip = c.nodeSeatHandCombos(0, " IP ");
        QVERIFY(!oop.isEmpty() && !ip.isEmpty());
        QCOMPARE(c.nodeSeatHandCombos(0, ""), oop);
        QCOMPARE(c.nodeSeatHandCombos(0, "ipx"), oop);
        QCOMPARE(sortedKeys(oop[0].toMap()), (QStringList{"c1", "c2", "weight"}));
        QVERIFY(oop != ip);

        const QVariantList buckets = c.nodeHandBuckets(0);
        QVERIFY(!buckets.isEmpty());
        for (const QVariant& entry : buckets) {
            const QVariantMap bucket = entry.toMap();
            QCOMPARE(sortedKeys(bucket), (QStringList{"actionProbs", "combos", "displayName", "name"}));
            // No catalogue is loaded, so the display name is the name itself.
            QCOMPARE(bucket.value("displayName"), bucket.value("name"));
            QCOMPARE(bucket.value("actionProbs").toList().size(), 2);
        }

        const QVariantMap strategy = c.nodeHandStrategy(0);
        QCOMPARE(sortedKeys(strategy), (QStringList{"actionNames", "actionProbs", "actionTypeList",
                                                    "dominantActionTypes", "weights"}));
        QCOMPARE(strategy.value("actionNames").toStringList(), (QStringList{"Check", "Bet 75%"}));
        QCOMPARE(strategy.value("actionTypeList").toStringList(), actionTypes(c, 0));
        QCOMPARE(strategy.value("weights").toMap().size(), 169);
        QVERIFY(strategy.value("weights").toMap().value("AA").toDouble() > 0.0);
        QCOMPARE(strategy.value("weights").toMap().value("72o").toDouble(), 0.0);
        const QVariantList aces = strategy.value("actionProbs").toMap().value("AA").toList();
        QCOMPARE(aces.size(), 2);
        QVERIFY(std::abs(sum(aces) - 1.0) < 1e-4);
        QVERIFY(
            actionTypes(c, 0).contains(strategy.value("dominantActionTypes").toMap().value("AA").toString()));

        const QVariantMap first = combos[0].toMap();
        const QVariantList evs =
            c.nodePocketActionEvs(0, "OOP", first.value("c1").toString(), first.value("c2").toString());
        QCOMPARE(evs.size(), 2);
        QVERIFY(std::isfinite(evs[0].toDouble()) && std::isfinite(evs[1].toDouble()));
        // A card that doesn't parse finds nothing, live or cached.
        QVERIFY(c.nodePocketActionEvs(0, "OOP", "Zz", "Ah").isEmpty());
    }

    void riverNodeQueries() {
        const AppController& c = *solved;
        const int actions = static_cast<int>(c.nodeActions(riverNode).size());
        QCOMPARE(c.nodeMeta(riverNode).value("player").toString(), QStringLiteral("IP"));
        QCOMPARE(c.nodeActionStats(riverNode).size(), actions);
        const QVariantList combos = c.nodeHandCombos(riverNode);
        QVERIFY(!combos.isEmpty());
        QCOMPARE(combos[0].toMap().value("actionProbs").toList().size(), actions);
        QVERIFY(!c.nodeHandBuckets(riverNode).isEmpty());
        const QVariantMap strategy = c.nodeHandStrategy(riverNode);
        QCOMPARE(strategy.value("actionTypeList").toStringList(), actionTypes(c, riverNode));
        QVERIFY(strategy.value("weights").toMap().value("QQ").toDouble() > 0.0);

        const QVariantMap first = combos[0].toMap();
        const QString c1 = first.value("c1").toString();
        const QString c2 = first.value("c2").toString();
        QCOMPARE(c.nodePocketActionEvs(riverNode, "IP", c1, c2).size(), actions);
        // The OOP seat doesn't act here, so the answer comes from the node's combo cache.
        QCOMPARE(c.nodePocketActionEvs(riverNode, "OOP", c1, c2), first.value("actionEvs").toList());

        // A terminal node answers nothing from the decision queries; the seat list takes any node.
        QVERIFY(c.nodeActionStats(terminalNode).isEmpty());
        QVERIFY(c.nodeHandCombos(terminalNode).isEmpty());
        QVERIFY(c.nodeHandBuckets(terminalNode).isEmpty());
        QVERIFY(c.nodeHandStrategy(terminalNode).isEmpty());
        QVERIFY(!c.nodeSeatHandCombos(terminalNode, "IP").isEmpty());
        QVERIFY(c.nodeActionStats(-1).isEmpty());
        QVERIFY(c.nodeHandCombos(c.treeNodeCount() + 5).isEmpty());
    }

    // Each bucket row has its German text under the context that the bucket query translates with.
    void bucketNamesHaveGermanTexts() {
        QTranslator german;
        QVERIFY(german.load(QStringLiteral(":/Kelvane/i18n/kelvane_de.qm")));
        const QStringList names = bucketRowNames();
        QCOMPARE(names.size(), 21);
        for (const QString& name : names) QVERIFY2(!translatedBucket(german, name).isEmpty(), qPrintable(name));
        QCOMPARE(translatedBucket(german, "two pair"), QStringLiteral("Zwei Paare"));

        QVERIFY(QCoreApplication::installTranslator(&german));
        const QVariantList buckets = solved->nodeHandBuckets(0);
        QCoreApplication::removeTranslator(&german);
        QVERIFY(!buckets.isEmpty());
        for (const QVariant& entry : buckets) {
            const QVariantMap bucket = entry.toMap();
            QCOMPARE(bucket.value("displayName").toString(),
                     translatedBucket(german, bucket.value("name").toString()));
        }
    }

    // A catalogue update keeps them: the translation tools find every row name marked in that context.
    void bucketNamesAreMarkedForTheTranslationTools() {
        const QTemporaryDir dir;
        const QString catalogue = dir.filePath(QStringLiteral("kelvane_xx.ts"));
        QProcess lupdate;
        lupdate.start(QStringLiteral(KELVANE_LUPDATE),
                      {QStringLiteral(KELVANE_APP_SOURCE_DIR), QStringLiteral("-silent"), QStringLiteral("-ts"),
                       catalogue});
        QVERIFY(lupdate.waitForFinished(120000));
        QCOMPARE(lupdate.exitCode(), 0);
        QStringList marked = sourcesInContext(catalogue, QStringLiteral("HandBuckets"));
        QStringList expected = bucketRowNames();
        marked.sort();
        expected.sort();
        QCOMPARE(marked, expected);
    }

    void cachesServeWhenNoSolutionIsLive() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const QVariantList stats = c.nodeActionStats(0);
        const QVariantList combos = c.nodeHandCombos(riverNode);
        const QVariantList buckets = c.nodeHandBuckets(0);
        const QVariantMap strategy = c.nodeHandStrategy(0);
        const QVariantList oop = c.nodeSeatHandCombos(0, "OOP");
        const QVariantList ip = c.nodeSeatHandCombos(0, "IP");
        QVERIFY(!combos.isEmpty());

        // A new start drops the live solution at once; the caches stay until its result arrives.
        QVariantMap longRun = riverSpot(200000);
        longRun.insert("target_exploitability", 0.0);
        c.startSolveWithConfig(longRun);
        QVERIFY(c.running());
        QCOMPARE(c.nodeActionStats(0), stats);
        QCOMPARE(c.nodeHandCombos(riverNode), combos);
        QCOMPARE(c.nodeHandBuckets(0), buckets);
        QCOMPARE(c.nodeHandStrategy(0), strategy);
        QCOMPARE(c.nodeSeatHandCombos(0, "OOP"), oop);
        QCOMPARE(c.nodeSeatHandCombos(0, "ip"), ip);
        QVERIFY(c.nodeHandCombos(0).isEmpty());  // never read before
        QVERIFY(c.nodeActionStats(riverNode).isEmpty());

        const QVariantMap combo = combos[1].toMap();
        const QString c1 = combo.value("c1").toString();
        const QString c2 = combo.value("c2").toString();
        QCOMPARE(c.nodePocketActionEvs(riverNode, "IP", c1, c2), combo.value("actionEvs").toList());
        QCOMPARE(c.nodePocketActionEvs(riverNode, "OOP", " " + c1.toUpper(), c2.toLower() + " "),
                 combo.value("actionEvs").toList());
        QVERIFY(c.nodePocketActionEvs(riverNode, "IP", c2, c1).isEmpty());
        QVERIFY(c.nodePocketActionEvs(0, "OOP", c1, c2).isEmpty());

        // The cancelled run's result empties every cache.
        c.cancelSolve();
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Cancelled"));
        QVERIFY(c.nodeActionStats(0).isEmpty());
        QVERIFY(c.nodeHandCombos(riverNode).isEmpty());
        QVERIFY(c.nodeHandStrategy(0).isEmpty());
        QVERIFY(c.nodeSeatHandCombos(0, "OOP").isEmpty());
        QVERIFY(c.nodePocketActionEvs(riverNode, "IP", c1, c2).isEmpty());
    }

    void liveAnswersServeFromTheCache() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const NodeReads first = readNode(c, riverNode);
        QVERIFY(allAnswered(first));
        const NodeReads second = readNode(c, riverNode);
        QVERIFY(equalAnswers(first, second));
        QVERIFY(sharesAll(first, second));
        // A node the decision queries can't answer leaves nothing to serve.
        QVERIFY(c.nodeHandCombos(terminalNode).isEmpty());
        QVERIFY(c.nodeHandCombos(terminalNode).isEmpty());
    }

    void newResultRecomputes() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const NodeReads before = readNode(c, riverNode);
        QVERIFY(allAnswered(before));
        QVERIFY(solve(c, riverSpot(20)));
        const NodeReads after = readNode(c, riverNode);
        QVERIFY(allAnswered(after));
        QVERIFY(sharesNone(before, after));
        QVERIFY(sharesAll(after, readNode(c, riverNode)));
    }

    // The next solution is live before its result reaches the controller; old entries must not answer then.
    void startMakesEntriesStale() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const NodeReads before = readNode(c, riverNode);
        QVERIFY(allAnswered(before));
        c.startSolveWithConfig(riverSpot(10));
        QVERIFY(c.running());
        // Seat combos of a node never read answer only from a live solution.
        QVERIFY(waitWithoutEvents([&] { return !c.nodeSeatHandCombos(terminalNode, "OOP").isEmpty(); }));
        const NodeReads during = readNode(c, riverNode);
        QVERIFY(allAnswered(during));
        QVERIFY(sharesNone(before, during));
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Done"));
    }

    void clearResultsMakesEntriesStale() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const NodeReads before = readNode(c, riverNode);
        QVERIFY(allAnswered(before));
        c.clearResults();
        QVERIFY(c.nodeHandCombos(riverNode).isEmpty());
        QVERIFY(solve(c, riverSpot(20)));
        QVERIFY(sharesNone(before, readNode(c, riverNode)));
    }

    void cancelledRunMakesEntriesStale() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const NodeReads before = readNode(c, riverNode);
        QVariantMap longRun = riverSpot(200000);
        longRun.insert("target_exploitability", 0.0);
        c.startSolveWithConfig(longRun);
        c.cancelSolve();
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Cancelled"));
        QVERIFY(c.nodeHandCombos(riverNode).isEmpty());
        QVERIFY(solve(c, riverSpot(20)));
        QVERIFY(sharesNone(before, readNode(c, riverNode)));
    }

    void projectKeepsWhatWasServedFromTheCache() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        readNode(c, riverNode);
        const NodeReads served = readNode(c, riverNode);
        const NodeReads root = readNode(c, 0);
        const QTemporaryDir dir;
        const QUrl file = QUrl::fromLocalFile(dir.filePath("cached.kelvaneproj"));
        QVERIFY(c.saveProject(file, QVariantMap{{"board", "Ks9d4c7h2s"}}));

        AppController loaded;
        QVERIFY(loaded.loadProject(file).value("ok").toBool());
        QVERIFY(equalAnswers(readNode(loaded, riverNode), served));
        QVERIFY(equalAnswers(readNode(loaded, 0), root));
    }

    void reSolveWithLocksFollowsThem() {
        AppController c;
        QVERIFY(solve(c, riverSpot(60)));
        const QVariantMap before = c.nodeHandStrategy(0).value("actionProbs").toMap();
        const int acesAction = leastPlayed(before.value("AA").toList());
        const int kingsAction = leastPlayed(before.value("KK").toList());
        QVERIFY(before.value("AA").toList()[acesAction].toDouble() < 0.5);

        c.setNodeLock(0, "AA", acesAction, 1.0);
        c.setNodeLock(0, "KK", kingsAction, 0.7);
        c.setNodeLock(0, "99", 2, 1.0);   // past the node's actions: dropped when applied
        c.setNodeLock(0, "77", -1, 1.0);  // negative: dropped when the config is built
        QSignalSpy results(&c, &AppController::resultsChanged);
        c.reSolveWithNodeLocks();
        QVERIFY(c.running());
        QVERIFY(waitForIdle(c));
        QCOMPARE(c.statusText(), QStringLiteral("Done"));
        QCOMPARE(results.count(), 1);

        const QVariantMap after = c.nodeHandStrategy(0).value("actionProbs").toMap();
        const QVariantList aces = after.value("AA").toList();
        const QVariantList kings = after.value("KK").toList();
        QVERIFY(std::abs(aces[acesAction].toDouble() - 1.0) < kTolerance);
        QVERIFY(std::abs(aces[1 - acesAction].toDouble()) < kTolerance);
        QVERIFY(std::abs(kings[kingsAction].toDouble() - 0.7) < kTolerance);
        QVERIFY(std::abs(kings[1 - kingsAction].toDouble() - 0.3) < kTolerance);
        // The user's lock table outlives the new result.
        QCOMPARE(c.nodeLocks(0).size(), 4);
    }

    void loadedProjectAnswersFromItsCaches() {
        AppController c;
        QVERIFY(solve(c, riverSpot(20)));
        const QVariantList combos = c.nodeHandCombos(riverNode);
        QVERIFY(combos.size() > 1);
        const QTemporaryDir dir;
        const QUrl file = QUrl::fromLocalFile(dir.filePath("river.kelvaneproj"));
        QVERIFY(c.saveProject(file, QVariantMap{{"board", "Ks9d4c7h2s"}}));

        AppController loaded;
        QVERIFY(loaded.loadProject(file).value("ok").toBool());
        QCOMPARE(loaded.treeNodeCount(), c.treeNodeCount());
        QCOMPARE(loaded.nodeHandCombos(riverNode), combos);
        const int unvisited = childOf(loaded, 0, "bet 75%");
        QVERIFY(unvisited > 0);
        QVERIFY(loaded.nodeHandCombos(unvisited).isEmpty());

        const QVariantMap combo = combos[1].toMap();
        const QString c1 = combo.value("c1").toString();
        const QString c2 = combo.value("c2").toString();
        QCOMPARE(loaded.nodePocketActionEvs(riverNode, "IP", c1, c2), combo.value("actionEvs").toList());
        QVERIFY(loaded.nodePocketActionEvs(riverNode, "IP", c2, c1).isEmpty());

        // The loaded map is the last config, so a re-solve runs at once.
        loaded.reSolveWithNodeLocks();
        QVERIFY(loaded.running());
        QVERIFY(waitForIdle(loaded));
        QCOMPARE(loaded.statusText(), QStringLiteral("Done"));
    }

    void showdowns() {
        const AppController& c = *solved;
        const QVariantMap unknown{{"winner", "UNKNOWN"}, {"oopStrength", 0u}, {"ipStrength", 0u}};
        QCOMPARE(c.showdownWinner("AsKdQhJc", "2c3c", "2d3d"), unknown);
        QCOMPARE(c.showdownWinner("AsKdQhJcTd", "2c3", "2d3d"), unknown);
        QCOMPARE(c.showdownWinner("AsKdQhJcXd", "2c3c", "2d3d"), unknown);
        QCOMPARE(c.showdownWinner("AsKdQhJcTd", "2c3c", "2d3z"), unknown);

        const QVariantMap tie = c.showdownWinner("As Kd Qh Jc Td", "2c 3c", "2d3d");
        QCOMPARE(tie.value("winner").toString(), QStringLiteral("TIE"));
        QVERIFY(tie.value("oopStrength").toUInt() > 0);
        QCOMPARE(tie.value("oopStrength"), tie.value("ipStrength"));

        const QVariantMap oop = c.showdownWinner("2c7d9hJsKd", "AhAd", "QcQd");
        QCOMPARE(oop.value("winner").toString(), QStringLiteral("OOP"));
        QVERIFY(oop.value("oopStrength").toUInt() > oop.value("ipStrength").toUInt());
        const QVariantMap ip = c.showdownWinner("2c7d9hJsKd", "QcQd", "KcKh");
        QCOMPARE(ip.value("winner").toString(), QStringLiteral("IP"));
        // Only the first two cards of a longer hole text count.
        QCOMPARE(c.showdownWinner("2c7d9hJsKd", "QcQdAs", "KcKh").value("winner").toString(),
                 QStringLiteral("IP"));
    }

    void cleanupTestCase() { solved.reset(); }
};

QTEST_GUILESS_MAIN(AppControllerNodesTest)
#include "app_controller_nodes_test.moc"
