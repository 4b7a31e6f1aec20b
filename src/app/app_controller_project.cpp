// Project files: the user's spot, the finished tree and every node the pages have read, as one JSON document.
#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonParseError>
#include <QSaveFile>
#include <QtDebug>
#include <algorithm>

#include "app/app_controller.h"
#include "app/atomic_write.h"

namespace kelvane_app {
namespace {

constexpr char kProjectFormat[] = "kelvane_project";
constexpr int kProjectVersion = 1;

QString translated(const char* source) { return QCoreApplication::translate("AppController", source); }

template <typename Value>
void appendCacheItems(QVariantList& items, const QHash<qint32, Value>& cache, const QVariantMap& extra = {}) {
    for (auto entry = cache.cbegin(); entry != cache.cend(); ++entry) {
        QVariantMap item = extra;
        item.insert("nodeIndex", entry.key());
        item.insert("data", entry.value());
        items.append(item);
    }
}

template <typename Value>
QVariantList cacheItems(const QHash<qint32, Value>& cache) {
    QVariantList items;
    appendCacheItems(items, cache);
    return items;
}

// The node an item belongs to, or -1 for an item without a usable index.
qint32 itemNode(const QVariantMap& item) {
    const QVariant index = item.value("nodeIndex");
    return index.isValid() ? std::max(index.toInt(), -1) : -1;
}

// A later item for the same node replaces an earlier one.
template <typename Value>
void restoreCache(QHash<qint32, Value>& cache, const QVariantList& items) {
    for (const QVariant& entry : items) {
        const QVariantMap item = entry.toMap();
        const qint32 node = itemNode(item);
        if (node >= 0) cache.insert(node, item.value("data").value<Value>());
    }
}

QVariantList toVariantList(const QList<QVariantMap>& maps) {
    QVariantList list;
    list.reserve(maps.size());
    for (const QVariantMap& map : maps) list.append(map);
    return list;
}

QVariantList toVariantList(const QList<QVariantList>& lists) {
    QVariantList list;
    list.reserve(lists.size());
    for (const QVariantList& inner : lists) list.append(QVariant(inner));
    return list;
}

QVariantMap loadFailure(const char* error) {
    return {{"ok", false}, {"error", translated(error)}, {"project", QVariantMap()}, {"hasResults", false}};
}

}  // namespace

bool AppController::saveProject(QUrl fileUrl, QVariantMap projectState) const {
    if (!fileUrl.isValid() || !fileUrl.isLocalFile()) {
        qWarning().noquote() << "saveProject: invalid/non-local URL:" << fileUrl.toString();
        return false;
    }
    const QString path = fileUrl.toLocalFile();
    if (path.isEmpty()) return false;

    const bool hasResults = m_resultIterations > 0 || treeNodeCount() > 0 || !m_rootActions.isEmpty();
    QVariantMap root{{"format", QLatin1String(kProjectFormat)},
                     {"version", kProjectVersion},
                     {"project", projectState},
                     {"hasResults", hasResults}};
    if (hasResults) {
        root.insert("results", QVariantMap{{"resultsSummary", m_resultsSummary},
                                           {"resultStartingPot", m_resultStartingPot},
                                           {"resultIterations", m_resultIterations},
                                           {"resultExploitability", m_resultExploitability},
                                           {"resultEvOop", m_resultEvOop},
                                           {"resultEvIp", m_resultEvIp},
                                           {"rootActions", m_rootActions},
                                           {"treeNodeMeta", toVariantList(m_treeNodeMeta)},
                                           {"treeNodeActions", toVariantList(m_treeNodeActions)}});
        if (treeNodeCount() > 0) {
            // Read for their side effect: the root's caches are then always in the file.
            nodeHandStrategy(0);
            nodeHandCombos(0);
            nodeHandBuckets(0);
            nodeActionStats(0);
        }
        QVariantList seatItems;
        appendCacheItems(seatItems, m_oopSeatHandCombosByNode, {{"seat", QStringLiteral("OOP")}});
        appendCacheItems(seatItems, m_ipSeatHandCombosByNode, {{"seat", QStringLiteral("IP")}});
        root.insert("nodeCaches", QVariantMap{{"handStrategyByNode", cacheItems(m_handStrategyByNode)},
                                              {"actionStatsByNode", cacheItems(m_actionStatsByNode)},
                                              {"handCombosByNode", cacheItems(m_handCombosByNode)},
                                              {"handBucketsByNode", cacheItems(m_handBucketsByNode)},
                                              {"seatHandCombosByNode", seatItems}});
    }

    QVariantList locks;
    for (qint32 node = 0; node < treeNodeCount(); ++node) {
        const QHash<QByteArray, NodeLock> hands = m_nodeLocks.value(node);
        for (auto hand = hands.cbegin(); hand != hands.cend(); ++hand)
            locks.append(QVariantMap{{"nodeIndex", node},
                                     {"hand", QString::fromUtf8(hand.key())},
                                     {"actionIndex", hand->actionIndex},
                                     {"actionProb", hand->actionProb}});
    }
    root.insert("nodeLocks", locks);
    root.insert("lastUiCfg", m_lastUiCfg);

    const QJsonDocument document = QJsonDocument::fromVariant(root);
    if (document.isNull()) {
        qWarning().noquote() << "saveProject: failed to convert to JSON";
        return false;
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        qWarning().noquote() << "saveProject: failed to open:" << path << file.errorString();
        return false;
    }
    const QString error = commitAll(file, document.toJson(QJsonDocument::Indented));
    if (!error.isEmpty()) {
        qWarning().noquote() << "saveProject: commit failed:" << path << error;
        return false;
    }
    qInfo().noquote() << "Saved project:" << path;
    return true;
}

QVariantMap AppController::loadProject(QUrl fileUrl) {
    if (!fileUrl.isValid() || !fileUrl.isLocalFile())
        return loadFailure(QT_TRANSLATE_NOOP("AppController", "Invalid/non-local file URL"));
    const QString path = fileUrl.toLocalFile();
    if (path.isEmpty()) return loadFailure(QT_TRANSLATE_NOOP("AppController", "Empty file path"));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return loadFailure(QT_TRANSLATE_NOOP("AppController", "Failed to open file"));
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (document.isNull() || parseError.error != QJsonParseError::NoError)
        return loadFailure(QT_TRANSLATE_NOOP("AppController", "Invalid JSON"));
    const QVariantMap root = document.toVariant().toMap();
    if (root.value("format").toString() != QLatin1String(kProjectFormat))
        return loadFailure(QT_TRANSLATE_NOOP("AppController", "Unrecognized project format"));
    if (root.value("version").toInt() != kProjectVersion)
        return loadFailure(QT_TRANSLATE_NOOP("AppController", "Unsupported project version"));

    // From here on the load cannot fail. A running worker is not cancelled: its later messages win.
    m_session.clear();
    clearResultData();
    m_nodeLocks.clear();
    clearNodeCaches();

    const bool hasResults = root.value("hasResults").toBool();
    if (hasResults) {
        const QVariantMap results = root.value("results").toMap();
        m_resultsSummary = results.value("resultsSummary").toString();
        m_resultStartingPot = results.value("resultStartingPot").toInt();
        m_resultIterations = results.value("resultIterations").toInt();
        m_resultExploitability = results.value("resultExploitability").toDouble();
        m_resultEvOop = results.value("resultEvOop").toDouble();
        m_resultEvIp = results.value("resultEvIp").toDouble();
        m_rootActions = results.value("rootActions").toList();
        for (const QVariant& meta : results.value("treeNodeMeta").toList())
            m_treeNodeMeta.append(meta.toMap());
        for (const QVariant& actions : results.value("treeNodeActions").toList())
            m_treeNodeActions.append(actions.toList());
    }

    const QVariantMap caches = root.value("nodeCaches").toMap();
    restoreCache(m_handStrategyByNode, caches.value("handStrategyByNode").toList());
    restoreCache(m_actionStatsByNode, caches.value("actionStatsByNode").toList());
    restoreCache(m_handCombosByNode, caches.value("handCombosByNode").toList());
    restoreCache(m_handBucketsByNode, caches.value("handBucketsByNode").toList());
    for (const QVariant& entry : caches.value("seatHandCombosByNode").toList()) {
        const QVariantMap item = entry.toMap();
        const qint32 node = itemNode(item);
        const QString seat = item.value("seat").toString().trimmed().toUpper();
        if (node < 0) continue;
        if (seat == QLatin1String("OOP")) m_oopSeatHandCombosByNode.insert(node, item.value("data").toList());
        if (seat == QLatin1String("IP")) m_ipSeatHandCombosByNode.insert(node, item.value("data").toList());
    }

    for (const QVariant& entry : root.value("nodeLocks").toList()) {
        const QVariantMap item = entry.toMap();
        const qint32 node = item.value("nodeIndex", -1).toInt();
        const QString hand = item.value("hand").toString();
        const qint32 action = item.value("actionIndex", -1).toInt();
        if (node < 0 || hand.isEmpty() || action < 0) continue;
        m_nodeLocks[node].insert(hand.toUtf8(),
                                 NodeLock{action, std::clamp(item.value("actionProb").toDouble(), 0.0, 1.0)});
    }
    m_lastUiCfg = root.value("lastUiCfg").toMap();

    setRunning(false);
    setProgress(0.0);
    setStatusText(
        translated(QT_TRANSLATE_NOOP("AppController", "Loaded project (%1 strategy nodes, %2 combo nodes)"))
            .arg(m_handStrategyByNode.size())
            .arg(m_handCombosByNode.size()));
    emit resultsChanged();
    qInfo().noquote() << "Loaded project:" << path
                      << QStringLiteral("hasResults=%1").arg(hasResults ? "true" : "false");
    return {{"ok", true},
            {"error", QString()},
            {"project", root.value("project").toMap()},
            {"hasResults", hasResults}};
}

}  // namespace kelvane_app
