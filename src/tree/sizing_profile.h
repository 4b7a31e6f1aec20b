#pragma once
// Sizing text of both seats on one street compiled into the token lists the action plan reads.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tree/bet_size.h"
#include "tree/street_sizing.h"

namespace kelvane {

struct SizingProfile {
    std::vector<BetSizeToken> oop_bets;
    std::vector<BetSizeToken> oop_raises;
    std::vector<BetSizeToken> ip_bets;
    std::vector<BetSizeToken> ip_raises;
    // Leads into the previous street's aggressor; set by the builder, empty under dont_donk.
    std::optional<std::vector<BetSizeToken>> donk_bets;
};

// Free text such as "33, 75" into token text such as "33%,75%", with a trailing "a" when asked.
std::string normalize_sizing_text(std::string_view text, bool add_all_in);

// street_name ("flop", "turn", "river") labels the error of a seat's bad text.
void build_sizing_profile(SizingProfile& profile, const StreetSizing& oop, const StreetSizing& ip,
                          std::string_view street_name);
void build_sizing_profile_unlabelled(SizingProfile& profile, const StreetSizing& oop, const StreetSizing& ip);

}  // namespace kelvane
