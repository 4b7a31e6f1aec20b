// orvanthis-cli solve and estimate, run as processes on the bench spots.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <signal.h>

#include "cli/cli_run.h"

namespace {

using namespace cli_test;

const QString kSummaryStart = QStringLiteral("Summary: ");

// Standard error up to the closing summary: the worker's status texts, one a line.
QStringList status_lines(const QByteArray& err) {
    QStringList status;
    for (const QString& line : lines_of(err)) {
        if (line.startsWith(kSummaryStart)) break;
        status.append(line);
    }
    return status;
}

// The summary's lines, from its first on; empty when there is none.
QStringList summary_lines(const QByteArray& err) {
    const QStringList lines = lines_of(err);
    for (qsizetype i = 0; i < lines.size(); ++i)
        if (lines[i].startsWith(kSummaryStart)) return lines.mid(i);
    return {};
}

// Starts a solve whose iterations take a while, and returns once it has reported its first one.
void start_until_iterating(QProcess& process, const QStringList& args) {
    process.setReadChannel(QProcess::StandardError);
    process.start(QStringLiteral(ORVANTHIS_CLI), args);
    ASSERT_TRUE(process.waitForStarted());
    bool iterating = false;
    while (!iterating && process.waitForReadyRead(60000)) {
        while (process.canReadLine())
            if (process.readLine().startsWith("Iter")) iterating = true;
    }
    ASSERT_TRUE(iterating);
}

void send_signal(const QProcess& process, int signal_number) {
    ::kill(static_cast<pid_t>(process.processId()), signal_number);
}

// A cancelled run keeps what its iterations reached: a root strategy, EVs, and the exploitability once
// measured (null before).
void expect_cancelled_result(QProcess& process) {
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 1);
    const QByteArray err = process.readAllStandardError();
    EXPECT_EQ(status_lines(err).last(), "Cancelled");
    const QJsonObject json = QJsonDocument::fromJson(process.readAllStandardOutput()).object();
    EXPECT_FALSE(json.value("success").toBool());
    EXPECT_EQ(json.value("error").toString(), "Cancelled");
    const int iterations = json.value("iterations").toInt();
    EXPECT_GT(iterations, 0);
    const QJsonArray root = json.value("root_actions").toArray();
    ASSERT_EQ(root.size(), 2);
    EXPECT_NEAR(root[0].toObject().value("frequency").toDouble() + root[1].toObject().value("frequency").toDouble(),
                1.0, 1e-5);
    // Computed, not left at 0; without rake what one seat wins the other loses.
    EXPECT_NE(json.value("ev_oop").toDouble(), 0.0);
    EXPECT_NEAR(json.value("ev_oop").toDouble() + json.value("ev_ip").toDouble(), 0.0, 1e-3);
    EXPECT_GT(json.value("node_count").toInt(), 1);
    EXPECT_EQ(json.value("exploitability").isNull(), iterations < 50) << iterations;
    const QStringList summary = summary_lines(err);
    ASSERT_FALSE(summary.isEmpty());
    EXPECT_TRUE(summary[0].startsWith("Summary: Ks9d4c7h2s cancelled in ")) << summary[0].toStdString();
}

// The polarised river: exact showdowns give the textbook -20 / +20; the earlier early stop of the
// showdown sweep, kept behind an option, pays AK nothing when it loses to a set and creates chips.
TEST(SolveCommand, ShowdownEarlyStopIsAnOption) {
    const CliRun exact = run_cli({"solve", kSpotDir + "polarized_river.json", "--quiet"});
    ASSERT_EQ(exact.exit_code, 0) << exact.err.toStdString();
    EXPECT_NEAR(exact.json.value("ev_oop").toDouble(), -20.0, 0.5);
    EXPECT_NEAR(exact.json.value("ev_ip").toDouble(), 20.0, 0.5);

    const CliRun early = run_cli({"solve", kSpotDir + "polarized_river.json", "--quiet", "--showdown-early-stop"});
    ASSERT_EQ(early.exit_code, 0) << early.err.toStdString();
    EXPECT_GT(early.json.value("ev_oop").toDouble() + early.json.value("ev_ip").toDouble(), 50.0);
}

TEST(SolveCommand, RiverSpotEndToEnd) {
    const CliRun run = run_cli({"solve", kSpotDir + "river.json", "--max-iterations", "60", "--threads", "2",
                                "--line", "", "--line", "Check,Bet 75%", "--line", "Bet 75%,Raise 999%"});
    ASSERT_EQ(run.exit_code, 0) << run.err.toStdString();
    const QJsonObject& json = run.json;
    for (const char* key : {"success", "error", "board", "starting_pot", "effective_stack", "iterations",
                            "exploitability", "exploitability_pct", "ev_oop", "ev_ip", "root_actions", "node_count",
                            "estimate_bytes", "peak_rss_bytes", "build_ms", "solve_ms", "ms_per_iteration", "threads",
                            "lines"})
        EXPECT_TRUE(json.contains(key)) << key;
    EXPECT_TRUE(json.value("success").toBool());
    EXPECT_EQ(json.value("error").toString(), "");
    EXPECT_EQ(json.value("board").toString(), "Ks9d4c7h2s");
    EXPECT_EQ(json.value("starting_pot").toInt(), 100);
    EXPECT_EQ(json.value("effective_stack").toInt(), 500);
    EXPECT_EQ(json.value("threads").toInt(), 2);
    const int iterations = json.value("iterations").toInt();
    EXPECT_TRUE(iterations == 50 || iterations == 60) << iterations;
    EXPECT_DOUBLE_EQ(json.value("exploitability_pct").toDouble(), json.value("exploitability").toDouble());
    EXPECT_GT(json.value("node_count").toInt(), 1);
    EXPECT_GT(json.value("estimate_bytes").toDouble(), 0.0);
    EXPECT_GT(json.value("peak_rss_bytes").toDouble(), 0.0);

    const QJsonArray root = json.value("root_actions").toArray();
    ASSERT_EQ(root.size(), 2);
    EXPECT_EQ(root[0].toObject().value("name").toString(), "Check");
    EXPECT_EQ(root[1].toObject().value("type").toString(), "bet 75%");
    EXPECT_NEAR(root[0].toObject().value("frequency").toDouble() + root[1].toObject().value("frequency").toDouble(),
                1.0, 1e-5);

    const QJsonObject lines = json.value("lines").toObject();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines.value("").toObject().value("node_index").toInt(), 0);
    EXPECT_EQ(lines.value("").toObject().value("player").toString(), "OOP");
    const QJsonObject river_node = lines.value("Check,Bet 75%").toObject();
    EXPECT_EQ(river_node.value("player").toString(), "OOP");
    const QJsonArray names = river_node.value("action_names").toArray();
    EXPECT_EQ(names.first().toString(), "Fold");
    EXPECT_EQ(river_node.value("action_types").toArray().size(), river_node.value("action_frequencies").toArray().size());

    // Per-hand parts come from the live solution: every class row is a distribution over the node's actions.
    const QJsonObject hands = river_node.value("hands").toObject();
    ASSERT_FALSE(hands.isEmpty());
    EXPECT_TRUE(hands.contains("AA"));
    for (const QString& label : hands.keys()) {
        const QJsonObject hand = hands.value(label).toObject();
        EXPECT_GT(hand.value("weight").toDouble(), 0.0) << label.toStdString();
        const QJsonArray strategy = hand.value("strategy").toArray();
        ASSERT_EQ(strategy.size(), names.size()) << label.toStdString();
        double sum = 0.0;
        for (const QJsonValue& p : strategy) sum += p.toDouble();
        EXPECT_NEAR(sum, 1.0, 1e-4) << label.toStdString();
    }
    const QJsonArray stats = river_node.value("action_stats").toArray();
    ASSERT_EQ(stats.size(), names.size());
    for (int a = 0; a < stats.size(); ++a) {
        const QJsonObject stat = stats[a].toObject();
        EXPECT_EQ(stat.value("name").toString(), names[a].toString());
        for (const char* key : {"frequency", "combos", "equity", "ev"}) EXPECT_TRUE(stat.contains(key)) << key;
    }
    const QJsonArray buckets = river_node.value("buckets").toArray();
    ASSERT_FALSE(buckets.isEmpty());
    for (const QJsonValue& bucket : buckets) {
        EXPECT_FALSE(bucket.toObject().value("name").toString().isEmpty());
        EXPECT_EQ(bucket.toObject().value("action_probs").toArray().size(), names.size());
    }

    const QJsonObject bad_line = lines.value("Bet 75%,Raise 999%").toObject();
    EXPECT_TRUE(bad_line.value("error").toString().startsWith("Action 'Raise 999%' not found at node "))
        << bad_line.value("error").toString().toStdString();
    EXPECT_FALSE(bad_line.contains("node_index"));

    // Without a terminal the status texts come one a line, every iteration's included, exactly as the
    // worker sends them; then the summary.
    EXPECT_FALSE(run.err.contains('\r'));
    const QStringList status = status_lines(run.err);
    ASSERT_EQ(status.size(), 3 + iterations + 3);
    EXPECT_EQ(status[0], "Init: building game object...");
    EXPECT_EQ(status[1], "Init: building game tree structures...");
    EXPECT_EQ(status[2], "Init: starting solver...");
    EXPECT_EQ(status[3], QString::fromUtf8("Iter 1 | exploitability\u2248" "0.0000"));
    for (int i = 1; i <= iterations; ++i)
        EXPECT_TRUE(status[2 + i].startsWith(QStringLiteral("Iter %1 | exploitability").arg(i))) << i;
    EXPECT_EQ(status[3 + iterations], "Finalizing: computing results...");
    EXPECT_EQ(status.last(), "Done");

    const QStringList summary = summary_lines(run.err);
    ASSERT_EQ(summary.size(), 4);
    EXPECT_TRUE(summary[0].startsWith(QStringLiteral("Summary: Ks9d4c7h2s solved in "))) << summary[0].toStdString();
    EXPECT_TRUE(summary[0].endsWith(QStringLiteral(" s, %1 iterations").arg(iterations))) << summary[0].toStdString();
    EXPECT_EQ(summary[1], QString::asprintf("  exploitability: %.4f (%.3f%% of the pot)",
                                            json.value("exploitability").toDouble(),
                                            json.value("exploitability_pct").toDouble()));
    EXPECT_EQ(summary[2], QString::asprintf("  EV: OOP %.3f, IP %.3f", json.value("ev_oop").toDouble(),
                                            json.value("ev_ip").toDouble()));
    EXPECT_EQ(summary[3], QString::asprintf("  root strategy (OOP): Check %.1f%%, Bet 75%% %.1f%%",
                                            root[0].toObject().value("frequency").toDouble() * 100.0,
                                            root[1].toObject().value("frequency").toDouble() * 100.0));
}

TEST(SolveCommand, SummarySaysWhenNothingWasMeasured) {
    const CliRun run = run_cli({"solve", kSpotDir + "river.json", "--max-iterations", "0"});
    ASSERT_EQ(run.exit_code, 0) << run.err.toStdString();
    EXPECT_TRUE(run.json.value("exploitability").isNull());
    const QStringList summary = summary_lines(run.err);
    ASSERT_EQ(summary.size(), 4);
    EXPECT_TRUE(summary[0].endsWith(" s, 0 iterations")) << summary[0].toStdString();
    EXPECT_EQ(summary[1], "  exploitability: not measured");
}

TEST(SolveCommand, QuietWritesNoStatusAndOutputGoesToTheFile) {
    QTemporaryDir dir;
    const QString path = dir.filePath("result.json");
    const CliRun run = run_cli({"solve", kSpotDir + "river.json", "--max-iterations", "3", "--quiet", "--compress",
                                "--output", path});
    ASSERT_EQ(run.exit_code, 0);
    EXPECT_TRUE(run.err.isEmpty());
    EXPECT_TRUE(run.out.isEmpty());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject json = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_TRUE(json.value("success").toBool());
    EXPECT_EQ(json.value("iterations").toInt(), 3);
}

TEST(SolveCommand, TargetPercentStopsAtAMeasuringIteration) {
    const CliRun run = run_cli({"solve", kSpotDir + "river.json", "--quiet", "--max-iterations", "5000",
                                "--target-pct", "50"});
    ASSERT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.json.value("iterations").toInt() % 50, 0);
    EXPECT_LE(run.json.value("exploitability_pct").toDouble(), 50.0);
}

TEST(SolveCommand, BadUsage) {
    EXPECT_EQ(run_cli({"solve"}).exit_code, 2);
    EXPECT_EQ(run_cli({"solve", kSpotDir + "river.json", "--threads", "many"}).exit_code, 2);
    EXPECT_EQ(run_cli({"solve", kSpotDir + "river.json", "--bogus"}).exit_code, 2);
    EXPECT_EQ(run_cli({"solve", kSpotDir + "river.json", "--line"}).exit_code, 2);
}

TEST(SolveCommand, FailedSolveExitsWithOne) {
    QTemporaryDir dir;
    const QString path = dir.filePath("bad.json");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"board": "Ks9d4", "oop_range": "AA", "ip_range": "KK"})");
    file.close();
    const CliRun run = run_cli({"solve", path});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_FALSE(run.json.value("success").toBool());
    EXPECT_EQ(run.json.value("error").toString(), "Board must include at least a flop (6 chars, e.g. AhKsQd)");
    EXPECT_EQ(lines_of(run.err).last(), "Error: Board must include at least a flop (6 chars, e.g. AhKsQd)");
}

const QStringList kEndlessRiver = {"solve", kSpotDir + "river.json", "--max-iterations", "100000000",
                                    "--target-pct", "0"};

TEST(SolveCommand, InterruptCancelsTheSolveAndKeepsItsResult) {
    QProcess process;
    start_until_iterating(process, kEndlessRiver);
    send_signal(process, SIGINT);
    expect_cancelled_result(process);
}

TEST(SolveCommand, TerminateCancelsTheSolveAndKeepsItsResult) {
    QProcess process;
    start_until_iterating(process, kEndlessRiver);
    send_signal(process, SIGTERM);
    expect_cancelled_result(process);
}

// An iteration of both full ranges on the turn takes a good part of a second on one thread, so the
// second interrupt lands while the first still waits for the iteration's end.
TEST(SolveCommand, SecondInterruptEndsAtOnce) {
    QTemporaryDir dir;
    const QString spot = dir.filePath("wide_turn.json");
    QFile source(kSpotDir + "turn.json");
    ASSERT_TRUE(source.open(QIODevice::ReadOnly));
    QJsonObject json = QJsonDocument::fromJson(source.readAll()).object();
    json.insert("oop_range", "100%");
    json.insert("ip_range", "100%");
    QFile file(spot);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(json).toJson());
    file.close();

    QProcess process;
    start_until_iterating(process, {"solve", spot, "--threads", "1", "--max-iterations", "1000"});
    send_signal(process, SIGINT);
    QThread::msleep(20);
    send_signal(process, SIGINT);
    ASSERT_TRUE(process.waitForFinished(60000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 130);
    EXPECT_TRUE(process.readAllStandardOutput().isEmpty());
}

TEST(EstimateCommand, SpotAndBadBoard) {
    const CliRun good = run_cli({"estimate", kSpotDir + "river.json"});
    ASSERT_EQ(good.exit_code, 0);
    EXPECT_TRUE(good.json.value("ok").toBool());
    EXPECT_TRUE(good.json.value("valid").toBool());
    for (const char* key : {"total_bytes", "card_context_bytes", "tree_bytes", "state_bytes", "result_bytes",
                            "node_count", "decision_node_count", "oop_hands", "ip_hands"})
        EXPECT_GT(good.json.value(key).toDouble(), 0.0) << key;
    const double counted = good.json.value("tree_bytes").toDouble() + good.json.value("card_context_bytes").toDouble() +
                           good.json.value("state_bytes").toDouble() + good.json.value("result_bytes").toDouble();
    // The rest is the process and the walks, the same for every spot.
    const double runtime = good.json.value("total_bytes").toDouble() - counted;
    EXPECT_GT(runtime, 0.0);
    EXPECT_LT(runtime, 32e6);

    QTemporaryDir dir;
    const QString path = dir.filePath("bad.json");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(R"({"board": "Ks9d", "oop_range": "AA", "ip_range": "KK"})");
    file.close();
    const CliRun bad = run_cli({"estimate", path});
    EXPECT_EQ(bad.exit_code, 1);
    EXPECT_FALSE(bad.json.value("ok").toBool());
    EXPECT_FALSE(bad.json.value("valid").toBool());
    EXPECT_EQ(bad.json.value("error").toString(), "Board must include at least a flop (6 chars, e.g. AhKsQd)");
    EXPECT_EQ(run_cli({"estimate"}).exit_code, 2);
}

}  // namespace
