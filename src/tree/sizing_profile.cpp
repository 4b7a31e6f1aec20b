// Sizing text normalisation and the per-street profile of both seats.

#include "tree/sizing_profile.h"

#include <cctype>
#include <stdexcept>

namespace kelvane {
namespace {

char lower(char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); }

bool is_kept(char c) {
    if (std::isdigit(static_cast<unsigned char>(c))) return true;
    switch (lower(c)) {
        case '%': case ',': case '.': case 'a': case 'c': case 'e': case 'r': case 'x':
            return true;
        default:
            return false;
    }
}

bool ends_in_unit(std::string_view item) {
    switch (lower(item.back())) {
        case '%': case 'a': case 'c': case 'e': case 'x':
            return true;
        default:
            return false;
    }
}

void check_item(std::string_view item) {
    if (item == "%")
        throw std::invalid_argument("Sizing: invalid token '%'. Use numbers like '33, 75' or '33%, 75%'");
    if (item.size() == 1 && (lower(item[0]) == 'c' || lower(item[0]) == 'e' || lower(item[0]) == 'x'))
        throw std::invalid_argument("Sizing: invalid token '" + std::string(item) + "'");
}

void fill_seat(const StreetSizing& sizing, std::vector<BetSizeToken>& bets, std::vector<BetSizeToken>& raises) {
    const std::string bet_text = normalize_sizing_text(sizing.bet_sizes, sizing.add_all_in);
    const std::string raise_text = normalize_sizing_text(sizing.raise_sizes, sizing.add_all_in);
    bets = parse_bet_tokens(bet_text, false);
    raises = parse_bet_tokens(raise_text, true);
}

// Without dont_donk a lead uses the seat's ordinary bet sizes.
void fill_oop(SizingProfile& profile, const StreetSizing& oop) {
    fill_seat(oop, profile.oop_bets, profile.oop_raises);
    profile.donk_bets = oop.dont_donk ? std::vector<BetSizeToken>{} : profile.oop_bets;
}

void fill_ip(SizingProfile& profile, const StreetSizing& ip) { fill_seat(ip, profile.ip_bets, profile.ip_raises); }

// Normalising again re-raises a normaliser error from here, so those reach the user unwrapped.
[[noreturn]] void rethrow_labelled(std::string_view seat, std::string_view street_name, const StreetSizing& sizing,
                                   const std::exception& error) {
    const std::string bet_norm = normalize_sizing_text(sizing.bet_sizes, sizing.add_all_in);
    const std::string raise_norm = normalize_sizing_text(sizing.raise_sizes, sizing.add_all_in);
    throw std::invalid_argument(std::string(seat) + " " + std::string(street_name) + " sizing (bet='" +
                                sizing.bet_sizes + "', raise='" + sizing.raise_sizes + "', bet_norm='" + bet_norm +
                                "', raise_norm='" + raise_norm + "'): " + error.what());
}

}  // namespace

std::string normalize_sizing_text(std::string_view text, bool add_all_in) {
    std::string kept;
    for (char c : text)
        if (is_kept(c)) kept += c;

    std::string out;
    bool has_all_in = false;
    std::string_view rest = kept;
    while (true) {
        const std::size_t comma = rest.find(',');
        const std::string_view item = rest.substr(0, comma);
        if (!item.empty()) {
            check_item(item);
            if (item == "a" || item == "A") has_all_in = true;
            if (!out.empty()) out += ',';
            out += item;
            // A bare number is a pot percentage.
            if (!ends_in_unit(item)) out += '%';
        }
        if (comma == std::string_view::npos) break;
        rest.remove_prefix(comma + 1);
    }
    if (add_all_in && !has_all_in) out += out.empty() ? "a" : ",a";
    return out;
}

void build_sizing_profile(SizingProfile& profile, const StreetSizing& oop, const StreetSizing& ip,
                          std::string_view street_name) {
    try {
        fill_oop(profile, oop);
    } catch (const std::exception& error) {
        rethrow_labelled("OOP", street_name, oop, error);
    }
    try {
        fill_ip(profile, ip);
    } catch (const std::exception& error) {
        rethrow_labelled("IP", street_name, ip, error);
    }
}

void build_sizing_profile_unlabelled(SizingProfile& profile, const StreetSizing& oop, const StreetSizing& ip) {
    fill_oop(profile, oop);
    fill_ip(profile, ip);
}

}  // namespace kelvane
