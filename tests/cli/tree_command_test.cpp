// orvanthis-cli tree, run as a process on the bench spot files and on broken ones.

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QVariantMap>

#include <gtest/gtest.h>

#include "app/solve_map.h"
#include "cli/cli_run.h"
#include "session/solve_setup.h"

namespace {

using namespace cli_test;

QString write_file(const QTemporaryDir& dir, const QString& name, const QByteArray& content) {
    const QString path = dir.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return path;
}

qint64 count(const CliRun& run, const char* key) {
    EXPECT_TRUE(run.json.value(key).isDouble()) << key;
    return run.json.value(key).toInteger();
}

TEST(TreeCommand, RiverSpotCountsAddUp) {
    const CliRun run = run_cli({"tree", kSpotDir + "river.json"});
    ASSERT_EQ(run.exit_code, 0) << run.out.toStdString();
    EXPECT_TRUE(run.json.value("ok").toBool());
    const qint64 decision = count(run, "decision_nodes");
    EXPECT_EQ(count(run, "node_count"), decision + count(run, "chance_nodes") + count(run, "terminal_nodes"));
    EXPECT_EQ(decision, count(run, "flop") + count(run, "turn") + count(run, "river"));
    EXPECT_GT(count(run, "river"), 0);
    EXPECT_EQ(count(run, "flop"), 0);
    EXPECT_EQ(count(run, "turn"), 0);
    EXPECT_EQ(count(run, "chance_nodes"), 0);
    EXPECT_GT(count(run, "oop_hands"), 0);
    EXPECT_GT(count(run, "ip_hands"), 0);
    EXPECT_GT(count(run, "card_context_bytes"), 0);
    EXPECT_TRUE(run.json.value("build_ms").isDouble());
}

TEST(TreeCommand, TurnSpotHasRiverDeals) {
    const CliRun run = run_cli({"tree", kSpotDir + "turn.json"});
    ASSERT_EQ(run.exit_code, 0) << run.out.toStdString();
    EXPECT_GT(count(run, "chance_nodes"), 0);
    EXPECT_GT(count(run, "turn"), 0);
    EXPECT_GT(count(run, "river"), 0);
    EXPECT_EQ(count(run, "flop"), 0);
}

TEST(TreeCommand, EveryBenchSpotSetsUp) {
    for (const char* name : {"river.json", "turn.json", "default.json", "anchor.json"}) {
        QFile file(kSpotDir + name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        const QVariantMap map = QJsonDocument::fromJson(file.readAll()).object().toVariantMap();
        EXPECT_NO_THROW(kelvane_app::make_solve_setup(kelvane_app::solveConfigFromMap(map))) << name;
    }
}

TEST(TreeCommand, LibraryErrorIsReported) {
    QTemporaryDir dir;
    const QString path = write_file(dir, "bad.json", R"({"board": "QsJh2h", "oop_range": "AA", "ip_range": "KK",
        "oop_flop_bet_sizes": "3x"})");
    const CliRun run = run_cli({"tree", path});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_FALSE(run.json.value("ok").toBool(true));
    EXPECT_EQ(run.json.value("error").toString(),
              "OOP flop sizing (bet='3x', raise='', bet_norm='3x', raise_norm=''): "
              "Relative raise (x) is not allowed in this context");
}

TEST(TreeCommand, ShortBoardIsReported) {
    QTemporaryDir dir;
    const QString path = write_file(dir, "short.json", R"({"board": "Qs Jh", "oop_range": "AA", "ip_range": "KK"})");
    const CliRun run = run_cli({"tree", path});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.json.value("error").toString(), "Board must include at least a flop (6 chars, e.g. AhKsQd)");
}

TEST(TreeCommand, InvalidJsonIsReported) {
    QTemporaryDir dir;
    const QString path = write_file(dir, "broken.json", "{\"board\": ");
    const CliRun run = run_cli({"tree", path});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_FALSE(run.json.value("ok").toBool(true));
    EXPECT_TRUE(run.json.value("error").toString().startsWith("Spot file '" + path + "' is not valid JSON: "))
        << run.out.toStdString();
}

TEST(TreeCommand, JsonThatIsNoObjectIsReported) {
    QTemporaryDir dir;
    const QString path = write_file(dir, "array.json", "[1, 2]");
    const CliRun run = run_cli({"tree", path});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.json.value("error").toString(), "Spot file '" + path + "' must hold a JSON object");
}

TEST(TreeCommand, MissingFileIsReported) {
    const CliRun run = run_cli({"tree", "/nonexistent/spot.json"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_FALSE(run.json.value("ok").toBool(true));
    EXPECT_TRUE(run.json.value("error").toString().startsWith("Cannot read spot file '/nonexistent/spot.json': "))
        << run.out.toStdString();
}

TEST(TreeCommand, MissingArgumentIsAUsageError) {
    EXPECT_EQ(run_cli({"tree"}).exit_code, 2);
    EXPECT_EQ(run_cli({"tree", "a.json", "b.json"}).exit_code, 2);
}

}  // namespace
