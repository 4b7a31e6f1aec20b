// Solve control: readiness checks, the run's start and cancel, and the progress that crosses back.
#include <QCoreApplication>
#include <QtDebug>
#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "app/app_controller.h"
#include "app/app_controller_mailbox.h"
#include "app/solve_map.h"
#include "session/result_text.h"

namespace kelvane_app {
namespace {

const QString kRankChars = QStringLiteral("AKQJT98765432");

// Every seat and street needs both texts, even those the tree never reaches.
constexpr std::array<const char*, 12> kRequiredSizingKeys{
    "oop_flop_bet_sizes",  "oop_flop_raise_sizes",  "oop_turn_bet_sizes", "oop_turn_raise_sizes",
    "oop_river_bet_sizes", "oop_river_raise_sizes", "ip_flop_bet_sizes",  "ip_flop_raise_sizes",
    "ip_turn_bet_sizes",   "ip_turn_raise_sizes",   "ip_river_bet_sizes", "ip_river_raise_sizes"};

bool isRankChar(QChar c) { return kRankChars.contains(c.toUpper()); }

// Deliberately coarse: two rank characters side by side, as in "AA", "AKs" or "22+".
bool rangeHasHand(const QString& rangeText) {
    const QString text = rangeText.trimmed();
    for (qsizetype i = 0; i + 1 < text.size(); ++i)
        if (isRankChar(text[i]) && isRankChar(text[i + 1])) return true;
    return false;
}

bool sizingComplete(const QVariantMap& cfg) {
    return std::all_of(kRequiredSizingKeys.begin(), kRequiredSizingKeys.end(), [&](const char* key) {
        return !cfg.value(QLatin1String(key)).toString().trimmed().isEmpty();
    });
}

bool validBoardLength(std::size_t length) { return length == 6 || length == 8 || length == 10; }

QString boolText(bool value) { return value ? QStringLiteral("true") : QStringLiteral("false"); }

void logSolveRequest(const QVariantMap& cfg) {
    const auto text = [&](const char* key) { return cfg.value(QLatin1String(key)).toString(); };
    const auto number = [&](const char* key, double fallback) {
        return QString::number(cfg.value(QLatin1String(key), fallback).toDouble());
    };
    const auto flag = [&](const char* key) {
        return boolText(cfg.value(QLatin1String(key), false).toBool());
    };
    qInfo().noquote() << QStringLiteral("UI startSolveWithConfig: board=") +
                             normalizeBoardText(text("board")) +
                             " oop_range.len=" + QString::number(text("oop_range").size()) +
                             " ip_range.len=" + QString::number(text("ip_range").size()) +
                             " pot=" + QString::number(cfg.value("starting_pot", 100).toInt()) +
                             " stack=" + QString::number(cfg.value("effective_stack", 100).toInt()) +
                             " rake%=" + number("rake_percent", 0.0) +
                             " rake_cap=" + number("rake_cap", 0.0) +
                             " iters=" + QString::number(cfg.value("max_iterations", 2000u).toUInt()) +
                             " target_expl=" + number("target_exploitability", 0.1) +
                             " oop_flop_bets=" + text("oop_flop_bet_sizes") +
                             " oop_flop_raises=" + text("oop_flop_raise_sizes") +
                             " ip_flop_bets=" + text("ip_flop_bet_sizes") +
                             " ip_flop_raises=" + text("ip_flop_raise_sizes") +
                             " oop_jam_thr_en=" + flag("oop_add_all_in_jam_threshold_enabled") +
                             " oop_jam_thr_pct=" + number("oop_add_all_in_jam_threshold_pct", 0.0) +
                             " ip_jam_thr_en=" + flag("ip_add_all_in_jam_threshold_enabled") +
                             " ip_jam_thr_pct=" + number("ip_add_all_in_jam_threshold_pct", 0.0);
}

QString translated(const char* source) { return QCoreApplication::translate("AppController", source); }

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QVariantMap treeNodeMetaOf(const SolveResult& result, const ResultNode& node) {
    return QVariantMap{{"nodeType", qtText(node_type_text(node))},
                       {"chanceDeal", qtText(chance_deal_text(node))},
                       {"player", qtText(player_text(node))},
                       {"pot", node.pot},
                       {"effectiveStack", result.effective_stack},
                       {"investedOop", node.invested_oop},
                       {"investedIp", node.invested_ip},
                       {"hasChildren", node.action_count > 0}};
}

QVariantList treeNodeActionsOf(const SolveResult& result, const ResultNode& node) {
    const std::span<const ResultAction> nodeActions = node_actions(result, node);
    QVariantList actions;
    actions.reserve(static_cast<qsizetype>(nodeActions.size()));
    for (const ResultAction& action : nodeActions)
        actions.append(QVariantMap{{"name", QString::fromStdString(result_action_name(result, node, action))},
                                   {"actionType", QString::fromStdString(result_action_type(result, node, action))},
                                   {"frequency", static_cast<double>(action.frequency)},
                                   {"childIndex", action.child_index}});
    return actions;
}

}  // namespace

SolveConfig AppController::buildSolveConfig(const QVariantMap& cfg, bool withLocks) const {
    SolveConfig config = solveConfigFromMap(cfg);
    if (!withLocks) return config;
    for (auto node = m_nodeLocks.cbegin(); node != m_nodeLocks.cend(); ++node) {
        if (node.key() < 0) continue;
        for (auto hand = node->cbegin(); hand != node->cend(); ++hand) {
            if (hand->actionIndex < 0) continue;
            config.node_locks.push_back({static_cast<std::uint64_t>(node.key()), hand.key().toStdString(),
                                         static_cast<std::uint64_t>(hand->actionIndex),
                                         static_cast<float>(std::clamp(hand->actionProb, 0.0, 1.0))});
        }
    }
    return config;
}

void AppController::startSolve() { startSolveWithConfig({}); }

void AppController::startSolveWithConfig(QVariantMap cfg) {
    if (m_running) return;
    setStatusText(translated(QT_TRANSLATE_NOOP("AppController", "Starting...")));
    logSolveRequest(cfg);
    // Kept before the checks, so that a re-solve repeats even a refused map.
    m_lastUiCfg = cfg;

    const SolveConfig config = buildSolveConfig(cfg, cfg.value("apply_node_locks", false).toBool());
    if (!validBoardLength(config.board.size())) {
        setStatusText(translated(QT_TRANSLATE_NOOP("AppController", "Not ready: enter a valid board first")));
        return;
    }
    if (!rangeHasHand(cfg.value("oop_range").toString()) || !rangeHasHand(cfg.value("ip_range").toString())) {
        setStatusText(translated(
            QT_TRANSLATE_NOOP("AppController", "Not ready: select at least one hand in both ranges")));
        return;
    }
    if (!sizingComplete(cfg)) {
        setStatusText(
            translated(QT_TRANSLATE_NOOP("AppController", "Not ready: fill out both OOP and IP sizing")));
        return;
    }

    setRunning(true);
    // The session drops the live solution now, and the next one may be published before its result
    // reaches this thread.
    markNodeCachesStale();
    // `this` only rides along to the calls that the mailbox delivers while the controller lives.
    const auto onProgress = [mailbox = m_mailbox, this](SolveProgress message) {
        mailbox->post([this, message = std::move(message)] { handleSolveProgress(message); });
    };
    // A second look at the flag once it is down, for a last message handled before it fell.
    const auto onEnd = [mailbox = m_mailbox, this] { mailbox->post([this] { lowerRunningIfSessionEnded(); }); };
    const bool started = m_session.start(config, onProgress, onEnd);
    if (!started) {
        // A run the controller had already let go of, as after clearResults, is still going.
        setStatusText(translated(QT_TRANSLATE_NOOP("AppController", "Already running")));
        setRunning(true);
    }
}

void AppController::reSolveWithNodeLocks() {
    if (m_running) return;
    if (m_lastUiCfg.isEmpty()) {
        setStatusText(
            translated(QT_TRANSLATE_NOOP("AppController", "No previous solve config (solve once first)")));
        return;
    }
    QVariantMap cfg = m_lastUiCfg;
    cfg.insert("apply_node_locks", true);
    startSolveWithConfig(cfg);
}

void AppController::cancelSolve() {
    m_session.cancel();
    setStatusText(translated(QT_TRANSLATE_NOOP("AppController", "Cancelling...")));
}

void AppController::clearResults() {
    m_session.cancel();
    m_session.clear();
    clearNodeCaches();
    m_nodeLocks.clear();
    clearResultData();
    m_lastUiCfg.clear();
    setProgress(0.0);
    setStatusText(translated(QT_TRANSLATE_NOOP("AppController", "Ready")));
    setRunning(false);
    emit resultsChanged();
}

void AppController::clearNodeCaches() {
    markNodeCachesStale();
    m_handStrategyByNode.clear();
    m_actionStatsByNode.clear();
    m_handCombosByNode.clear();
    m_handBucketsByNode.clear();
    m_oopSeatHandCombosByNode.clear();
    m_ipSeatHandCombosByNode.clear();
}

void AppController::markNodeCachesStale() { m_freshNodeCaches.clear(); }

void AppController::clearResultData() {
    m_rootActions.clear();
    m_treeNodeMeta.clear();
    m_treeNodeActions.clear();
    m_resultsSummary.clear();
    m_resultStartingPot = 0;
    m_resultIterations = 0;
    m_resultExploitability = 0.0;
    m_resultEvOop = 0.0;
    m_resultEvIp = 0.0;
}

void AppController::handleSolveProgress(const SolveProgress& message) {
    qInfo().noquote() << QStringLiteral("UI solve progress: p=") + QString::number(message.progress) +
                             " status=" + QString::fromStdString(message.status) +
                             " has_result=" + boolText(message.result.has_value());
    setProgress(message.progress);
    setStatusText(QString::fromStdString(message.status));
    if (message.result) {
        publishResult(*message.result);
        qInfo().noquote() << QStringLiteral("UI about to emit resultsChanged: root_actions=") +
                                 QString::number(m_rootActions.size()) +
                                 " summary.len=" + QString::number(m_resultsSummary.size());
        emit resultsChanged();
        qInfo().noquote() << "UI emitted resultsChanged";
    }
    // The worker lowers its flag only after its last message, so this is usually the moment it has fallen.
    lowerRunningIfSessionEnded();
}

void AppController::lowerRunningIfSessionEnded() {
    if (!m_session.is_running() && m_running) setRunning(false);
}

void AppController::publishResult(const SolveResult& result) {
    clearNodeCaches();
    clearResultData();
    if (!result.success) {
        m_resultsSummary = translated(QT_TRANSLATE_NOOP("AppController", "Solve failed: %1"))
                               .arg(QString::fromStdString(result.error));
        return;
    }
    const QString summary =
        translated(QT_TRANSLATE_NOOP("AppController", "Board %1 | iters %2 | expl≈%3 | EV(oop)=%4 EV(ip)=%5"))
            .arg(QString::fromStdString(result.board))
            .arg(result.iterations)
            .arg(static_cast<double>(result.exploitability), 0, 'f', 4)
            .arg(static_cast<double>(result.ev_oop), 0, 'f', 3)
            .arg(static_cast<double>(result.ev_ip), 0, 'f', 3);
    record_solve_activity(static_cast<int>(result.iterations), result.exploitability);
    emit solveStatsChanged();

    m_resultStartingPot = result.starting_pot;
    m_resultIterations = static_cast<qint32>(result.iterations);
    m_resultExploitability = result.exploitability;
    m_resultEvOop = result.ev_oop;
    m_resultEvIp = result.ev_ip;

    const std::size_t names = result.root_action_names.size();
    const std::size_t types = result.root_action_types.size();
    const std::size_t freqs = result.root_action_frequencies.size();
    const std::size_t n = std::min({names, types, freqs});
    if (names != types || types != freqs)
        qWarning().noquote() << QStringLiteral(
                                    "Result root action arrays have mismatched sizes: names=%1 types=%2 "
                                    "freqs=%3 (using n=%4)")
                                    .arg(names)
                                    .arg(types)
                                    .arg(freqs)
                                    .arg(n);
    for (std::size_t i = 0; i < n; ++i)
        m_rootActions.append(
            QVariantMap{{"name", QString::fromStdString(result.root_action_names[i])},
                        {"actionType", QString::fromStdString(result.root_action_types[i])},
                        {"frequency", static_cast<double>(result.root_action_frequencies[i])}});

    m_treeNodeMeta.reserve(static_cast<qsizetype>(result.nodes.size()));
    m_treeNodeActions.reserve(static_cast<qsizetype>(result.nodes.size()));
    for (const ResultNode& node : result.nodes) {
        m_treeNodeMeta.append(treeNodeMetaOf(result, node));
        m_treeNodeActions.append(treeNodeActionsOf(result, node));
    }
    m_resultsSummary = summary;
}

}  // namespace kelvane_app
