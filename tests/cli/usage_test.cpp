// orvanthis-cli for people: help, version, the live progress line on a terminal, and the memory limit.

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "cli/cli_run.h"

namespace {

using namespace cli_test;

const QString kCli = QStringLiteral(ORVANTHIS_CLI);

TEST(Usage, HelpForTheToolAndEachCommandGoesToStandardOutput) {
    for (const char* option : {"--help", "-h"}) {
        const CliRun run = run_cli({option});
        EXPECT_EQ(run.exit_code, 0) << option;
        EXPECT_TRUE(run.err.isEmpty()) << option;
        EXPECT_TRUE(run.out.startsWith("usage: orvanthis-cli COMMAND [ARGS]\n")) << option;
        for (const char* command : {"eval", "range", "tree", "estimate", "solve", "--version"})
            EXPECT_TRUE(run.out.contains(QByteArray("orvanthis-cli ") + command)) << option << " " << command;
    }
    for (const char* command : {"eval", "range", "tree", "estimate", "solve"}) {
        for (const char* option : {"--help", "-h"}) {
            const CliRun run = run_cli({command, option});
            EXPECT_EQ(run.exit_code, 0) << command << option;
            EXPECT_TRUE(run.err.isEmpty()) << command << option;
            EXPECT_TRUE(run.out.startsWith(QByteArray("usage:\n  orvanthis-cli ") + command)) << command << option;
        }
    }
    // Help wins over whatever else stands on the line; the command doesn't run.
    const CliRun solve = run_cli({"solve", kSpotDir + "river.json", "--help"});
    EXPECT_EQ(solve.exit_code, 0);
    EXPECT_TRUE(solve.out.contains("--max-memory BYTES"));
    EXPECT_TRUE(solve.out.contains("--quiet"));
    EXPECT_FALSE(solve.out.contains("\"success\""));
}

TEST(Usage, VersionIsTheProjects) {
    const CliRun run = run_cli({"--version"});
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out, QByteArray("orvanthis-cli " KELVANE_PROJECT_VERSION "\n"));
}

TEST(Usage, MistakesStillGoToStandardErrorWithExitTwo) {
    const CliRun none = run_cli({});
    EXPECT_EQ(none.exit_code, 2);
    EXPECT_TRUE(none.out.isEmpty());
    EXPECT_TRUE(none.err.contains("usage: orvanthis-cli COMMAND [ARGS]"));
    const CliRun unknown = run_cli({"solvee"});
    EXPECT_EQ(unknown.exit_code, 2);
    EXPECT_TRUE(unknown.err.startsWith("orvanthis-cli: unknown command 'solvee'\n"));
}

// Standard error on a pseudo-terminal, as script(1) gives it, with the JSON sent to a file.
struct TerminalRun {
    QByteArray screen;
    QJsonObject json;
};

TerminalRun run_on_terminal(const QTemporaryDir& dir, const QStringList& args) {
    const QString script = QStandardPaths::findExecutable("script");
    if (script.isEmpty()) return {};
    const QString json_path = dir.filePath("result.json");
    QString command = "'" + kCli + "'";
    for (const QString& arg : args) command += " '" + arg + "'";
    command += " > '" + json_path + "'";
    QProcess process;
    process.start(script, {"-qfec", command, "/dev/null"});
    EXPECT_TRUE(process.waitForFinished(120000));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    TerminalRun run;
    run.screen = process.readAllStandardOutput();
    QFile file(json_path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    run.json = QJsonDocument::fromJson(file.readAll()).object();
    return run;
}

TEST(Progress, OneLiveLineOnATerminal) {
    if (QStandardPaths::findExecutable("script").isEmpty()) GTEST_SKIP() << "script(1) is not installed";
    QTemporaryDir dir;
    const TerminalRun run = run_on_terminal(
        dir, {"solve", kSpotDir + "river.json", "--max-iterations", "120", "--target-pct", "0", "--threads", "1"});
    const QString screen = QString::fromUtf8(run.screen);
    // The line is rewritten in place, and says what it doesn't know yet rather than 0.
    EXPECT_TRUE(screen.contains("\rIter 1 of 120 | exploitability: measuring at 50 | ")) << run.screen.toStdString();
    // Drawn once more before the finalizing texts, with the measured value.
    const QRegularExpression last(QStringLiteral("\rIter 120 of 120 \\| exploitability \\d+\\.\\d{4} \\(\\d+\\.\\d{2}% "
                                                 "of the pot\\) \\| [\\d.]+ it/s \\| \\d+:\\d\\d elapsed"));
    EXPECT_TRUE(last.match(screen).hasMatch()) << run.screen.toStdString();
    // No line for each iteration: the worker's iteration texts don't appear at all.
    EXPECT_FALSE(screen.contains(QString::fromUtf8("exploitability\u2248")));
    EXPECT_TRUE(screen.contains("Init: starting solver..."));
    EXPECT_TRUE(screen.contains("Finalizing: computing results..."));
    EXPECT_TRUE(screen.contains("\nDone"));
    EXPECT_TRUE(screen.contains("Summary: Ks9d4c7h2s solved in "));
    // The JSON is that of a run without a terminal.
    EXPECT_TRUE(run.json.value("success").toBool());
    EXPECT_EQ(run.json.value("iterations").toInt(), 120);
    EXPECT_TRUE(run.json.value("exploitability").isDouble());
    EXPECT_EQ(run.json.value("root_actions").toArray().size(), 2);
}

TEST(Progress, QuietIsSilentOnATerminalToo) {
    if (QStandardPaths::findExecutable("script").isEmpty()) GTEST_SKIP() << "script(1) is not installed";
    QTemporaryDir dir;
    const TerminalRun run =
        run_on_terminal(dir, {"solve", kSpotDir + "river.json", "--max-iterations", "20", "--quiet"});
    EXPECT_TRUE(run.screen.isEmpty()) << run.screen.toStdString();
    EXPECT_EQ(run.json.value("iterations").toInt(), 20);
}

// Deep stacks, many sizes and both full ranges on the flop: far more than any machine holds.
QString write_huge_spot(const QTemporaryDir& dir) {
    QFile source(kSpotDir + "river.json");
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    QJsonObject spot = QJsonDocument::fromJson(source.readAll()).object();
    spot.insert("board", "Ks9d4c");
    spot.insert("starting_street", "flop");
    spot.insert("effective_stack", 499999950);
    spot.insert("oop_range", "100%");
    spot.insert("ip_range", "100%");
    for (const QString& key : spot.keys())
        if (key.endsWith("_bet_sizes") || key.endsWith("_raise_sizes")) spot.insert(key, "10,25,50,100");
    const QString path = dir.filePath("huge.json");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(spot).toJson());
    return path;
}

const QRegularExpression kRefusal(QStringLiteral(
    "^Spot too large to solve: it needs more than \\d+ bytes, above the memory available \\(\\d+ bytes\\); "
    "counting stopped after \\d+ nodes of its tree$"));

TEST(MemoryLimit, HugeTreeRefusedByEachCommandBeforeItIsBuilt) {
    QTemporaryDir dir;
    const QString spot = write_huge_spot(dir);
    for (const char* command : {"tree", "estimate", "solve"}) {
        const CliRun run = run_cli({command, spot});
        EXPECT_EQ(run.exit_code, 1) << command;
        const QString error = run.json.value("error").toString();
        EXPECT_TRUE(kRefusal.match(error).hasMatch()) << command << ": " << error.toStdString();
        EXPECT_FALSE(run.json.value(command == QStringLiteral("solve") ? "success" : "ok").toBool()) << command;
    }
}

TEST(MemoryLimit, ExplicitLimitRefusesTheRiverSpot) {
    for (const char* command : {"tree", "estimate", "solve"}) {
        const CliRun run = run_cli({command, kSpotDir + "river.json", "--max-memory", "1K"});
        EXPECT_EQ(run.exit_code, 1) << command;
        const QString error = run.json.value("error").toString();
        EXPECT_TRUE(error.startsWith("Spot too large to solve: it needs more than ")) << error.toStdString();
        EXPECT_TRUE(error.contains("above the limit set by --max-memory (1024 bytes)")) << error.toStdString();
    }
    // The whole estimate is compared too: the river spot needs some 16 MB, which 10M can't hold but 1G can.
    const CliRun tight = run_cli({"estimate", kSpotDir + "river.json", "--max-memory", "10M"});
    EXPECT_EQ(tight.exit_code, 1);
    const QRegularExpression whole(QStringLiteral(
        "^Spot too large to solve: it needs \\d+ bytes for a tree of 21 nodes, above the limit set by "
        "--max-memory \\(10485760 bytes\\)$"));
    EXPECT_TRUE(whole.match(tight.json.value("error").toString()).hasMatch())
        << tight.json.value("error").toString().toStdString();
    for (const char* size : {"1G", "1g", "2048M", "16777216000"}) {
        const CliRun roomy = run_cli({"estimate", kSpotDir + "river.json", "--max-memory", size});
        EXPECT_EQ(roomy.exit_code, 0) << size;
        EXPECT_TRUE(roomy.json.value("ok").toBool()) << size;
    }
    const CliRun solved = run_cli({"solve", kSpotDir + "river.json", "--max-memory", "1G", "--max-iterations", "2",
                                   "--quiet"});
    EXPECT_EQ(solved.exit_code, 0);
    EXPECT_TRUE(solved.json.value("success").toBool());
}

TEST(MemoryLimit, NonsenseSizesAreRefused) {
    const QStringList sizes = {"", "abc", "-1", "0", "1.5G", "12Q", "1KB", "K", "99999999999999999999",
                               "17179869184G"};
    for (const QString& size : sizes) {
        for (const char* command : {"tree", "estimate", "solve"}) {
            const CliRun run = run_cli({command, kSpotDir + "river.json", "--max-memory", size});
            EXPECT_EQ(run.exit_code, 2) << command << " '" << size.toStdString() << "'";
            EXPECT_TRUE(run.out.isEmpty()) << command;
            EXPECT_TRUE(run.err.startsWith("orvanthis-cli: --max-memory ")) << run.err.toStdString();
        }
    }
    EXPECT_TRUE(run_cli({"estimate", kSpotDir + "river.json", "--max-memory", "abc"})
                    .err.startsWith("orvanthis-cli: --max-memory needs a whole number of bytes, optionally "
                                    "followed by K, M or G, not 'abc'\n"));
    EXPECT_TRUE(run_cli({"tree", kSpotDir + "river.json", "--max-memory", "0"})
                    .err.startsWith("orvanthis-cli: --max-memory must be at least 1 byte (got 0)\n"));
    EXPECT_EQ(run_cli({"tree", kSpotDir + "river.json", "--max-memory"}).exit_code, 2);
}

}  // namespace
