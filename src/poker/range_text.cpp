#include "poker/range_text.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <stdexcept>
#include <string>

namespace kelvane {
namespace {

constexpr int kAce = kRankCount - 1;
constexpr std::string_view kPercentCharacters = "0123456789.%";

bool is_space(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }
bool is_letter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

Card card_at(int rank, int suit) {
    const int code = rank * kSuitCount + suit;
    check_card(code);
    return static_cast<Card>(code);
}

void check_weight(float weight) {
    if (!(weight >= 0.0f && weight <= 1.0f)) throw std::invalid_argument("Weight must be within [0, 1]");
}

void check_pocket_cards(int card_a, int card_b) {
    check_card(card_a);
    check_card(card_b);
    if (card_a == card_b) throw std::invalid_argument("Cards must differ");
}

// Error texts match those of std::stof on Windows, the shipping platform; they reach the user unchanged.
float parse_weight(std::string_view text) {
    if (text.empty()) throw std::invalid_argument("Weight string is empty");
    const std::string owned(text);
    char* end = nullptr;
    errno = 0;
    const float weight = std::strtof(owned.c_str(), &end);
    if (end == owned.c_str()) throw std::invalid_argument("invalid stof argument");
    if (errno == ERANGE) throw std::out_of_range("stof argument out of range");
    if (end != owned.c_str() + owned.size())
        throw std::invalid_argument("Weight string contains invalid characters");
    return weight;
}

ComboPattern parse_exact_combo(std::string_view text) {
    if (text.size() != 4) throw std::invalid_argument("Exact combo must contain four characters");
    ComboPattern pattern;
    pattern.high_rank = static_cast<std::uint8_t>(parse_rank(text[0]));
    pattern.suit_a = static_cast<std::uint8_t>(parse_suit(text[1]));
    pattern.low_rank = static_cast<std::uint8_t>(parse_rank(text[2]));
    pattern.suit_b = static_cast<std::uint8_t>(parse_suit(text[3]));
    pattern.suitedness = Suitedness::exact;
    if (pattern.high_rank < pattern.low_rank)
        throw std::invalid_argument("First rank must be >= second rank");
    if (pattern.high_rank == pattern.low_rank && pattern.suit_a == pattern.suit_b)
        throw std::invalid_argument("Duplicate cards are not allowed");
    return pattern;
}

ComboPattern with_ranks(ComboPattern pattern, int high_rank, int low_rank) {
    pattern.high_rank = static_cast<std::uint8_t>(high_rank);
    pattern.low_rank = static_cast<std::uint8_t>(low_rank);
    return pattern;
}

int rank_gap(const ComboPattern& pattern) { return pattern.high_rank - pattern.low_rank; }

// Connectors and pairs climb as a whole; wider gaps keep the top card and climb the kicker.
std::vector<ComboPattern> plus_range(std::string_view expression) {
    if (expression.size() < 2 || expression.back() != '+')
        throw std::invalid_argument("Expected trailing '+'");
    const ComboPattern base = parse_combo(expression.substr(0, expression.size() - 1));
    std::vector<ComboPattern> patterns;
    if (rank_gap(base) > 1) {
        for (int low = base.low_rank; low < base.high_rank; ++low)
            patterns.push_back(with_ranks(base, base.high_rank, low));
    } else {
        for (int high = base.high_rank; high <= kAce; ++high)
            patterns.push_back(with_ranks(base, high, high - rank_gap(base)));
    }
    return patterns;
}

std::vector<ComboPattern> dash_range(std::string_view expression) {
    const auto dash = expression.find('-');
    if (dash == std::string_view::npos) throw std::invalid_argument("Expected '-' in range");
    const ComboPattern left = parse_combo(expression.substr(0, dash));
    const ComboPattern right = parse_combo(expression.substr(dash + 1));
    if (left.suitedness != right.suitedness) throw std::invalid_argument("Suitedness mismatch in range");
    std::vector<ComboPattern> patterns;
    if (rank_gap(left) == rank_gap(right)) {
        if (left.high_rank <= right.high_rank) throw std::invalid_argument("Range must be descending");
        for (int high = right.high_rank; high <= left.high_rank; ++high)
            patterns.push_back(with_ranks(left, high, high - rank_gap(left)));
        return patterns;
    }
    if (left.high_rank != right.high_rank) throw std::invalid_argument("Unsupported range expression");
    if (left.low_rank <= right.low_rank) throw std::invalid_argument("Range must be descending");
    for (int low = right.low_rank; low <= left.low_rank; ++low)
        patterns.push_back(with_ranks(left, left.high_rank, low));
    return patterns;
}

std::vector<ComboPattern> expression_patterns(std::string_view expression) {
    if (expression.find('-') != std::string_view::npos) return dash_range(expression);
    if (expression.back() == '+') return plus_range(expression);
    return {parse_combo(expression)};
}

void apply_item(RangeWeights& weights, std::string_view item) {
    const auto colon = item.find(':');
    const std::string_view expression = item.substr(0, colon);
    const float weight = colon == std::string_view::npos ? 1.0f : parse_weight(item.substr(colon + 1));
    if (expression.empty()) throw std::invalid_argument("Missing range expression");
    const std::vector<ComboPattern> patterns = expression_patterns(expression);
    check_weight(weight);
    for (const ComboPattern& pattern : patterns)
        for (const int index : expand_combo(pattern)) weights[static_cast<std::size_t>(index)] = weight;
}

std::string_view trim(std::string_view text) {
    while (!text.empty() && is_space(text.front())) text.remove_prefix(1);
    while (!text.empty() && is_space(text.back())) text.remove_suffix(1);
    return text;
}

bool is_percent_text(std::string_view text) {
    return text.size() >= 2 && text.back() == '%' &&
           text.find_first_not_of(kPercentCharacters) == std::string_view::npos &&
           text.find('%') == text.size() - 1;
}

RangeWeights uniform_range(std::string_view text) {
    // strtod may stop early on purpose ("1.2.3%" reads 1.2); only a failed or overflowing read is an error.
    const std::string number(text.substr(0, text.size() - 1));
    char* end = nullptr;
    errno = 0;
    const double percent = std::strtod(number.c_str(), &end);
    if (end == number.c_str() || errno == ERANGE)
        throw std::invalid_argument("Invalid percent range '" + std::string(text) +
                                    "' (expected like '50%')");
    const auto weight = static_cast<float>(percent / 100.0);
    RangeWeights weights{};
    for (int a = 0; a < kCardCount; ++a)
        for (int b = a + 1; b < kCardCount; ++b) set_pocket_weight(weights, a, b, weight);
    return weights;
}

}  // namespace

RangeWeights parse_range_text(std::string_view text) {
    std::string compact;
    compact.reserve(text.size());
    for (const char c : text)
        if (!is_space(c)) compact.push_back(c);

    RangeWeights weights{};
    std::string_view rest = compact;
    while (!rest.empty()) {
        const auto comma = rest.find(',');
        const std::string_view item = rest.substr(0, comma);
        if (!item.empty()) apply_item(weights, item);
        if (comma == std::string_view::npos) break;
        rest.remove_prefix(comma + 1);
    }
    return weights;
}

RangeWeights parse_range_or_percent(std::string_view text) {
    const std::string_view trimmed = trim(text);
    if (is_percent_text(trimmed)) return uniform_range(trimmed);
    return parse_range_text(text);
}

ComboPattern parse_combo(std::string_view text) {
    if (text.empty()) throw std::invalid_argument("Empty combo");
    if (text.size() == 4 && is_letter(text[1]) && is_letter(text[3])) return parse_exact_combo(text);
    if (text.size() != 2 && text.size() != 3) throw std::invalid_argument("Invalid combo pattern length");
    ComboPattern pattern;
    pattern.high_rank = static_cast<std::uint8_t>(parse_rank(text[0]));
    pattern.low_rank = static_cast<std::uint8_t>(parse_rank(text[1]));
    if (pattern.high_rank < pattern.low_rank)
        throw std::invalid_argument("First rank must be >= second rank");
    if (text.size() == 3) {
        const char suffix = static_cast<char>(std::tolower(static_cast<unsigned char>(text[2])));
        if (suffix == 's')
            pattern.suitedness = Suitedness::suited;
        else if (suffix == 'o')
            pattern.suitedness = Suitedness::offsuit;
        else
            throw std::invalid_argument("Invalid suitedness suffix");
        if (pattern.high_rank == pattern.low_rank)
            throw std::invalid_argument("Pair cannot have suitedness suffix");
    }
    return pattern;
}

std::vector<int> expand_combo(const ComboPattern& pattern) {
    const int high = pattern.high_rank;
    const int low = pattern.low_rank;
    std::vector<int> indices;
    if (pattern.suitedness == Suitedness::exact) {
        const Card a = card_at(high, pattern.suit_a);
        const Card b = card_at(low, pattern.suit_b);
        if (a == b) throw std::invalid_argument("Duplicate cards are not allowed");
        indices.push_back(pocket_index(a, b));
        return indices;
    }
    if (high == low) {
        if (pattern.suitedness != Suitedness::any)
            throw std::invalid_argument("Pair cannot be suited/offsuit");
        for (int suit_a = 0; suit_a < kSuitCount; ++suit_a)
            for (int suit_b = suit_a + 1; suit_b < kSuitCount; ++suit_b)
                indices.push_back(pocket_index(card_at(high, suit_a), card_at(low, suit_b)));
        return indices;
    }
    for (int suit_a = 0; suit_a < kSuitCount; ++suit_a) {
        for (int suit_b = 0; suit_b < kSuitCount; ++suit_b) {
            const bool suited = suit_a == suit_b;
            if (pattern.suitedness == Suitedness::suited && !suited) continue;
            if (pattern.suitedness == Suitedness::offsuit && suited) continue;
            indices.push_back(pocket_index(card_at(high, suit_a), card_at(low, suit_b)));
        }
    }
    return indices;
}

void set_pocket_weight(RangeWeights& weights, int card_a, int card_b, float weight) {
    check_pocket_cards(card_a, card_b);
    check_weight(weight);
    weights[static_cast<std::size_t>(pocket_index(card_a, card_b))] = weight;
}

float get_pocket_weight(const RangeWeights& weights, int card_a, int card_b) {
    check_pocket_cards(card_a, card_b);
    return weights[static_cast<std::size_t>(pocket_index(card_a, card_b))];
}

}  // namespace kelvane
