// The node and result interface: tree views, the user's locks, and hand queries with their caches.
#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <exception>
#include <optional>
#include <string_view>

#include "app/app_controller.h"
#include "poker/cards.h"
#include "poker/hand_evaluator.h"
#include "session/action_stats.h"
#include "session/bucket_table.h"
#include "session/hand_categories.h"
#include "session/hand_combos.h"
#include "session/hand_strategy.h"
#include "tree/action_plan.h"

namespace kelvane_app {
namespace {

QString qText(const std::string& text) { return QString::fromStdString(text); }

template <typename T>
QVariantList numberList(const std::vector<T>& values) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(values.size()));
    for (T value : values) list.append(static_cast<double>(value));
    return list;
}

QVariantList textList(const std::vector<std::string>& texts) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(texts.size()));
    for (const std::string& text : texts) list.append(qText(text));
    return list;
}

// Exactly "IP" names the in-position seat; anything else, the empty text too, the out-of-position one.
kelvane::Seat seatFromText(const QString& player) {
    return player.trimmed().toUpper() == QLatin1String("IP") ? kelvane::kSeatIp : kelvane::kSeatOop;
}

// An entry computed from the live solution answers as it stands, since that solution hasn't changed.
// Otherwise a live answer replaces the entry and is marked fresh; without one (no live solution, or a
// node the query can't answer) the entry serves as it stands, as it does for a loaded project.
template <typename Value, typename LiveQuery>
Value cachedOrLive(QHash<qint32, Value>& cache, QHash<qint32, quint8>& fresh, quint8 freshBit, qint32 node,
                   LiveQuery liveQuery) {
    const auto entry = cache.constFind(node);
    if (entry != cache.cend() && (fresh.value(node) & freshBit)) return *entry;
    const std::optional<Value> answer = liveQuery();
    if (!answer) return entry != cache.cend() ? *entry : Value();
    cache.insert(node, *answer);
    fresh[node] |= freshBit;
    return *answer;
}

QVariantList toActionStats(const NodeActionStats& stats) {
    const std::size_t n = std::min({stats.names.size(), stats.types.size(), stats.frequencies.size(),
                                    stats.combos.size(), stats.equities.size(), stats.evs.size()});
    QVariantList list;
    for (std::size_t a = 0; a < n; ++a)
        list.append(QVariantMap{{"name", qText(stats.names[a])},
                                {"actionType", qText(stats.types[a])},
                                {"frequency", static_cast<double>(stats.frequencies[a])},
                                {"combos", stats.combos[a]},
                                {"equity", stats.equities[a]},
                                {"ev", stats.evs[a]}});
    return list;
}

QVariantList toHandCombos(const HandCombos& combos) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(combos.combos.size()));
    for (const HandCombo& combo : combos.combos)
        list.append(QVariantMap{{"c1", qText(combo.c1)},
                                {"c2", qText(combo.c2)},
                                {"weight", combo.weight},
                                {"ev", combo.ev},
                                {"actionEvs", numberList(combo.action_evs)},
                                {"buckets", textList(combo.buckets)},
                                {"actionProbs", numberList(combo.action_probs)}});
    return list;
}

QVariantList toSeatHandCombos(const HandCombos& combos) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(combos.combos.size()));
    for (const HandCombo& combo : combos.combos)
        list.append(QVariantMap{{"c1", qText(combo.c1)}, {"c2", qText(combo.c2)}, {"weight", combo.weight}});
    return list;
}

QVariantList toHandBuckets(const HandBuckets& buckets) {
    QVariantList list;
    list.reserve(static_cast<qsizetype>(buckets.rows.size()));
    for (const HandBucketRow& row : buckets.rows)
        list.append(QVariantMap{{"name", qText(row.name)},
                                {"combos", row.combos},
                                {"actionProbs", numberList(row.action_probs)}});
    return list;
}

// The bucket names as the translation tools collect them; the session names its rows in the same order.
constexpr std::array<const char*, kBucketRowCount> kTranslatableBucketNames{
    QT_TRANSLATE_NOOP("HandBuckets", "straight flush"),
    QT_TRANSLATE_NOOP("HandBuckets", "quads"),
    QT_TRANSLATE_NOOP("HandBuckets", "full house"),
    QT_TRANSLATE_NOOP("HandBuckets", "flush"),
    QT_TRANSLATE_NOOP("HandBuckets", "straight"),
    QT_TRANSLATE_NOOP("HandBuckets", "set"),
    QT_TRANSLATE_NOOP("HandBuckets", "trips"),
    QT_TRANSLATE_NOOP("HandBuckets", "two pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "top pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "overpair"),
    QT_TRANSLATE_NOOP("HandBuckets", "middle pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "bottom pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "dry pair"),
    QT_TRANSLATE_NOOP("HandBuckets", "flush draw"),
    QT_TRANSLATE_NOOP("HandBuckets", "missed FD"),
    QT_TRANSLATE_NOOP("HandBuckets", "open ended straight draw"),
    QT_TRANSLATE_NOOP("HandBuckets", "missed OESD"),
    QT_TRANSLATE_NOOP("HandBuckets", "gutter"),
    QT_TRANSLATE_NOOP("HandBuckets", "missed gutter"),
    QT_TRANSLATE_NOOP("HandBuckets", "back door flush draw"),
    QT_TRANSLATE_NOOP("HandBuckets", "air"),
};

constexpr bool namesMatchBucketRows(const std::array<const char*, kBucketRowCount>& names) {
    for (std::size_t row = 0; row < kBucketRowCount; ++row)
        if (std::string_view(names[row]) != kBucketRowNames[row]) return false;
    return true;
}
static_assert(namesMatchBucketRows(kTranslatableBucketNames), "a bucket row name is not marked for translation");

// The cache keeps bucket names untranslated, so a change of language shows at the next read.
QVariantList withDisplayNames(QVariantList buckets) {
    for (QVariant& item : buckets) {
        QVariantMap bucket = item.toMap();
        const QByteArray name = bucket.value("name").toString().toUtf8();
        bucket.insert("displayName", QCoreApplication::translate("HandBuckets", name.constData()));
        item = bucket;
    }
    return buckets;
}

QVariantMap toHandStrategy(const HandStrategy& strategy, const QVariantList& treeActions) {
    const std::size_t hands = strategy.labels.size();
    const std::size_t actions = strategy.action_names.size();
    QVariantMap weights;
    QVariantMap dominant;
    for (std::size_t h = 0; h < hands; ++h) {
        const QString label = qText(strategy.labels[h]);
        if (h < strategy.weights.size()) weights.insert(label, static_cast<double>(strategy.weights[h]));
        if (h < strategy.dominant_types.size()) dominant.insert(label, qText(strategy.dominant_types[h]));
    }

    QVariantList typeList;
    const bool treeMatches = treeActions.size() == static_cast<qsizetype>(actions);
    for (std::size_t a = 0; a < actions; ++a)
        typeList.append(treeMatches ? treeActions[static_cast<qsizetype>(a)].toMap().value("actionType")
                                    : QVariant(QStringLiteral("none")));

    QVariantMap probs;
    if (strategy.action_probs.size() == actions * hands) {
        for (std::size_t h = 0; h < hands; ++h) {
            QVariantList row;
            for (std::size_t a = 0; a < actions; ++a)
                row.append(static_cast<double>(strategy.action_probs[h * actions + a]));
            probs.insert(qText(strategy.labels[h]), row);
        }
    }
    return QVariantMap{{"weights", weights},
                       {"dominantActionTypes", dominant},
                       {"actionNames", textList(strategy.action_names)},
                       {"actionTypeList", typeList},
                       {"actionProbs", probs}};
}

QString cardKey(const QVariant& card) { return card.toString().trimmed().toLower(); }

QVariantList cachedPocketEvs(const QVariantList& combos, const QString& c1, const QString& c2) {
    const QString first = c1.trimmed().toLower();
    const QString second = c2.trimmed().toLower();
    for (const QVariant& item : combos) {
        const QVariantMap combo = item.toMap();
        if (cardKey(combo.value("c1")) == first && cardKey(combo.value("c2")) == second)
            return combo.value("actionEvs").toList();
    }
    return {};
}

std::string withoutWhitespace(const QString& text) {
    QString compact;
    for (QChar c : text)
        if (!c.isSpace()) compact += c;
    return compact.toStdString();
}

}  // namespace

int AppController::treeNodeCount() const { return static_cast<int>(m_treeNodeActions.size()); }

QVariantMap AppController::nodeMeta(int nodeIndex) const {
    if (nodeIndex < 0 || nodeIndex >= m_treeNodeMeta.size()) return {};
    return m_treeNodeMeta[nodeIndex];
}

QVariantList AppController::nodeActions(int nodeIndex) const {
    if (nodeIndex < 0 || nodeIndex >= m_treeNodeActions.size()) return {};
    return m_treeNodeActions[nodeIndex];
}

void AppController::setNodeLock(int nodeIndex, QString handLabel169, int actionIndex, double actionProb) {
    if (nodeIndex < 0 || handLabel169.isEmpty()) return;
    m_nodeLocks[nodeIndex].insert(handLabel169.toUtf8(),
                                  NodeLock{actionIndex, std::clamp(actionProb, 0.0, 1.0)});
}

void AppController::clearNodeLocks(int nodeIndex) {
    if (nodeIndex < 0) return;
    m_nodeLocks.remove(nodeIndex);
}

QVariantList AppController::nodeLocks(int nodeIndex) const {
    QVariantList locks;
    const auto node = m_nodeLocks.constFind(nodeIndex);
    if (nodeIndex < 0 || node == m_nodeLocks.cend()) return locks;
    for (auto hand = node->cbegin(); hand != node->cend(); ++hand)
        locks.append(QVariantMap{{"hand", QString::fromUtf8(hand.key())},
                                 {"actionIndex", hand->actionIndex},
                                 {"actionProb", hand->actionProb}});
    return locks;
}

QVariantList AppController::nodeActionStats(int nodeIndex) const {
    if (nodeIndex < 0) return {};
    return cachedOrLive(m_actionStatsByNode, m_freshNodeCaches, kFreshActionStats, nodeIndex,
                        [&]() -> std::optional<QVariantList> {
                            const NodeActionStats stats =
                                action_stats(m_session, static_cast<std::uint64_t>(nodeIndex));
                            if (!stats.valid) return std::nullopt;
                            return toActionStats(stats);
                        });
}

QVariantList AppController::nodeHandCombos(int nodeIndex) const {
    if (nodeIndex < 0) return {};
    return cachedOrLive(m_handCombosByNode, m_freshNodeCaches, kFreshHandCombos, nodeIndex,
                        [&]() -> std::optional<QVariantList> {
                            const HandCombos combos = hand_combos(m_session, static_cast<std::uint64_t>(nodeIndex));
                            if (!combos.valid) return std::nullopt;
                            return toHandCombos(combos);
                        });
}

QVariantList AppController::nodeSeatHandCombos(int nodeIndex, QString player) const {
    if (nodeIndex < 0) return {};
    const kelvane::Seat seat = seatFromText(player);
    const bool ip = seat == kelvane::kSeatIp;
    return cachedOrLive(ip ? m_ipSeatHandCombosByNode : m_oopSeatHandCombosByNode, m_freshNodeCaches,
                        ip ? kFreshIpSeatHandCombos : kFreshOopSeatHandCombos, nodeIndex,
                        [&]() -> std::optional<QVariantList> {
                            const HandCombos combos =
                                seat_hand_combos(m_session, static_cast<std::uint64_t>(nodeIndex), seat);
                            if (!combos.valid) return std::nullopt;
                            return toSeatHandCombos(combos);
                        });
}

QVariantList AppController::nodeHandBuckets(int nodeIndex) const {
    if (nodeIndex < 0) return {};
    return withDisplayNames(cachedOrLive(m_handBucketsByNode, m_freshNodeCaches, kFreshHandBuckets, nodeIndex,
                                         [&]() -> std::optional<QVariantList> {
                                             const HandBuckets buckets =
                                                 hand_buckets(m_session, static_cast<std::uint64_t>(nodeIndex));
                                             if (!buckets.valid) return std::nullopt;
                                             return toHandBuckets(buckets);
                                         }));
}

QVariantMap AppController::nodeHandStrategy(int nodeIndex) const {
    if (nodeIndex < 0) return {};
    return cachedOrLive(m_handStrategyByNode, m_freshNodeCaches, kFreshHandStrategy, nodeIndex,
                        [&]() -> std::optional<QVariantMap> {
                            const HandStrategy strategy =
                                hand_strategy(m_session, static_cast<std::uint64_t>(nodeIndex));
                            if (!strategy.valid) return std::nullopt;
                            return toHandStrategy(strategy, nodeActions(nodeIndex));
                        });
}

QVariantList AppController::nodePocketActionEvs(int nodeIndex, QString player, QString c1, QString c2) const {
    if (nodeIndex < 0) return {};
    try {
        const PocketActionEvs evs =
            pocket_action_evs(m_session, static_cast<std::uint64_t>(nodeIndex), seatFromText(player),
                              c1.trimmed().toStdString(), c2.trimmed().toStdString());
        if (evs.valid) return numberList(evs.evs);
    } catch (const std::exception&) {
        // A card text that doesn't parse can still match a saved combo list below.
    }
    return cachedPocketEvs(m_handCombosByNode.value(nodeIndex), c1, c2);
}

QVariantMap AppController::showdownWinner(QString boardText, QString oopText, QString ipText) const {
    QVariantMap answer{{"winner", QStringLiteral("UNKNOWN")}, {"oopStrength", 0u}, {"ipStrength", 0u}};
    const std::string board = withoutWhitespace(boardText);
    const std::string oop = withoutWhitespace(oopText);
    const std::string ip = withoutWhitespace(ipText);
    if (board.size() < 10 || oop.size() < 4 || ip.size() < 4) return answer;
    try {
        std::array<kelvane::Card, 5> cards{};
        for (std::size_t i = 0; i < cards.size(); ++i)
            cards[i] = kelvane::parse_card(std::string_view(board).substr(2 * i, 2));
        const auto pocket = [](std::string_view text) {
            return kelvane::Pocket{kelvane::parse_card(text.substr(0, 2)),
                                   kelvane::parse_card(text.substr(2, 2))};
        };
        const kelvane::HandStrength oopStrength = kelvane::evaluate_on_board(pocket(oop), cards);
        const kelvane::HandStrength ipStrength = kelvane::evaluate_on_board(pocket(ip), cards);
        answer.insert("oopStrength", oopStrength);
        answer.insert("ipStrength", ipStrength);
        answer.insert("winner", oopStrength > ipStrength   ? QStringLiteral("OOP")
                                : ipStrength > oopStrength ? QStringLiteral("IP")
                                                           : QStringLiteral("TIE"));
    } catch (const std::exception&) {
        // The answer is changed only after both hands were judged, so it still reads "UNKNOWN".
    }
    return answer;
}

}  // namespace kelvane_app
