// eval: strength and category of seven cards, from the arguments or line by line from standard input.

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "cli/commands.h"
#include "poker/cards.h"
#include "poker/hand_evaluator.h"

namespace kelvane_cli {
namespace {

constexpr std::size_t kHandTextLength = 14;  // seven two-character tokens
constexpr std::size_t kIoChunk = std::size_t{1} << 20;
constexpr const char* kCountError = "expected exactly seven cards, as in \"AhKh Qh Jh Th 2c 3d\"";

struct EvalResult {
    kelvane::HandStrength strength = 0;
    bool blank = false;
};

EvalResult evaluate_text(std::string_view text) {
    std::array<char, kHandTextLength> compact{};
    std::size_t length = 0;
    for (const char c : text) {
        if (std::isspace(static_cast<unsigned char>(c))) continue;
        if (length == kHandTextLength) throw std::invalid_argument(kCountError);
        compact[length++] = c;
    }
    if (length == 0) return {0, true};
    if (length != kHandTextLength) throw std::invalid_argument(kCountError);
    std::array<kelvane::Card, 7> cards{};
    for (std::size_t i = 0; i < cards.size(); ++i) {
        cards[i] = kelvane::parse_card(std::string_view(compact.data() + 2 * i, 2));
        // Seven cards from one deck: a repeated card has no strength.
        if (std::find(cards.begin(), cards.begin() + i, cards[i]) != cards.begin() + i)
            throw std::invalid_argument(kelvane::card_to_string(static_cast<std::int8_t>(cards[i])) +
                                        " appears twice; the seven cards must be distinct");
    }
    return {kelvane::evaluate_seven(cards), false};
}

void append_strength(std::string& out, kelvane::HandStrength strength) {
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, strength).ptr;
    out.append(digits, end);
    out.push_back(' ');
    out.push_back(static_cast<char>('0' + kelvane::strength_category(strength)));
}

void flush_to_stdout(std::string& out) {
    std::fwrite(out.data(), 1, out.size(), stdout);
    out.clear();
}

// Reads and writes in large blocks: a million hands must not cost a million system calls.
int eval_stdin() {
    std::string pending;
    std::string out;
    out.reserve(2 * kIoChunk);
    bool failed = false;
    auto process_line = [&](std::string_view line) {
        try {
            const EvalResult result = evaluate_text(line);
            if (!result.blank) append_strength(out, result.strength);
        } catch (const std::exception& error) {
            out += "error: ";
            out += error.what();
            failed = true;
        }
        out.push_back('\n');
        if (out.size() >= kIoChunk) flush_to_stdout(out);
    };

    std::string chunk(kIoChunk, '\0');
    std::size_t read = 0;
    while ((read = std::fread(chunk.data(), 1, chunk.size(), stdin)) > 0) {
        pending.append(chunk.data(), read);
        std::size_t start = 0;
        for (std::size_t newline; (newline = pending.find('\n', start)) != std::string::npos;
             start = newline + 1)
            process_line(std::string_view(pending).substr(start, newline - start));
        pending.erase(0, start);
    }
    if (!pending.empty()) process_line(pending);
    flush_to_stdout(out);
    std::fflush(stdout);
    return failed ? kExitFailure : kExitOk;
}

}  // namespace

int run_eval(const Arguments& args) {
    if (args.empty()) throw UsageError{"eval needs seven cards or --stdin"};
    if (args[0] == "--stdin") {
        if (args.size() != 1) throw UsageError{"eval --stdin takes no further arguments"};
        return eval_stdin();
    }
    std::string text;
    for (const std::string& arg : args) text += arg + ' ';
    try {
        const EvalResult result = evaluate_text(text);
        if (result.blank) throw std::invalid_argument(kCountError);
        std::string out;
        append_strength(out, result.strength);
        out.push_back('\n');
        flush_to_stdout(out);
        return kExitOk;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "error: %s\n", error.what());
        return kExitFailure;
    }
}

}  // namespace kelvane_cli
