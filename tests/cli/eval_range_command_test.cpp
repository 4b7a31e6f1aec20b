// Runs the built orvanthis-cli and checks the output and exit codes of eval and range.

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "poker/hand_evaluator.h"

namespace {

struct CliRun {
    int exit_code = -1;
    std::string out;
    std::string err;
};

std::string read_file(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::string shell_quote(const std::string& text) {
    std::string quoted = "'";
    for (char c : text) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

CliRun run_cli(const std::vector<std::string>& args, const std::string& input = {}) {
    const std::string base = ::testing::TempDir() + "eval_range_" + std::to_string(getpid()) + "_" +
                             ::testing::UnitTest::GetInstance()->current_test_info()->name();
    std::ofstream(base + ".in", std::ios::binary) << input;
    std::string command = shell_quote(ORVANTHIS_CLI);
    for (const std::string& arg : args) command += ' ' + shell_quote(arg);
    command += " < " + shell_quote(base + ".in") + " > " + shell_quote(base + ".out") + " 2> " +
               shell_quote(base + ".err");
    const int status = std::system(command.c_str());
    CliRun run;
    run.exit_code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    run.out = read_file(base + ".out");
    run.err = read_file(base + ".err");
    for (const char* suffix : {".in", ".out", ".err"}) std::remove((base + suffix).c_str());
    return run;
}

TEST(EvalCommand, SevenCardsInOneArgument) {
    const CliRun run = run_cli({"eval", "AhKh Qh Jh Th 2c 3d"});
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out, "570425344 8\n");
    EXPECT_EQ(run.err, "");
}

TEST(EvalCommand, SevenCardsAsSeparateArguments) {
    const CliRun run = run_cli({"eval", "Ac", "2c", "3c", "4c", "5c", "Kd", "Qh"});
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out, "536936448 8\n");  // the wheel straight flush, 0x20010000
}

TEST(EvalCommand, CaseOfRanksAndSuitsDoesNotMatter) {
    EXPECT_EQ(run_cli({"eval", "ah kh qh jh th 2C 3D"}).out, "570425344 8\n");
}

TEST(EvalCommand, InvalidCardPrintsTheLibraryText) {
    const CliRun run = run_cli({"eval", "Ah Kh Qh Jh Th 2c 3x"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "error: Invalid suit character\n");
    EXPECT_EQ(run_cli({"eval", "Ah Kh Qh Jh Th 2c 1d"}).err, "error: Invalid rank character\n");
}

TEST(EvalCommand, OtherCardCountsFail) {
    for (const std::vector<std::string>& args : {std::vector<std::string>{"eval", "Ah Kh Qh"},
                                                 {"eval", "Ah Kh Qh Jh Th 2c 3d 4d"},
                                                 {"eval", "AhKhQhJhTh2c3"},
                                                 {"eval", " "}}) {
        const CliRun run = run_cli(args);
        EXPECT_EQ(run.exit_code, 1) << args[1];
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "error: expected exactly seven cards, as in \"AhKh Qh Jh Th 2c 3d\"\n");
    }
}

// Seven cards come from one deck: a card given twice is refused, whatever case it is written in.
TEST(EvalCommand, RepeatedCardsFail) {
    for (const std::vector<std::string>& args : {std::vector<std::string>{"eval", "Ah Ah Kd Qc Jd 2s 3c"},
                                                 {"eval", "Ah Kd Qc Jd 2s 3c ah"},
                                                 {"eval", "AhKdQcJd2s3cAH"}}) {
        const CliRun run = run_cli(args);
        EXPECT_EQ(run.exit_code, 1) << args[1];
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err, "error: Ah appears twice; the seven cards must be distinct\n") << args[1];
    }
}

TEST(EvalStdin, RepeatedCardsAreReportedInPlace) {
    const CliRun run = run_cli({"eval", "--stdin"}, "AhKhQhJhTh2c3d\n2c2c2c2c2c2c2c\nAhKhQhJhTh2c3d\n");
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out,
              "570425344 8\n"
              "error: 2c appears twice; the seven cards must be distinct\n"
              "570425344 8\n");
}

TEST(EvalCommand, NoArgumentShowsUsage) {
    const CliRun run = run_cli({"eval"});
    EXPECT_EQ(run.exit_code, 2);
    EXPECT_NE(run.err.find("usage: orvanthis-cli"), std::string::npos);
    EXPECT_NE(run.err.find("exactly seven cards"), std::string::npos);
    EXPECT_EQ(run_cli({"eval", "--stdin", "extra"}).exit_code, 2);
}

TEST(EvalStdin, OneOutputLinePerInputLineInOrder) {
    const CliRun run =
        run_cli({"eval", "--stdin"}, "AhKhQhJhTh2c3d\n\nAc 2c 3c 4c 5c Kd Qh\r\n  \nAh Ad 9c 7s 5h 3d 2c");
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out, "570425344 8\n\n536936448 8\n\n100663464 1\n");
}

TEST(EvalStdin, BadLinesAreReportedInPlaceAndFailTheRun) {
    const CliRun run = run_cli({"eval", "--stdin"}, "Ah Kh Qh\nAhKhQhJhTh2c3d\nXh Kh Qh Jh Th 2c 3d\n");
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out,
              "error: expected exactly seven cards, as in \"AhKh Qh Jh Th 2c 3d\"\n"
              "570425344 8\n"
              "error: Invalid rank character\n");
}

TEST(EvalStdin, EmptyInputGivesNoOutput) {
    const CliRun run = run_cli({"eval", "--stdin"}, "");
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out, "");
}

TEST(EvalStdin, ManyRandomHandsMatchTheLibrary) {
    std::mt19937 rng(42);
    std::vector<kelvane::Card> deck(kelvane::kCardCount);
    std::iota(deck.begin(), deck.end(), kelvane::Card{0});
    std::string input;
    std::string expected;
    for (int i = 0; i < 20000; ++i) {
        std::shuffle(deck.begin(), deck.end(), rng);
        std::array<kelvane::Card, 7> hand{};
        std::copy_n(deck.begin(), 7, hand.begin());
        for (kelvane::Card card : hand)
            input += kelvane::card_to_string(static_cast<std::int8_t>(card)) + ' ';
        input += '\n';
        const kelvane::HandStrength strength = kelvane::evaluate_seven(hand);
        expected +=
            std::to_string(strength) + ' ' + std::to_string(kelvane::strength_category(strength)) + '\n';
    }
    const CliRun run = run_cli({"eval", "--stdin"}, input);
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_TRUE(run.out == expected);
}

TEST(RangeCommand, SummarisesWeightsPerClass) {
    const CliRun run = run_cli({"range", "AA"});
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_EQ(run.out, "{\"classes\":{\"AA\":6},\"combos\":6,\"ok\":true,\"pockets\":6}\n");
    EXPECT_EQ(
        run_cli({"range", "AA,KK:0.5,AQs+"}).out,
        "{\"classes\":{\"AA\":6,\"AKs\":4,\"AQs\":4,\"KK\":3},\"combos\":17,\"ok\":true,\"pockets\":20}\n");
    EXPECT_EQ(run_cli({"range", "AA:0.8,", "T9s-65s:0.8"}).out,
              "{\"classes\":{\"65s\":3.2,\"76s\":3.2,\"87s\":3.2,\"98s\":3.2,\"AA\":4.8,\"T9s\":3.2},"
              "\"combos\":20.8,\"ok\":true,\"pockets\":26}\n");
}

TEST(RangeCommand, ZeroWeightsAreNotCounted) {
    EXPECT_EQ(run_cli({"range", "AA:0"}).out, "{\"classes\":{},\"combos\":0,\"ok\":true,\"pockets\":0}\n");
    EXPECT_EQ(run_cli({"range", ""}).out, "{\"classes\":{},\"combos\":0,\"ok\":true,\"pockets\":0}\n");
}

TEST(RangeCommand, PercentRangeCoversEveryClass) {
    const CliRun run = run_cli({"range", " 37.5% "});
    EXPECT_EQ(run.exit_code, 0);
    EXPECT_NE(run.out.find("\"combos\":497.25,"), std::string::npos);
    EXPECT_NE(run.out.find("\"pockets\":1326}"), std::string::npos);
    EXPECT_NE(run.out.find("\"AA\":2.25,"), std::string::npos);
    EXPECT_NE(run.out.find("\"AKo\":4.5,"), std::string::npos);
    EXPECT_NE(run.out.find("\"AKs\":1.5,"), std::string::npos);
}

TEST(RangeCommand, ErrorsCarryTheExactText) {
    CliRun run = run_cli({"range", "AA:2"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out, "{\"error\":\"Weight must be within [0, 1]\",\"ok\":false}\n");
    run = run_cli({"range", "50%,AA"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out, "{\"error\":\"Invalid rank character\",\"ok\":false}\n");
    run = run_cli({"range", ".%"});
    EXPECT_EQ(run.exit_code, 1);
    EXPECT_EQ(run.out, "{\"error\":\"Invalid percent range '.%' (expected like '50%')\",\"ok\":false}\n");
    EXPECT_EQ(run_cli({"range", "AA:1e99"}).out, "{\"error\":\"stof argument out of range\",\"ok\":false}\n");
}

TEST(RangeCommand, NoArgumentShowsUsage) {
    const CliRun run = run_cli({"range"});
    EXPECT_EQ(run.exit_code, 2);
    EXPECT_NE(run.err.find("usage: orvanthis-cli"), std::string::npos);
}

}  // namespace
