// Bet size token grammar: dispatch on the last character, then resolve against a node's chips.

#include "tree/bet_size.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "poker/number_text.h"
#include "tree/chips.h"

namespace kelvane {
namespace {

bool is_space(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
char lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

std::string_view trim(std::string_view text) {
    while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_space(text.back())) text.remove_suffix(1);
    return text;
}

BetSizeToken relative_raise(std::string_view body, bool allow_raise) {
    if (!allow_raise) throw std::invalid_argument("Relative raise (x) is not allowed in this context");
    BetSizeToken token{.kind = BetSizeKind::RelativeRaise};
    token.fraction = parse_double(body);
    if (!(token.fraction > 1.0)) throw std::invalid_argument("Relative raise must exceed 1.0x");
    return token;
}

// "120c" and, in a raise list, a cap behind the c. A cap always ends the text in 'r', so a
// token reaching this branch ends in 'c' and its cap text never passes; kept as the grammar.
BetSizeToken fixed_chips_with_cap(std::string_view text, bool allow_raise) {
    const std::size_t c_at = std::min(text.find('c'), text.find('C'));
    BetSizeToken token{.kind = BetSizeKind::FixedChips};
    token.chips = parse_integer(text.substr(0, c_at));
    const std::string_view cap = text.substr(c_at + 1);
    if (cap.empty()) return token;
    if (!allow_raise) throw std::invalid_argument("Raise cap is only valid for raises");
    if (lower(cap.back()) != 'r') throw std::invalid_argument("Raise cap must end with 'r'");
    token.raise_cap = parse_integer(cap.substr(0, cap.size() - 1));
    if (token.raise_cap < 1) throw std::invalid_argument("Raise cap must be positive");
    return token;
}

// "e", "2e", "%150e", "2%150e": streets, then an optional ceiling in percent of the pot.
BetSizeToken geometric(std::string_view body) {
    BetSizeToken token{.kind = BetSizeKind::Geometric};
    token.geometric_max = std::numeric_limits<double>::infinity();
    const std::size_t percent_at = body.find('%');
    if (percent_at != std::string_view::npos) {
        token.geometric_max = parse_double(body.substr(percent_at + 1)) / 100.0;
        body = body.substr(0, percent_at);
    }
    if (!body.empty()) {
        token.streets = parse_integer(body);
        if (token.streets < 1) throw std::invalid_argument("Geometric streets must be positive");
    }
    return token;
}

std::int32_t geometric_total(const BetSizeToken& token, const SizingContext& context) {
    const int streets = token.streets != 0 ? token.streets : context.remaining_streets;
    if (streets <= 0) return context.min_to;
    // Growth per street that leaves the stack just used up after equal-fraction bets.
    const double growth = std::pow(2.0 * context.stack_to_pot + 1.0, 1.0 / streets) - 1.0;
    double fraction = growth / 2.0;
    if (std::isfinite(token.geometric_max)) fraction = std::min(token.geometric_max, fraction);
    return round_chips(context.pot * fraction);
}

}  // namespace

BetSizeToken parse_bet_token(std::string_view text, bool allow_raise) {
    text = trim(text);
    if (text.empty()) throw std::invalid_argument("Empty bet size token");
    const std::string_view body = text.substr(0, text.size() - 1);
    switch (lower(text.back())) {
        case 'x':
            return relative_raise(body, allow_raise);
        case 'c':
            return fixed_chips_with_cap(text, allow_raise);
        case 'e':
            return geometric(body);
        case 'a':
            return BetSizeToken{.kind = BetSizeKind::AllIn};
        case '%':
            return BetSizeToken{.kind = BetSizeKind::PotPercent, .fraction = parse_double(body) / 100.0};
        default:
            return BetSizeToken{.kind = BetSizeKind::FixedChips, .chips = parse_integer(text)};
    }
}

std::vector<BetSizeToken> parse_bet_tokens(std::string_view text, bool allow_raise) {
    std::vector<BetSizeToken> tokens;
    while (true) {
        const std::size_t comma = text.find(',');
        const std::string_view item = trim(text.substr(0, comma));
        if (!item.empty()) tokens.push_back(parse_bet_token(item, allow_raise));
        if (comma == std::string_view::npos) return tokens;
        text.remove_prefix(comma + 1);
    }
}

std::int32_t resolve_bet_token(const BetSizeToken& token, const SizingContext& context) {
    // Wide enough for a chip token added to the current bet.
    const auto clamp = [&](std::int64_t total) {
        return static_cast<std::int32_t>(
            std::max<std::int64_t>(context.min_to, std::min<std::int64_t>(total, context.max_to)));
    };
    switch (token.kind) {
        case BetSizeKind::PotPercent:
            return clamp(round_chips(context.pot * token.fraction));
        case BetSizeKind::RelativeRaise:
            return clamp(round_chips(context.current_bet * token.fraction));
        case BetSizeKind::FixedChips:
            return clamp(std::int64_t{token.chips} + context.current_bet);
        case BetSizeKind::Geometric:
            return clamp(geometric_total(token, context));
        case BetSizeKind::AllIn:
            return context.max_to;
    }
    return context.min_to;
}

}  // namespace kelvane
