// orvanthis-cli on spot files and options that a hostile or careless user writes: each is refused with
// a message that names the key, option, board or size at fault, and what is allowed still solves.

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "cli/cli_run.h"

namespace {

using namespace cli_test;

const QString kRiverSpot = QStringLiteral(KELVANE_SOURCE_DIR "/bench/spots/river.json");

QJsonObject river_spot() {
    QFile file(kRiverSpot);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return QJsonDocument::fromJson(file.readAll()).object();
}

QString write_spot(const QTemporaryDir& dir, const QJsonObject& spot, const QString& name = "spot.json") {
    const QString path = dir.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QJsonDocument(spot).toJson());
    return path;
}

// One change to the river bench spot, and the one message that refuses it.
struct Mutation {
    const char* name;
    std::function<void(QJsonObject&)> change;
    const char* message;
};

const std::vector<Mutation>& mutations() {
    static const std::vector<Mutation> list = {
        {"NegativePot", [](QJsonObject& s) { s["starting_pot"] = -5; },
         "starting_pot must be at least 1 (got -5)"},
        {"TextPot", [](QJsonObject& s) { s["starting_pot"] = "abc"; },
         "starting_pot: expected a number, got \"abc\""},
        {"FractionalPot", [](QJsonObject& s) { s["starting_pot"] = 1.5; },
         "starting_pot: expected a whole number, got 1.5"},
        {"LargestIntPot", [](QJsonObject& s) { s["starting_pot"] = 2147483647; },
         "starting_pot must be at most 1000000000 (got 2147483647)"},
        {"PotOfTwoToThe31", [](QJsonObject& s) { s["starting_pot"] = 2147483648.0; },
         "starting_pot must be at most 1000000000 (got 2147483648)"},
        {"PotOfTwoToThe32", [](QJsonObject& s) { s["starting_pot"] = 4294967296.0; },
         "starting_pot must be at most 1000000000 (got 4294967296)"},
        {"HugePot", [](QJsonObject& s) { s["starting_pot"] = 1e300; }, "starting_pot: 1e+300 is too large"},
        {"HugeStack", [](QJsonObject& s) { s["effective_stack"] = 1e12; },
         "effective_stack must be at most 499999950 with a starting_pot of 100 (got 1000000000000)"},
        {"NegativeStack", [](QJsonObject& s) { s["effective_stack"] = -1; },
         "effective_stack must be at least 0 (got -1)"},
        {"SixCards", [](QJsonObject& s) { s["board"] = "Ks9d4c7h2s3d"; },
         "board \"Ks9d4c7h2s3d\": 6 cards, a board has 3 to 5"},
        {"SevenCards", [](QJsonObject& s) { s["board"] = "Ks9d4c7h2s3d8c"; },
         "board \"Ks9d4c7h2s3d8c\": 7 cards, a board has 3 to 5"},
        {"Commas", [](QJsonObject& s) { s["board"] = "Ks,9d,4c,7h,2s"; },
         "board \"Ks,9d,4c,7h,2s\": \",9\" is not a card"},
        {"BadRank", [](QJsonObject& s) { s["board"] = "Xs9d4c7h2s"; },
         "board \"Xs9d4c7h2s\": \"Xs\" is not a card"},
        {"TenAsTwoDigits", [](QJsonObject& s) { s["board"] = "Ks9d4c7h10s"; },
         "board \"Ks9d4c7h10s\": \"10\" is not a card"},
        {"LoneCharacter", [](QJsonObject& s) { s["board"] = "Ks9d4c7h2"; },
         "board \"Ks9d4c7h2\": \"2\" is not a card"},
        {"RepeatedCard", [](QJsonObject& s) { s["board"] = "Ks9d4c7hKs"; },
         "board \"Ks9d4c7hKs\": Ks appears twice"},
        {"NumberBoard", [](QJsonObject& s) { s["board"] = 5; }, "board: expected a string, got 5"},
        {"CapitalStreet", [](QJsonObject& s) { s["starting_street"] = "River"; },
         "starting_street \"River\": expected \"flop\", \"turn\" or \"river\""},
        {"MisspeltStreet", [](QJsonObject& s) { s["starting_street"] = "rivr"; },
         "starting_street \"rivr\": expected \"flop\", \"turn\" or \"river\""},
        {"NullStreet", [](QJsonObject& s) { s["starting_street"] = QJsonValue::Null; },
         "starting_street: expected a string, got null"},
        {"FlopStreetOnARiver", [](QJsonObject& s) { s["starting_street"] = "flop"; },
         "starting_street \"flop\" does not fit board \"Ks9d4c7h2s\", which has 5 cards: a river"},
        {"RiverStreetOnAFlop", [](QJsonObject& s) { s["board"] = "Ks9d4c"; },
         "starting_street \"river\" does not fit board \"Ks9d4c\", which has 3 cards: a flop"},
        {"NegativeIterations", [](QJsonObject& s) { s["max_iterations"] = -3; },
         "max_iterations must be at least 0 (got -3)"},
        {"IterationsPast32Bits", [](QJsonObject& s) { s["max_iterations"] = 5e9; },
         "max_iterations must be at most 4294967295 (got 5000000000)"},
        {"ManyThreads", [](QJsonObject& s) { s["thread_count"] = 10000; },
         "thread_count must be at most 1024 (got 10000)"},
        {"ThreadsPast31Bits", [](QJsonObject& s) { s["thread_count"] = 2147483648.0; },
         "thread_count must be at most 1024 (got 2147483648)"},
        {"NegativeThreads", [](QJsonObject& s) { s["thread_count"] = -1; },
         "thread_count must be at least 0 (got -1)"},
        {"HugeNegativeRake", [](QJsonObject& s) { s["rake_percent"] = -1e308; },
         "rake_percent must be from 0 to 100 (got -1e+308)"},
        {"RakeAboveAll", [](QJsonObject& s) { s["rake_percent"] = 101; },
         "rake_percent must be from 0 to 100 (got 101)"},
        {"NegativeRake", [](QJsonObject& s) { s["rake_percent"] = -1; },
         "rake_percent must be from 0 to 100 (got -1)"},
        {"NegativeRakeCap", [](QJsonObject& s) { s["rake_cap"] = -1; },
         "rake_cap must be at least 0 (got -1)"},
        {"NullTarget", [](QJsonObject& s) { s["target_exploitability"] = QJsonValue::Null; },
         "target_exploitability: expected a number, got null"},
        {"NegativeSize", [](QJsonObject& s) { s["oop_river_bet_sizes"] = "-50"; },
         "oop_river_bet_sizes \"-50\": size \"-50\" has no reading in the sizing grammar"},
        {"NanSize", [](QJsonObject& s) { s["ip_river_bet_sizes"] = "33, nan"; },
         "ip_river_bet_sizes \"33, nan\": size \"nan\" has no reading in the sizing grammar"},
        {"InfiniteSize", [](QJsonObject& s) { s["oop_river_raise_sizes"] = "inf"; },
         "oop_river_raise_sizes \"inf\": size \"inf\" has no reading in the sizing grammar"},
        {"BlankInsideASize", [](QJsonObject& s) { s["ip_river_raise_sizes"] = "75 75"; },
         "ip_river_raise_sizes \"75 75\": size \"75 75\" has no reading in the sizing grammar"},
        {"SizesAsAnArray", [](QJsonObject& s) { s["oop_river_bet_sizes"] = QJsonArray{75}; },
         "oop_river_bet_sizes: expected a string, got an array"},
        {"FlagAsText", [](QJsonObject& s) { s["oop_river_add_all_in"] = "no"; },
         "oop_river_add_all_in: expected true or false, got \"no\""},
        {"FlagAsNumber", [](QJsonObject& s) { s["ip_flop_dont_donk"] = 1; },
         "ip_flop_dont_donk: expected true or false, got 1"},
        {"ObjectForText",
         [](QJsonObject& s) {
             s["ip_range"] = QJsonObject{{"AA", 1}};
         },
         "ip_range: expected a string, got an object"},
        {"NoMatchup",
         [](QJsonObject& s) {
             s["oop_range"] = "AhAs";
             s["ip_range"] = "AhAs";
         },
         "oop_range \"AhAs\" and ip_range \"AhAs\" have no possible matchup on board \"Ks9d4c7h2s\": every "
         "hand "
         "of one shares a card with every hand of the other"},
        {"RangeKeyIsNamed", [](QJsonObject& s) { s["ip_range"] = "4c7h"; },
         "ip_range \"4c7h\": First rank must be >= second rank"},
    };
    return list;
}

class RefusedSpot : public ::testing::TestWithParam<Mutation> {
  protected:
    QString spoiled_spot() {
        QJsonObject spot = river_spot();
        GetParam().change(spot);
        return write_spot(dir, spot);
    }

    QTemporaryDir dir;
};

TEST_P(RefusedSpot, SolveFailsWithTheMessage) {
    const CliRun run = run_cli({"solve", spoiled_spot(), "--max-iterations", "1", "--quiet"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_FALSE(run.json.value("success").toBool(true)) << run.out.toStdString();
    EXPECT_EQ(run.json.value("error").toString().toStdString(), GetParam().message);
}

TEST_P(RefusedSpot, TreeAndEstimateFailWithTheSameMessage) {
    const QString path = spoiled_spot();
    for (const char* command : {"tree", "estimate"}) {
        const CliRun run = run_cli({command, path});
        EXPECT_EQ(run.exit_code, 1) << command;
        EXPECT_FALSE(run.json.value("ok").toBool(true)) << command << ": " << run.out.toStdString();
        EXPECT_EQ(run.json.value("error").toString().toStdString(), GetParam().message) << command;
    }
}

INSTANTIATE_TEST_SUITE_P(Mutations, RefusedSpot, ::testing::ValuesIn(mutations()),
                         [](const auto& info) { return std::string(info.param.name); });

// A board too short for a flop keeps the card parser's own text, from the solve itself.
TEST(SpotBoard, TooShortForAFlopKeepsTheSessionsText) {
    QTemporaryDir dir;
    QJsonObject spot = river_spot();
    spot["board"] = "Ks9d4";
    const CliRun run = run_cli({"solve", write_spot(dir, spot), "--max-iterations", "1"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.json.value("error").toString(),
              "Board must include at least a flop (6 chars, e.g. AhKsQd)");
    EXPECT_EQ(lines_of(run.err).last(), "Error: Board must include at least a flop (6 chars, e.g. AhKsQd)");
}

TEST(SpotBoard, CaseAndBlanksBetweenCardsAreFine) {
    QTemporaryDir dir;
    QJsonObject spot = river_spot();
    spot["board"] = "ks 9D 4c 7h 2S";
    const CliRun run = run_cli({"solve", write_spot(dir, spot), "--max-iterations", "1", "--quiet"});
    ASSERT_EQ(run.exit_code, 0) << run.out.toStdString();
    EXPECT_EQ(run.json.value("board").toString(), "Ks9d4c7h2s");
}

TEST(SpotStreet, MissingStreetFollowsTheBoard) {
    QTemporaryDir dir;
    QJsonObject river = river_spot();
    river.remove("starting_street");
    const CliRun river_tree = run_cli({"tree", write_spot(dir, river, "river.json")});
    ASSERT_EQ(river_tree.exit_code, 0) << river_tree.out.toStdString();
    EXPECT_EQ(river_tree.json.value("chance_nodes").toInt(), 0);
    EXPECT_EQ(river_tree.json.value("flop").toInt(), 0);
    EXPECT_GT(river_tree.json.value("river").toInt(), 0);

    QJsonObject turn = river;
    turn["board"] = "Ks9d4c7h";
    const CliRun turn_tree = run_cli({"tree", write_spot(dir, turn, "turn.json")});
    ASSERT_EQ(turn_tree.exit_code, 0) << turn_tree.out.toStdString();
    EXPECT_EQ(turn_tree.json.value("flop").toInt(), 0);
    EXPECT_GT(turn_tree.json.value("turn").toInt(), 0);
    EXPECT_GT(turn_tree.json.value("chance_nodes").toInt(), 0);
}

// "0" is 0% of the pot and "0.0001" a sliver of it: the grammar reads both, as the smallest legal bet.
TEST(SpotSizes, TinyPercentagesKeepTheirReading) {
    QTemporaryDir dir;
    QJsonObject spot = river_spot();
    spot["oop_river_bet_sizes"] = "0";
    spot["ip_river_bet_sizes"] = "0.0001, 75%, a";
    spot["ip_river_raise_sizes"] = "2.5x";
    const CliRun run = run_cli({"solve", write_spot(dir, spot), "--max-iterations", "1", "--quiet"});
    ASSERT_EQ(run.exit_code, 0) << run.out.toStdString();
    const QJsonArray root = run.json.value("root_actions").toArray();
    ASSERT_EQ(root.size(), 2);
    EXPECT_EQ(root[1].toObject().value("name").toString(), "Bet 1%");
}

TEST(SpotKeys, UnknownKeysAreWarnedAboutOneLineEach) {
    QTemporaryDir dir;
    QJsonObject spot = river_spot();
    spot["boardd"] = "Ks9d4c7h2s";
    spot["threads"] = 2;
    const CliRun run = run_cli({"solve", write_spot(dir, spot), "--max-iterations", "1", "--quiet"});
    ASSERT_EQ(run.exit_code, 0) << run.out.toStdString();
    EXPECT_EQ(lines_of(run.err),
              (QStringList{
                  "orvanthis-cli: warning: unknown key \"boardd\" in the spot file is ignored",
                  "orvanthis-cli: warning: unknown key \"threads\" in the spot file is ignored",
              }));
}

// With the board under a misspelt key, the warning comes before the error it explains.
TEST(SpotKeys, WarningPrecedesTheErrorItExplains) {
    QTemporaryDir dir;
    QJsonObject spot = river_spot();
    spot["boardd"] = spot.take("board");
    const CliRun run = run_cli({"solve", write_spot(dir, spot), "--max-iterations", "1"});
    EXPECT_EQ(run.exit_code, 1);
    const QStringList err = lines_of(run.err);
    ASSERT_GE(err.size(), 2);
    EXPECT_EQ(err.first(), "orvanthis-cli: warning: unknown key \"boardd\" in the spot file is ignored");
    EXPECT_EQ(run.json.value("error").toString(),
              "Board must include at least a flop (6 chars, e.g. AhKsQd)");
}

// The flop spots, default.json and anchor.json, take over a second each to build and are left out.
TEST(SpotKeys, SmallBenchSpotsAreReadWithoutAWord) {
    for (const char* name : {"river.json", "turn.json", "polarized_river.json"}) {
        const CliRun run = run_cli({"tree", kSpotDir + name});
        EXPECT_EQ(run.exit_code, 0) << name << ": " << run.out.toStdString();
        EXPECT_TRUE(run.err.isEmpty()) << name << ": " << run.err.toStdString();
    }
}

TEST(SpotFile, LargerThanOneMebibyteIsRefusedBeforeParsing) {
    QElapsedTimer timer;
    timer.start();
    const CliRun zero = run_cli({"tree", "/dev/zero"});
    EXPECT_LT(timer.elapsed(), 10000);
    EXPECT_EQ(zero.exit_code, 1);
    EXPECT_EQ(zero.json.value("error").toString(),
              "Spot file '/dev/zero' is larger than 1 MiB (1048576 bytes)");

    QTemporaryDir dir;
    const QByteArray body = QJsonDocument(river_spot()).toJson();
    const auto padded = [&](const QString& name, qsizetype size) {
        const QString path = dir.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(body + QByteArray(size - body.size(), ' '));
        return path;
    };
    const QString over = padded("over.json", (1 << 20) + 1);
    const CliRun refused = run_cli({"tree", over});
    EXPECT_EQ(refused.exit_code, 1);
    EXPECT_EQ(refused.json.value("error").toString(),
              "Spot file '" + over + "' is larger than 1 MiB (1048576 bytes)");
    const CliRun exact = run_cli({"tree", padded("exact.json", 1 << 20)});
    EXPECT_EQ(exact.exit_code, 0) << exact.out.toStdString();
}

struct OptionCase {
    QStringList args;
    const char* message;
};

TEST(SolveOptions, OutOfRangeValuesAreUsageErrorsNamingTheOption) {
    const std::vector<OptionCase> cases = {
        {{"--threads", "10000"}, "orvanthis-cli: --threads must be at most 1024 (got 10000)"},
        {{"--threads", "2147483648"}, "orvanthis-cli: --threads must be at most 1024 (got 2147483648)"},
        {{"--threads", "99999999999999999999999"},
         "orvanthis-cli: --threads must be at most 1024 (got 99999999999999999999999)"},
        {{"--threads", "-3"}, "orvanthis-cli: --threads must be at least 0 (got -3)"},
        {{"--threads", "many"}, "orvanthis-cli: --threads needs a number, not 'many'"},
        {{"--max-iterations", "-3"}, "orvanthis-cli: --max-iterations must be at least 0 (got -3)"},
        {{"--max-iterations", "4294967296"},
         "orvanthis-cli: --max-iterations must be at most 4294967295 (got 4294967296)"},
        {{"--target-pct", "-5"}, "orvanthis-cli: --target-pct must be at least 0 (got -5)"},
        {{"--target-pct", "nan"}, "orvanthis-cli: --target-pct needs a number, not 'nan'"},
    };
    for (const OptionCase& option : cases) {
        const CliRun run = run_cli(QStringList{"solve", kRiverSpot} + option.args);
        EXPECT_EQ(run.exit_code, 2) << option.message;
        EXPECT_TRUE(run.out.isEmpty()) << option.message;
        ASSERT_FALSE(run.err.isEmpty()) << option.message;
        EXPECT_EQ(lines_of(run.err).first().toStdString(), option.message);
    }
}

TEST(SolveOptions, ThreadCountsAtTheEdgesRun) {
    for (const char* threads : {"0", "1024"}) {
        const CliRun run =
            run_cli({"solve", kRiverSpot, "--max-iterations", "1", "--quiet", "--threads", threads});
        EXPECT_EQ(run.exit_code, 0) << threads;
        EXPECT_EQ(run.json.value("threads").toInt(), QString(threads).toInt());
    }
}

TEST(SolveOutput, AFullDeviceIsAnErrorWithItsReason) {
    const CliRun run =
        run_cli({"solve", kRiverSpot, "--max-iterations", "1", "--quiet", "--output", "/dev/full"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.err, "orvanthis-cli: cannot write '/dev/full': No space left on device\n");
    EXPECT_FALSE(QFileInfo("/dev/full").isFile()) << "the device itself must never be replaced";
}

TEST(SolveOutput, AnUnwritablePathFailsBeforeTheSolve) {
    const CliRun run = run_cli({"solve", kRiverSpot, "--output", "/nonexistent/directory/result.json"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_FALSE(run.json.value("success").toBool(true));
    EXPECT_EQ(run.json.value("error").toString(),
              "cannot write '/nonexistent/directory/result.json': No such file or directory");
    EXPECT_FALSE(run.err.contains("Init:")) << "nothing was built: " << run.err.toStdString();
}

TEST(SolveOutput, ADirectoryIsNoOutputFile) {
    QTemporaryDir dir;
    const CliRun run = run_cli({"solve", kRiverSpot, "--quiet", "--output", dir.path()});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_TRUE(run.json.value("error").toString().startsWith("cannot write '" + dir.path() + "': "))
        << run.out.toStdString();
}

TEST(SolveOutput, AnOldFileIsReplacedWholeAndNothingElseIsLeft) {
    QTemporaryDir dir;
    const QString path = dir.filePath("result.json");
    {
        QFile old(path);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write(QByteArray(100000, 'x'));
    }
    const CliRun run = run_cli({"solve", kRiverSpot, "--max-iterations", "1", "--quiet", "--output", path});
    ASSERT_EQ(run.exit_code, 0) << run.err.toStdString();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QJsonParseError error;
    const QJsonObject json = QJsonDocument::fromJson(file.readAll(), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError);
    EXPECT_TRUE(json.value("success").toBool());
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"result.json"});
}

TEST(SolveExploitability, NeverMeasuredIsNull) {
    const CliRun none = run_cli({"solve", kRiverSpot, "--max-iterations", "0", "--quiet"});
    ASSERT_EQ(none.exit_code, 0);
    EXPECT_TRUE(none.json.value("success").toBool());
    ASSERT_TRUE(none.json.contains("exploitability"));
    EXPECT_TRUE(none.json.value("exploitability").isNull());
    EXPECT_TRUE(none.json.value("exploitability_pct").isNull());

    QTemporaryDir dir;
    QJsonObject spot = river_spot();
    spot["board"] = "Ks9d4";
    const CliRun failed = run_cli({"solve", write_spot(dir, spot), "--quiet"});
    EXPECT_EQ(failed.exit_code, 1);
    EXPECT_TRUE(failed.json.value("exploitability").isNull()) << failed.out.toStdString();

    const CliRun measured = run_cli({"solve", kRiverSpot, "--max-iterations", "2", "--quiet"});
    ASSERT_EQ(measured.exit_code, 0);
    EXPECT_TRUE(measured.json.value("exploitability").isDouble());
    EXPECT_GT(measured.json.value("exploitability").toDouble(), 0.0);
}

}  // namespace
